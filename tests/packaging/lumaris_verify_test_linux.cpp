// SPDX-License-Identifier: MIT
// Packages, each judged by lumaris-verify and installed by the launcher, on a plain volume and on
// one with the rules of a Mac.

#include <QCoreApplication>

#include "client-layout.h"
#include "extractor.h"
#include "mac/mac-service.h"
#include "volume-fixture.h"

namespace {

const std::string kExecutable = kClientExecutable;
const std::string kInfo = "Contents/Resources/INFO";
const std::string kPlist = "Contents/Info.plist";
const mode_t kAbsent = AE_IFSOCK;

struct Row {
    const char *what;
    Entries more;
    const char *said;  // a part of the verifier's line
    const char *format = "gnutar";
    // The archive library does not write what it warns of: so bytes are changed.
    std::string from = "", to = "";
};

PackageEntry Link(const std::string &name, const std::string &target) {
    return {name, "", AE_IFLNK, target};
}

/// A whole client with more entries before its last two; in its own folder they take the place of a
/// namesake.
Entries Client(const Entries &more) {
    Entries entries = ClientPackage("121");
    entries.insert(entries.end() - 2, {kPlist, "plist"});
    for (const PackageEntry &entry : more) {
        const auto namesake =
            std::find_if(entries.begin(), entries.end(),
                         [&entry](const PackageEntry &other) { return other.name == entry.name; });
        if (namesake == entries.end() || entry.name.rfind("Contents/", 0) != 0) {
            entries.insert(entries.end() - 2, entry);
        } else if (entry.mode == kAbsent) {
            entries.erase(namesake);
        } else {
            *namesake = entry;
        }
    }
    return entries;
}

/// Whether each entry lies in the bundle, as Tree() would say it.
bool HasAll(const Entries &entries, const fs::path &bundle) {
    const std::string tree = " " + Tree(bundle) + " ";
    for (const PackageEntry &entry : entries) {
        const std::string name = fs::path("/" + entry.name).lexically_normal().relative_path();
        const bool link = !entry.link.empty(),
                   folder = !link && !name.empty() && name.back() == '/';
        std::string line = " " + name + (link ? "->" + entry.link : folder ? "" : "=" + entry.data);
        const mode_t mode = entry.mode | (folder ? 0111 : 0);
        if (!link && mode != (folder ? 0755 : 0644)) {
            char octal[16] = "";
            snprintf(octal, sizeof(octal), ":%o", static_cast<unsigned>(mode));
            line += octal;
        }
        if (!name.empty() && tree.find(line + " ") == tree.npos) {
            return false;
        }
    }
    return true;
}

class PackageTest : public VolumeTest {
protected:
    std::string Judge() const {
        const std::string command = std::string(LUMARIS_VERIFY) + " '" + package + "' >said 2>&1";
        const int status = std::system(command.c_str());
        return std::to_string(WEXITSTATUS(status)) + " " + ReadFile("said");
    }
    /// Whether the package lands in the bundle as stored and nowhere else, satisfies the next start
    /// and gives way to the next package.
    bool Installs(const Entries &entries, const std::string &place) {
        UseHome(place);
        WriteFile(app / "old", "1");
        fs::remove_all("out");
        WriteFile("out/kept", "k");
        MacService service;
        const int status = service.PrepareUserEnv();
        EXPECT_TRUE(status == 0 || Tree(app) == "old=1") << Tree(app) << Log();
        service.PreUpgrade();
        const bool as_stored = HasAll(entries, app) && !service.IsNeedUpgrade();
        const std::string bytes = ReadFile(package);
        WritePackage(package, Client({}));
        const bool replaced = service.PrepareUserEnv() == 0 && HasAll(Client({}), app) &&
                              std::distance(fs::directory_iterator(lumaris), {}) == 1;
        EXPECT_TRUE(status == 0 || replaced) << Log();
        WriteFile(package, bytes);
        std::system(("chmod -R u+rwx " + home.string()).c_str());  // so that it can be removed
        return status == 0 && as_stored && Tree("out") == "kept=k" && replaced;
    }

    /// `accepted` by the verifier, and `installed` by the launcher.
    void Expect(bool accepted, bool installed, const Row &row) {
        const Entries entries = Client(row.more);
        WritePackage(package, entries, ARCHIVE_FILTER_NONE, row.format);
        std::string bytes = ReadFile(package);
        WriteFile(package, bytes.replace(bytes.find(row.from), row.from.size(), row.to));
        const std::string said = Judge(), home_name = "/" + std::to_string(++homes);
        EXPECT_EQ(accepted ? '0' : '1', said[0]) << row.what << ": " << said;
        EXPECT_NE(said.find(row.said), said.npos) << row.what << ": " << said;
        const bool plain = Installs(entries, "plain" + home_name),
                   mac = Installs(entries, "v" + home_name);
        EXPECT_EQ(installed, plain && mac) << row.what << ": " << plain << mac;
    }

    const int locale = setenv("LC_ALL", "C", 1);  // as where a Mac starts the launcher
    int no_arguments = 0, homes = 0;
    const QCoreApplication application{no_arguments, nullptr};
    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    const std::string package = resources / kPackageFile;
};

TEST_F(PackageTest, VerifierAndLauncherAgree) {
    if (!MountMacVolume()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    WriteFile(resources / kInfoFile, Info("121"));
    const std::string out = root / "out", part(240, 'n');
    const PackageEntry no_umlauts = {"Contents/Resources/gr\u00fc\u00df.txt", "", kAbsent};
    const Row good[] = {
        {"pax", {no_umlauts, {part}}, "7 entries, POSIX pax", "pax"},
        {"cpio", {}, "cpio", "newc"},
        {"zip", {no_umlauts}, "ZIP", "zip"},
        {"7-zip, which stores folders last", {no_umlauts, {"empty/"}}, "7-Zip", "7zip"},
        {"needless '/' and '.'", {{"./"}, {"./a/./b//c", "x"}, {"/d", "x"}}, "GNU tar"},
        {"a folder twice", {{"a/b"}, {"a/"}, {"a/"}}, ""},
        {"a link", {{"a/b/"}, Link("a/l", "b/../../Contents")}, ""},
    };
    const Row bad[] = {
        {"no content", {}, "the format is mtree", "mtree"},
        {"a wrong 's' in 'plist'", {no_umlauts}, "data that", "zip", "\xc9,.\x01", "\xcb,.\x01"},
        {"a warning", {no_umlauts, {part}}, "cannot be read", "pax", "path=n", "path=\xfc"},
        {"'..'", {{"a/../x"}}, "has a '..' part"},
        {"no name", {{"a"}, {""}}, "takes the place of the bundle"},
        {"no UTF-8", {{"\xff"}}, "'\\xff' is not valid UTF-8"},
        {"a long part", {{std::string(256, 'n')}}, "longer than 255 bytes"},
        {"late permissions", {{"a/b"}, {"a/", "", 0700}}, "before its permissions"},
        {"a file twice", {{"a", "1"}, {"a", "2"}}, "'a' is there twice"},
        {"file and file", {{"README", "1"}, {"readme", "2"}}, "is one name with 'README'"},
        {"folder and folder", {{"Lib/a"}, {"lib/b"}}, "is one name with 'Lib'"},
        {"folder and file", {{"Lib/"}, {"Lib/a"}, {"lib"}}, "is one name with 'Lib'"},
        {"canonical forms", {{"\u00e9", "1"}, {"e\u0301", "2"}}, "is one name"},
        {"forms and case", {{"\u00c9", "1"}, {"e\u0301", "2"}}, "is one name"},
        {"a link of two cases",
         {{"d/e"}, Link("D/e", "../g"), Link("l", "d/e/../.."), {"L/x"}},
         "is one name with 'd'"},
        {"through a link", {Link("l", out), {"l/x", "x"}}, "is no folder"},
        {"the bundle a link", {Link(".", out), {"x", "x"}}, "takes the place of the bundle"},
        {"a hard link", {{"h", "", 0644, out + "/kept"}}, "is a hard link"},
        {"a pipe", {{"p", "", AE_IFIFO | 0644}}, "is neither"},
        {"set-uid", {{"s", "x", 06755}}, "is set-uid"},
        {"sticky", {{"d/", "", 01777}}, "is set-uid"},
        {"read-only folder", {{"d/", "", 0555}, {"d/x"}}, "is a folder that its owner"},
        {"no executable", {{kExecutable, "", kAbsent}}, "backup-ui' is missing"},
        {"executable of another case",
         {{kExecutable, "", kAbsent}, {"Contents/MacOS/Lumaris-backup-ui", "x", 0755}},
         "backup-ui' is missing"},
        {"no INFO", {{kInfo, "", kAbsent}}, "INFO' is missing"},
        {"INFO empty", {{kInfo}}, "no build number"},
        {"no build", {{kInfo, "[Version]\nmajor_version=2\n"}}, "no build number"},
        {"a word as build", {{kInfo, Info("v121")}}, "no build number"},
        {"INFO unreadable", {{kInfo, Info("121"), 0200}}, "INFO' cannot be read"},
    };
    // The harm shows on a real Mac alone, after an interruption, or when the client is started.
    const Row bad_elsewhere[] = {
        {"a long path", {{part + "/" + part + "/" + part + "/" + part}}, "is longer than a path"},
        {"a file of attributes", {{"._a"}}, "is an AppleDouble"},
        {"a link out", {Link("l", "a/../../x")}, "'l' points out of the bundle"},
        {"an absolute link", {Link("l", out)}, "points to an absolute"},
        {"out by case", {Link("d/e", "../g"), Link("l", "D/E/../..")}, "'l' points out"},
        {"an endless link", {Link("l", "l")}, "never arrives"},
        {"a long link", {Link("l", std::string(1024, 'x'))}, "longer than 1023"},
        {"no program", {{kExecutable, "", kAbsent}, {kExecutable + "/"}}, "not a plain file"},
        {"executable without 'x'", {{kExecutable, "x"}}, "is not executable"},
        {"executable empty", {{kExecutable, "", 0755}}, "backup-ui' is empty"},
        {"no property list", {{kPlist, "", kAbsent}}, "plist' is missing"},
        {"INFO not last", {{kInfo, "", kAbsent}, {kInfo, Info("121")}}, "the last files"},
    };
    for (const Row &row : good) {
        Expect(true, true, row);
    }
    for (const Row &row : bad) {
        Expect(false, false, row);
    }
    for (const Row &row : bad_elsewhere) {
        Expect(false, true, row);
    }
}

// As a flipped bit can make it: an empty block in place of a file's header.
TEST_F(PackageTest, AnEmptyBlockIsNoEnd) {
    WritePackage(package, Client({}));
    const size_t block = 512;
    WriteFile(package, ReadFile(package).replace(3 * block, block, block, '\0'));
    WriteFile(app / "old", "1");
    EXPECT_EQ('1', Judge()[0]);
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ("old=1", Tree(app));
}

// In the form that lumaris-pack makes. A few bits of the compression have no meaning.
TEST_F(PackageTest, DamageIsRefusedOrHasNoEffect) {
    const Entries entries = Client({});
    WritePackage(root / "tar", entries);
    ASSERT_EQ(0, std::system(("zstd -q -9 --check <tar >'" + package + "'").c_str()));
    const std::string whole = ReadFile(package);
    Extractor extractor;
    extractor.m_src_path = package;
    extractor.m_dest_path = "installed";
    for (size_t place = 0; place < whole.size(); place += kLong ? 1 : 5) {
        std::string flipped = whole;
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << place % 8));
        for (const std::string &damaged : {flipped, whole.substr(0, place)}) {
            WriteFile(package, damaged);
            fs::remove_all("installed");
            const bool installed = extractor.Extract() == 0;
            EXPECT_EQ(installed ? '0' : '1', Judge()[0]) << place << " of " << whole.size();
            EXPECT_TRUE(!installed || HasAll(entries, "installed")) << place;
        }
    }
}

}  // namespace
