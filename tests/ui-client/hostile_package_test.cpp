// SPDX-License-Identifier: MIT
// Packages that nobody should ship. Whatever is in them, an installation ends, and leaves either
// what the package says or the old bundle.

#include <QCoreApplication>
#include <clocale>
#include <random>
#include <tuple>

#include "plain-service.h"
#include "str-table.h"
#include "test-support.h"

namespace {

const std::string kRefused = "-1 old=1";

class HostilePackageTest : public HomeTest {
protected:
    ~HostilePackageTest() override { fs::remove_all(package.parent_path().parent_path()); }

    void PutOldBundle() {
        fs::remove_all(lumaris);
        WriteFile(app / "old", "1");
    }
    /// Installs the package; returns the status and what the bundle holds then.
    std::string Install() const {
        alarm(kSecondsPerStep);
        const int status = PlainService().PrepareUserEnv();
        EXPECT_EQ(1, std::distance(fs::directory_iterator(lumaris), {})) << Tree(lumaris);
        return std::to_string(status) + " " + Tree(app);
    }

    const fs::path package =
        Service::GetRootLumarisResourceInstallPath().c_str() + std::string("/package/lumaris.wpk");
};

TEST_F(HostilePackageTest, OddEntries) {
    WritePackage(package, ClientPackage("122"));
    const std::string next = ReadFile(package), out = root / "out", long_name(255, 'n');
    const struct {
        const char *what;
        Entries entries;
        std::string installed = kRefused, outside = "kept=k";
    } cases[] = {
        {"..", {{"a", "1"}, {"../x", "x"}}},
        {"absolute", {{"/none/x", "x"}}, "0 none/ none/x=x"},
        {"'/', '.' and needless slashes", {{"/"}, {"./"}, {"//a//./c", "x"}}, "0 a/ a/c=x"},
        // Links are written as stored, and a later entry may pass through one.
        {"through a link", {{"l", "", 0777, out}, {"l/x", "x"}}, "0 l->" + out, "kept=k x=x"},
        {"the bundle a link", {{".", "", 0777, out}, {"x", "x"}}, "0 kept=k x=x", "kept=k x=x"},
        {"hard link out", {{"h", "", 0644, "", out + "/kept"}}, "0 h=k"},
        {"pipe", {{"p", "", 0644, "", "", AE_IFIFO}}, "0 p!"},
        {"file twice", {{"a", "1"}, {"a", "2"}}, "0 a=2"},
        {"folder for a file", {{"d", "f"}, {"d/"}, {"d/x", "1"}}, "0 d/ d/x=1"},
        {"file as folder", {{"d", "f"}, {"d/x", "1"}}},
        {"256 bytes", {{long_name, "x"}, {long_name + "n", "x"}}},
        {"set-uid", {{"s", "x", 06755}, {"d/", "", 01777}}, "0 d/ s=x:755"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        PutOldBundle();
        fs::remove_all(out);
        WriteFile(out + "/kept", "k");
        WritePackage(package, row.entries);
        EXPECT_EQ(row.installed, Install()) << Log();
        EXPECT_EQ(row.outside, Tree(out));
        // Whatever it was, the next package replaces it, and follows no link while it removes it.
        WriteFile(package, next);
        EXPECT_EQ("0 Contents/", Install().substr(0, 11)) << Log();
        EXPECT_EQ(Info("122"), ReadFile(app / "Contents/Resources/INFO"));
        EXPECT_EQ(row.outside, Tree(out));
    }
    EXPECT_FALSE(Logged("[WARNING]")) << Log();
}

// Entries that libarchive reads and does not write: so the bytes of plain ones are changed.
TEST_F(HostilePackageTest, BrokenEntries) {
    const std::tuple<const char *, std::string, std::string> cases[] = {
        {"zip", "name", std::string(4, '\0')},  // no name at all
        {"pax", "path=", "path-"},              // the library warns and goes on
    };
    for (const auto &[format, from, to] : cases) {
        WritePackage(package, {{"name", "1"}, {"\xc3\xbc", "2"}}, format, "");
        std::string bytes = ReadFile(package);
        for (size_t at = 0; (at = bytes.find(from)) != std::string::npos;) {
            bytes.replace(at, from.size(), to);
        }
        WriteFile(package, bytes);
        PutOldBundle();
        EXPECT_EQ(kRefused, Install()) << format << Log();
    }
}

// Formats that say where they end, and filters that do: a cut is seen wherever it is.
TEST_F(HostilePackageTest, CutAnywhere) {
    std::mt19937 random(20240611);
    std::string noise(3000, ' ');
    std::generate(noise.begin(), noise.end(), [&] { return char(random() % 64 + 32); });
    const std::pair<const char *, const char *> kinds[] = {
        {"newc", ""},     {"7zip", ""},       {"xar", ""},       {"gnutar", "gzip"}, {"pax", "xz"},
        {"pax", "bzip2"}, {"gnutar", "zstd"}, {"gnutar", "lz4"}, {"pax", "lzip"}};
    for (const auto &[format, filter] : kinds) {
        WritePackage(package, ClientPackage("121", noise), format, filter);
        const std::string bytes = ReadFile(package), whole = Install();
        EXPECT_EQ("0 Contents/", whole.substr(0, 11)) << Log();
        for (size_t end = 0; end < bytes.size(); end += 256) {
            PutOldBundle();
            WriteFile(package, bytes.substr(0, end));
            const std::string after = Install();
            EXPECT_EQ(after[0] == '0' ? whole : kRefused, after) << format << filter << end;
        }
    }
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    setlocale(LC_ALL, "C.UTF-8");
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
