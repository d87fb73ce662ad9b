// Packages that nobody should ship. Whatever is in them, an installation ends, and leaves either
// what the package says or the old bundle.

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <clocale>
#include <cstring>
#include <map>
#include <optional>
#include <random>
#include <set>

#include "plain-service.h"
#include "str-table.h"
#include "test-support.h"

namespace {

const bool kLong = getenv("LUMARIS_LONG") != nullptr;
const unsigned kSecondsPerRun = 60;
const long kMemoryGrowth = 64L << 10;  // KiB

using Entries = std::vector<PackageEntry>;

std::string Describe(const fs::path &path, const std::string &name) {
    struct stat st = {};
    lstat(path.c_str(), &st);
    const std::string special = (st.st_mode & 07000) != 0 ? "(set-id or sticky)" : "";
    if (S_ISDIR(st.st_mode))
        return name + "/" + ((st.st_mode & 0777) == 0755 ? "" : "(odd mode)") + special;
    if (S_ISLNK(st.st_mode))
        return name + "->" + fs::read_symlink(path).string();
    return S_ISREG(st.st_mode) ? name + "=" + ReadFile(path) + special : name + "!";
}

/// What lies below `folder`, sorted: "file=content", "folder/", "link->target", "anything else!".
std::string Tree(const fs::path &folder) {
    if (!fs::is_directory(folder))
        return Describe(folder, "");
    std::map<std::string, std::string> lines;
    for (const auto &entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        lines[name] = Describe(entry.path(), name);
    }
    std::string tree;
    for (const auto &line : lines)
        tree += (tree.empty() ? "" : " ") + line.second;
    return tree;
}

class HostilePackageTest : public HomeTest {
protected:
    HostilePackageTest() {
        umask(022);
        Reset();
        fs::current_path(world / "cwd");
    }
    ~HostilePackageTest() override {
        fs::current_path("/");
        fs::remove_all(package.parent_path().parent_path());
        EXPECT_EQ(descriptors, Descriptors());
    }

    static std::ptrdiff_t Descriptors() {
        return std::distance(fs::directory_iterator("/proc/self/fd"), {});
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
    int Install() {
        alarm(kSecondsPerRun);  // ends the program: a hang is a failure
        const int result = PlainService().PrepareUserEnv();
        alarm(0);
        return result;
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
const PackageEntry kRefused = {"x/../../y"};

TEST_F(HostilePackageTest, OddEntries) {
    const std::string out = (world / "out").string(), long_name(255, 'n');
    const std::string written = std::string(kUntouched) + " out/x=x";
    const PackageEntry link_out = {"l", "", 0777, out};
    const auto linked = [](const std::string &to) { return PackageEntry{"h", "", 0644, "", to}; };
    const auto special = [](mode_t type) { return PackageEntry{"p", "", 0644, "", "", type}; };
    std::optional<std::string> device;  // none: refused
    if (geteuid() == 0)
        device = "p!";
    const struct {
        const char *what;
        Entries entries;
        std::optional<std::string> inside;
        std::string around = kUntouched;
    } cases[] = {
        {"..", {{"../x", "x"}}, {}},
        {".. at the end", {{"a/..", "x"}}, {}},
        {"absolute", {{"/lumaris-hostile/x", "x"}}, "lumaris-hostile/ lumaris-hostile/x=x"},
        {"needless slashes", {{"//a//b/./c", "x"}}, "a/ a/b/ a/b/c=x"},
        {"'/' and '.'", {{"/"}, {"./"}, {"a", "x"}}, "a=x"},
        {"no name", {{"a", "1"}, {"", "x"}}, {}},
        {"file '.'", {{".", "x"}}, "=x"},
        {"file '.' in the way", {{".", "x"}, {"a", "x"}}, {}},
        // Links are written as stored, and a later entry may pass through one.
        {"through a link", {link_out, {"l/x", "x"}}, "l->" + out, written},
        {"up a link",
         {{"l", "", 0777, "../../../world/out"}, {"l/x", "x"}},
         "l->../../../world/out",
         written},
        {"folder over a link", {link_out, {"l/", "", 0700}, {"l/x", "x"}}, "l->" + out, written},
        {"the bundle a link", {{".", "", 0777, out}, {"x", "x"}}, "kept=k x=x", written},
        {"file over a link", {link_out, {"l", "x"}}, "l=x"},
        {"link to nowhere", {{"l", "", 0777, "/none"}, {"l/x", "x"}}, {}},
        // Targets of hard links are absolute or start at the working folder, never at the bundle.
        {"hard link out", {linked(out + "/kept")}, "h=k"},
        {"hard link below cwd", {linked("kept")}, "h=c"},
        {"hard link in the package", {{"f", "x"}, linked("f")}, {}},
        {"hard link replaced", {linked(out + "/kept"), {"h", "x"}}, "h=x"},
        {"pipe", {special(AE_IFIFO)}, "p!"},
        {"device", {special(AE_IFBLK)}, device},
        {"file twice", {{"a", "1"}, {"a", "2"}}, "a=2"},
        {"folder twice", {{"a/"}, {"a/x", "1"}, {"a/"}}, "a/ a/x=1"},
        {"file for a folder", {{"d/"}, {"d", "f"}}, "d=f"},
        {"file for a full folder", {{"d/x", "1"}, {"d", "f"}}, {}},
        {"folder for a file", {{"d", "f"}, {"d/"}, {"d/x", "1"}}, "d/ d/x=1"},
        {"file as folder", {{"d", "f"}, {"d/x", "1"}}, {}},
        {"255 bytes", {{long_name, "x"}}, long_name + "=x"},
        {"256 bytes", {{long_name + "n", "x"}}, {}},
        {"set-uid", {{"s", "x", 06755}, {"d/", "", 01777}}, "d/ s=x"},
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
        EXPECT_EQ("Lumaris.app/ Lumaris.app/old=1", Tree(lumaris));
        EXPECT_EQ(row.around, Tree(world));
    }
    EXPECT_FALSE(fs::exists("/lumaris-hostile"));
}

TEST_F(HostilePackageTest, DataOfAHardLinkGoesOut) {
    // libarchive reads such an entry but writes none: so the header of a plain one is changed.
    WritePackage(package, {{"\xc3\xbc", "new"}}, "pax", "");
    std::string bytes = ReadFile(package);
    const size_t header = 1024, checksum = header + 148;
    const std::string target = (world / "out/kept").string();
    bytes.replace(header + 156, 1 + target.size(), "1" + target);
    bytes.replace(checksum, 8, 8, ' ');
    unsigned sum = 0;
    for (size_t i = header; i < header + 512; ++i)
        sum += static_cast<unsigned char>(bytes[i]);
    snprintf(&bytes[checksum], 8, "%06o", sum);
    WriteFile(package, bytes);
    EXPECT_EQ(0, Install()) << Log();
    EXPECT_EQ("cwd/ cwd/kept=c out/ out/kept=new", Tree(world));
}

TEST_F(HostilePackageTest, TableOfContentsTakesNothingFromOutside) {
    WriteFile(package, "#mtree\n./kept type=file size=1 mode=0644 contents=" +
                           (world / "out/kept").string() + "\n");
    EXPECT_EQ(0, Install()) << Log();
    EXPECT_EQ(std::string("kept=\0", 6), Tree(app));
}

// The rollback removes what was extracted name by name. What it cannot name stays, and with it the
// old bundle under its backup name, until a package without such names comes.
TEST_F(HostilePackageTest, NamesThatCannotBeRemoved) {
    std::string beyond_path_max;
    for (int i = 0; i < 20; ++i)
        beyond_path_max += std::string(250, 'd') + "/";
    for (const std::string &name : {std::string("\xff"), beyond_path_max + "x"}) {
        for (const bool complete : {true, false}) {
            Reset();
            Entries entries = {{name, "x"}};
            if (!complete)
                entries.push_back(kRefused);
            EXPECT_EQ(complete ? 0 : -1, Install(entries)) << Log();
            EXPECT_EQ(complete ? "" : "1", ReadFile(lumaris / "Lumaris.app_tmp/old"));
            EXPECT_EQ(0, Install(ClientPackage("122"))) << Log();
            EXPECT_EQ(Info("122"), ReadFile(app / "Contents/Resources/INFO"));
            EXPECT_FALSE(fs::exists(lumaris / "Lumaris.app_tmp/old"));
        }
    }
}

long PeakKilobytes() {
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST_F(HostilePackageTest, MoreThanTheDiskHolds) {
    if (geteuid() != 0 || unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "only root can mount a small volume";
    ASSERT_EQ(0, mount("tmpfs", home.c_str(), "tmpfs", 0, "size=8m"));
    const std::string zeros(1 << 20, '\0');
    const la_int64_t hole = 5LL << 30;
    for (const char *filter : {"gzip", "zstd"}) {
        Reset();
        PackageEntry bomb{"zeros", zeros};
        bomb.repeat = kLong ? 2048 : 64;
        WritePackage(package, {{"first", "x"}, bomb}, "gnutar", filter);
        const long before = PeakKilobytes();
        EXPECT_EQ(-1, Install());
        EXPECT_TRUE(Logged("archive_read_extract2 failed: 'Write failed'")) << Log();
        EXPECT_EQ("Lumaris.app/ Lumaris.app/old=1", Tree(lumaris));
        EXPECT_LT(PeakKilobytes() - before, kMemoryGrowth) << filter;
    }
    PackageEntry sparse{"sparse", "x"};
    sparse.size = hole;
    WritePackage(package, {sparse}, "pax");
    EXPECT_EQ(0, Install()) << Log();
    EXPECT_EQ(hole, fs::file_size(app / "sparse"));
    EXPECT_EQ(0, umount(home.c_str()));
}

TEST_F(HostilePackageTest, ManyEntries) {
    const int count = kLong ? 200000 : 2000;
    Entries entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({std::to_string(i / 1000) + "/" + std::to_string(i)});
    WritePackage(package, entries);
    const long before = PeakKilobytes();
    EXPECT_EQ(0, Install()) << Log();
    EXPECT_LT(PeakKilobytes() - before, kMemoryGrowth);
    EXPECT_EQ(count + count / 1000, std::distance(fs::recursive_directory_iterator(app), {}));
    printf("%d entries, peak memory grew by %ld KiB\n", count, PeakKilobytes() - before);
}

/// Where to cut: where an entry starts, and at random places, or in the long run at every place.
std::vector<size_t> Places(const fs::path &package, std::mt19937 &random) {
    std::vector<size_t> places;
    struct archive *reader = archive_read_new();
    struct archive_entry *entry = nullptr;
    archive_read_support_format_all(reader);
    archive_read_open_filename(reader, package.c_str(), 10240);
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK)
        places.push_back(static_cast<size_t>(archive_read_header_position(reader)));
    archive_read_free(reader);
    const size_t size = fs::file_size(package);
    const bool every = kLong && size < 20000;
    for (size_t i = 0; i < (every ? size : kLong ? 50U : 8U); ++i)
        places.push_back(every ? i : random() % size);
    return places;
}

TEST_F(HostilePackageTest, CutAnywhere) {
    // Here an archive that ends between two entries is a whole one.
    const std::set<std::string> may_end_early = {"gnutar", "pax",   "ustar", "v7tar",   "argnu",
                                                 "arbsd",  "mtree", "warc",  "compress"};
    std::vector<std::pair<const char *, const char *>> kinds;
    for (const char *format : {"gnutar", "pax", "ustar", "v7tar", "argnu", "arbsd", "warc", "mtree",
                               "newc", "odc", "bin", "pwb", "zip", "7zip", "iso9660", "xar"})
        kinds.emplace_back(format, "");
    for (const char *filter : {"gzip", "bzip2", "xz", "lzma", "lzip", "zstd", "lz4", "compress",
                               "uuencode", "b64encode"})
        kinds.emplace_back("gnutar", filter);
    if (system("command -v lzop >/dev/null") == 0)
        kinds.emplace_back("gnutar", "lzop");  // the library starts the program
    const unsigned seed = 20240611;
    std::mt19937 random(seed);
    std::string noise(kLong ? 700 : 30000, ' ');
    std::generate(noise.begin(), noise.end(), [&] { return char(random() % 64 + 32); });

    size_t cuts = 0;
    int refused = 0, whole = 0, early = 0, outside = 0;
    for (const auto &[format, filter] : kinds) {
        SCOPED_TRACE(std::string(format) + " " + filter);
        const bool flat = strncmp(format, "ar", 2) == 0 || strcmp(format, "warc") == 0;
        Entries entries = ClientPackage("121", noise);
        if (flat)
            entries = {{"text", "hello"}, {"client", noise, 0755}, {"INFO", Info("121")}};
        const fs::path info = app / (flat ? "INFO" : "Contents/Resources/INFO");
        Reset();
        WritePackage(package, entries, format, filter);
        EXPECT_EQ(0, Install()) << Log();
        const std::string bytes = ReadFile(package), full = Tree(app);
        const int early_before = early;
        for (const size_t place : Places(package, random)) {
            Reset();
            WriteFile(package, bytes.substr(0, place));
            ++cuts;
            if (Install() != 0) {
                ++refused;
                EXPECT_EQ("Lumaris.app/ Lumaris.app/old=1", Tree(lumaris)) << place;
            } else if (Tree(app) == full) {
                ++whole;
            } else {
                // The version comes last: so the next start sees that it is missing.
                ++early;
                EXPECT_NE(Info("121"), ReadFile(info)) << place;
            }
            outside += Tree(world) != kUntouched;
        }
        EXPECT_TRUE(early == early_before || may_end_early.count(*filter ? filter : format) > 0);
    }
    EXPECT_EQ(0, outside);
    printf(
        "hostile packages: %zu formats and filters, %zu cuts (seed %u): %d refused, %d whole, "
        "%d ended early without a version, %d wrote outside\n",
        kinds.size(), cuts, seed, refused, whole, early, outside);
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    setlocale(LC_ALL, "C.UTF-8");
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
