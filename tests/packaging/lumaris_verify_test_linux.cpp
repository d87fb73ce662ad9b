// SPDX-License-Identifier: MIT
// Packages, each judged by lumaris-verify and installed by the launcher, in a plain folder and on a
// volume with the rules of a Mac.

#include <QCoreApplication>

#include "client-layout.h"
#include "mac/mac-service.h"
#include "volume-fixture.h"

namespace {

const std::string kInfo = "Contents/Resources/INFO";
/// The smallest client that is accepted.
const Entries kClient = {
    {"Contents/Info.plist", "plist"}, {kClientExecutable, "client", 0755}, {kInfo, Info("121")}};
const std::string kClientTree =
    "Contents/ Contents/Info.plist=plist Contents/MacOS/ "
    "Contents/MacOS/lumaris-backup-ui=client:755 Contents/Resources/ Contents/Resources/INFO=" +
    Info("121");

/// The client with more entries in front and without one of its own.
struct Row {
    const char *what;
    Entries more;
    const char *expected;  // behind the tree of the client, or in what is said
    std::string without = "";
    const char *format = "gnutar";
};

class VerifyTest : public VolumeTest, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        if (GetParam() && !MountMacVolume()) {
            GTEST_SKIP() << "this user cannot mount a volume with FUSE";
        }
    }
    void Write(const Row &row) {
        Entries entries = row.more;
        std::copy_if(kClient.begin(), kClient.end(), std::back_inserter(entries),
                     [&row](const PackageEntry &own) { return own.name != row.without; });
        WritePackage(package, entries, row.format);
    }
    /// Whether lumaris-verify accepts the package; `said` is what it printed.
    bool IsAccepted() {
        const std::string command = std::string(LUMARIS_VERIFY) + " '" + package + "' >said 2>&1";
        const int status = std::system(command.c_str());
        said = ReadFile("said");
        return status == 0;
    }

    int no_arguments = 0;
    const QCoreApplication application{no_arguments, nullptr};
    const std::string package =
        (Service::GetRootLumarisResourceInstallPath() + "/" + kPackageFile).c_str();
    std::string said;
};

TEST_P(VerifyTest, AcceptsUnusualPackagesThatAreInstalledAsStored) {
    const Row rows[] = {
        {"cpio", {}, "", "", "newc"},
        {"zip", {}, "", "", "zip"},
        {"7-zip, which stores folders last", {{"a/"}, {"a/b", "x"}}, " a/ a/b=x", "", "7zip"},
        {"needless '/' and '.'", {{"./"}, {"/a/./b//c", "x"}}, " a/ a/b/ a/b/c=x"},
        {"a link within", {{"a/"}, {"a/l", "", AE_IFLNK, "../a"}}, " a/ a/l->../a"},
    };
    for (const Row &row : rows) {
        Write(row);
        EXPECT_TRUE(IsAccepted()) << row.what << ": " << said;
        EXPECT_EQ(0, MacService().PrepareUserEnv()) << row.what << ": " << Log();
        EXPECT_EQ(kClientTree + row.expected, Tree(app)) << row.what;
    }
}

TEST_P(VerifyTest, RefusesWhatHarmsTheClientOnAMac) {
    const Row rows[] = {
        {"a format without content", {}, "the format is mtree", "", "mtree"},

        {"'..'", {{"a/../x"}}, "has a '..' part"},
        {"no UTF-8", {{"\xff"}}, "'\\xff' is not valid UTF-8"},
        {"a long name", {{std::string(256, 'n')}}, "longer than 255 bytes"},
        {"a file of attributes", {{"._a"}}, "is an AppleDouble"},
        {"a file as the bundle", {{"."}}, "takes the place of the bundle"},
        {"a file twice", {{"a", "1"}, {"a", "2"}}, "'a' is there twice"},
        {"a folder behind its file", {{"a/b"}, {"a/", "", 0700}}, "before its permissions"},
        {"one name, in case and form", {{"\u00c9"}, {"e\u0301"}}, "is one name with"},
        {"one folder, in case", {{"Lib/a"}, {"lib/b"}}, "'lib' is one name with 'Lib'"},

        {"a hard link", {{"h", "", 0644, kInfo}}, "is a hard link"},
        {"a pipe", {{"p", "", AE_IFIFO | 0644}}, "is neither"},
        {"set-uid", {{"s", "x", 06755}}, "is set-uid"},
        {"a read-only folder", {{"d/", "", 0555}}, "is a folder that its owner"},

        {"a file behind a link", {{"l", "", AE_IFLNK, "x"}, {"l/x"}}, "'l' is no folder"},
        // On a Mac "D" finds "d", so "a/D/.." is the folder above the bundle.
        {"a way out", {{"a/d", "", AE_IFLNK, ".."}, {"l", "", AE_IFLNK, "a/D/.."}}, "points out"},
        {"an absolute link", {{"l", "", AE_IFLNK, "/tmp"}}, "points to an absolute"},
        {"an endless link", {{"l", "", AE_IFLNK, "l"}}, "never arrives"},

        {"no right to run", {{kClientExecutable, "x"}}, "executable", kClientExecutable},
        {"a link as program", {{kClientExecutable, "", AE_IFLNK, "x"}}, "plain", kClientExecutable},
        {"an empty program", {{kClientExecutable}}, "-ui' is empty", kClientExecutable},
        {"a word as build", {{kInfo, Info("v121")}}, "no build number", kInfo},
        {"INFO in small letters", {{"Contents/Resources/info"}}, "INFO' is missing", kInfo},
        {"INFO not last", {{kInfo, Info("121")}}, "the last files are not", kInfo},
    };
    for (const Row &row : rows) {
        Write(row);
        EXPECT_FALSE(IsAccepted()) << row.what;
        EXPECT_NE(said.find(row.expected), said.npos) << row.what << ": " << said;
        // Whatever the launcher makes of it, the next package repairs.
        MacService().PrepareUserEnv();
        Write({"the next", {}, ""});
        EXPECT_EQ(0, MacService().PrepareUserEnv()) << row.what << ": " << Log();
        EXPECT_EQ(kClientTree, Tree(app)) << row.what;
    }
}

TEST_P(VerifyTest, RefusesAWrongChecksum) {
    WritePackage(package, kClient, "zip");
    std::string bytes = ReadFile(package);  // with the checksums in the list at its end
    WriteFile(package, bytes.replace(bytes.find("PK\1\2") + 16, 4, "none"));
    EXPECT_FALSE(IsAccepted()) << said;
}

// To tar, an empty block is the end. A flipped bit in compressed data can turn a header into one.
TEST_P(VerifyTest, AZeroedHeaderIsNotTheEndOfThePackage) {
    WritePackage(package, kClient);
    WriteFile(package, ReadFile(package).replace(1024, 512, 512, '\0'));  // the second file's
    EXPECT_EQ(-1, MacService().PrepareUserEnv()) << Log();
}

// In zstd with a checksum, as lumaris-pack makes it. A few bits of the compression have no meaning.
TEST_P(VerifyTest, DamageIsRefusedOrHasNoEffect) {
    WritePackage(root / "tar", kClient);
    ASSERT_EQ(0, std::system(("zstd -q -9 --check <tar >'" + package + "'").c_str()));
    const std::string whole = ReadFile(package);
    for (size_t place = 0; place < whole.size(); place += kLong ? 1 : 5) {
        std::string flipped = whole;
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << place % 8));
        for (const std::string &damaged : {flipped, whole.substr(0, place)}) {
            WriteFile(package, damaged);
            fs::remove_all(app);
            const bool installed = MacService().ExtractPackage() == 0;
            SCOPED_TRACE((damaged == flipped ? "flip at " : "cut at ") + std::to_string(place));
            EXPECT_EQ(installed, IsAccepted()) << said;
            EXPECT_TRUE(!installed || Tree(app) == kClientTree) << Tree(app);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, VerifyTest, testing::Values(false, true), [](const auto &volume) {
    return volume.param ? "WithTheRulesOfAMac" : "Plain";
});

}  // namespace
