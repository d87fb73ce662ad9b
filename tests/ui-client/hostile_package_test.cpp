// SPDX-License-Identifier: MIT
// Packages that nobody should ship. Whatever is in them, an installation ends, and leaves either
// what the package says or the old bundle.

#include <QCoreApplication>
#include <clocale>
#include <optional>
#include <random>
#include <set>

#include "plain-service.h"
#include "str-table.h"
#include "test-support.h"

namespace {

class HostilePackageTest : public HomeTest {
protected:
    HostilePackageTest() {
        Reset();
        fs::current_path(world / "cwd");
    }
    ~HostilePackageTest() override {
        fs::current_path("/");
        fs::remove_all(package.parent_path().parent_path());
        EXPECT_EQ(descriptors, Descriptors());
    }

    static std::ptrdiff_t Descriptors() {
        return std::distance(fs::directory_iterator("/dev/fd"), {});
    }

    /// The old bundle, and surroundings that nobody may touch.
    void Reset() {
        fs::remove_all(lumaris);
        WriteFile(app / "old", "1");
        fs::remove_all(world / "out");
        WriteFile(world / "out/kept", "k");
        WriteFile(world / "cwd/kept", "c");
        fs::resize_file(root / "log", 0);
    }
    static int Install() {
        alarm(kSecondsPerStep);
        return PlainService().PrepareUserEnv();
    }
    int Install(const Entries &entries) {
        WritePackage(package, entries);
        return Install();
    }

    const fs::path package =
        Service::GetRootLumarisResourceInstallPath().c_str() + std::string("/package/lumaris.wpk");
    const fs::path world = root / "world";
    const std::ptrdiff_t descriptors = Descriptors();
};

const char kUntouched[] = "cwd/ cwd/kept=c out/ out/kept=k";
const char kOld[] = "Lumaris.app/ Lumaris.app/old=1";
const PackageEntry kRefused = {"x/../../y"};

TEST_F(HostilePackageTest, OddEntries) {
    const std::string out = (world / "out").string(), long_name(255, 'n');
    const std::string written = std::string(kUntouched) + " out/x=x";
    const PackageEntry link_out = {"l", "", 0777, out};
    const auto linked = [](const std::string &to) { return PackageEntry{"h", "", 0644, "", to}; };
    const struct {
        const char *what;
        Entries entries;
        std::optional<std::string> inside;  // none: refused
        std::string around = kUntouched;
    } cases[] = {
        {"..", {{"../x", "x"}}, {}},
        {".. at the end", {{"a/..", "x"}}, {}},
        {"absolute", {{"/lumaris-hostile/x", "x"}}, "lumaris-hostile/ lumaris-hostile/x=x"},
        {"'/', '.' and needless slashes", {{"/"}, {"./"}, {"//a//./c", "x"}}, "a/ a/c=x"},
        {"no name", {{"a", "1"}, {"", "x"}}, {}},
        // Links are written as stored, and a later entry may pass through one.
        {"through a link", {link_out, {"l/x", "x"}}, "l->" + out, written},
        {"folder over a link", {link_out, {"l/", "", 0700}, {"l/x", "x"}}, "l->" + out, written},
        {"the bundle a link", {{".", "", 0777, out}, {"x", "x"}}, "kept=k x=x", written},
        {"link to nowhere", {{"l", "", 0777, "/none"}, {"l/x", "x"}}, {}},
        // Targets of hard links are absolute or start at the working folder, never at the bundle.
        {"hard link out", {linked(out + "/kept")}, "h=k"},
        {"hard link in the package", {{"f", "x"}, linked("f")}, {}},
        {"pipe", {{"p", "", 0644, "", "", AE_IFIFO}}, "p!"},
        {"file twice", {{"a", "1"}, {"a", "2"}}, "a=2"},
        {"file for a full folder", {{"d/x", "1"}, {"d", "f"}}, {}},
        {"folder for a file", {{"d", "f"}, {"d/"}, {"d/x", "1"}}, "d/ d/x=1"},
        {"file as folder", {{"d", "f"}, {"d/x", "1"}}, {}},
        {"256 bytes", {{long_name, "x"}, {long_name + "n", "x"}}, {}},
        {"set-uid", {{"s", "x", 06755}, {"d/", "", 01777}}, "d/ s=x:755"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        Reset();
        EXPECT_EQ(row.inside ? 0 : -1, Install(row.entries)) << Log();
        EXPECT_EQ(row.inside.value_or("old=1"), Tree(app));
        EXPECT_EQ(row.around, Tree(world));
        // Whatever it was, the next package replaces it, and follows no link while it removes it.
        EXPECT_EQ(0, Install(ClientPackage("122")));
        EXPECT_EQ(Info("122"), ReadFile(app / "Contents/Resources/INFO"));
        EXPECT_EQ(1, std::distance(fs::directory_iterator(lumaris), {}));
        EXPECT_EQ(row.around, Tree(world));

        Reset();
        Entries entries = row.entries;
        entries.push_back(kRefused);
        EXPECT_EQ(-1, Install(entries));
        EXPECT_EQ(kOld, Tree(lumaris));
        EXPECT_EQ(row.around, Tree(world));
    }
    EXPECT_FALSE(fs::exists("/lumaris-hostile"));
}

// Entries that libarchive reads and does not write: so the bytes of plain ones are changed.
TEST_F(HostilePackageTest, BrokenEntries) {
    const auto install = [this](const char *format, const std::string &from, std::string to) {
        SCOPED_TRACE(from);
        Reset();
        WritePackage(package, {{"name", "1"}, {"\xc3\xbc", "2"}}, format, "");
        std::string bytes = ReadFile(package);
        for (size_t at = 0; (at = bytes.find(from, at)) != std::string::npos; at += to.size()) {
            bytes.replace(at, from.size(), to);
        }
        WriteFile(package, bytes);
        EXPECT_EQ(-1, Install()) << Tree(app);
        EXPECT_EQ(kOld, Tree(lumaris));
    };
    install("zip", "name", std::string(4, '\0'));
    install("newc", "name", std::string(4, '\0'));
    install("pax", "path=", "path-");  // the library warns and goes on
    EXPECT_TRUE(Logged("archive_read_next_header failed: 'Invalid pax")) << Log();
}

// The rollback removes what was extracted name by name. What it cannot name stays, and with it the
// old bundle under its backup name, until a package without such names comes.
TEST_F(HostilePackageTest, NamesThatCannotBeRemoved) {
    std::string beyond_path_max;
    for (int i = 0; i < 20; ++i) {
        beyond_path_max += std::string(250, 'd') + "/";
    }
    for (const std::string &name : {std::string("\xff"), beyond_path_max + "x"}) {
        Reset();
        EXPECT_EQ(-1, Install({{name, "x"}, kRefused})) << Log();
        EXPECT_EQ("1", ReadFile(lumaris / "Lumaris.app_tmp/old"));
        EXPECT_EQ(0, Install(ClientPackage("122"))) << Log();
        EXPECT_EQ(Info("122"), ReadFile(app / "Contents/Resources/INFO"));
    }
}

// Some formats end where their bytes end, and a zip keeps modes and links in the directory at its
// end. In every other one a cut is seen.
TEST_F(HostilePackageTest, CutAnywhere) {
    const std::set<std::string> may_differ = {"gnutar", "pax", "mtree", "zip"};
    const std::pair<const char *, const char *> kinds[] = {
        {"gnutar", ""},    {"pax", ""},         {"mtree", ""},      {"newc", ""},
        {"zip", ""},       {"7zip", ""},        {"xar", ""},        {"gnutar", "gzip"},
        {"gnutar", "xz"},  {"gnutar", "bzip2"}, {"gnutar", "zstd"}, {"gnutar", "lz4"},
        {"gnutar", "lzip"}};
    std::mt19937 random(20240611);
    std::string noise(Long() ? 700 : 3000, ' ');
    std::generate(noise.begin(), noise.end(), [&] { return char(random() % 64 + 32); });
    size_t cuts = 0;
    std::set<std::string> differed;
    for (const auto &[format, filter] : kinds) {
        SCOPED_TRACE(std::string(format) + " " + filter);
        Entries entries = ClientPackage("121", noise);
        entries.insert(entries.begin() + 3, {"Contents/Current", "", 0777, "Resources"});
        Reset();
        WritePackage(package, entries, format, filter);
        EXPECT_EQ(0, Install()) << Log();
        const std::string bytes = ReadFile(package), whole = Tree(app);
        for (size_t end = 0; end < bytes.size(); end += Long() ? 1U : 256U) {
            Reset();
            WriteFile(package, bytes.substr(0, end));
            ++cuts;
            if (Install() != 0) {
                EXPECT_EQ(kOld, Tree(lumaris)) << end;
            } else if (Tree(app) != whole) {
                differed.insert(*filter != '\0' ? filter : format);
            }
            EXPECT_EQ(kUntouched, Tree(world));
        }
    }
    EXPECT_TRUE(
        std::includes(may_differ.begin(), may_differ.end(), differed.begin(), differed.end()))
        << testing::PrintToString(differed);
    EXPECT_EQ(1U, differed.count("zip"));
    printf("hostile packages: %zu formats and filters, %zu cuts\n", std::size(kinds), cuts);
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    setlocale(LC_ALL, "C.UTF-8");
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
