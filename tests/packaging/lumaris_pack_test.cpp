#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string kExecutable = "Contents/MacOS/lumaris-backup-ui";
const std::string kInfo = "Contents/Resources/INFO";
const std::string kComposed =
    "\xc3\x9c"
    "bersicht";
const std::string kDecomposed =
    "Gru\xcc\x88\xc3\x9f"
    "e";

// An archive given up halfway leaves the archive library's output buffer behind.
const std::string kAllowLeaks = "export ASAN_OPTIONS=detect_leaks=0; ";

struct Item {
    std::string name;
    unsigned mode = AE_IFREG | 0644;
    std::string data = {};  // or the target of a symbolic link
    std::string hard_link = {};
};

std::string Read(const fs::path &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class LumarisPack : public testing::Test {
protected:
    LumarisPack() {
        std::string pattern = testing::TempDir() + "lumaris-pack-XXXXXX";
        m_dir = mkdtemp(pattern.data());
        fs::permissions(m_dir, fs::perms(0755));
        unsetenv("SOURCE_DATE_EPOCH");
        MakeClient();
    }
    ~LumarisPack() override { fs::remove_all(m_dir); }

    void MakeClient() {
        fs::remove_all(App());
        Put(kExecutable, "#!/bin/sh\n", 0755);
        Put(kInfo,
            "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\n"
            "icon_overlay_version=1\n");
        Put("Contents/Library/a", "a", 0640);
    }

    std::string App() const { return m_dir + "/Client.app"; }
    std::string Out() const { return m_dir + "/out"; }
    std::string Package() const { return Out() + "/package/lumaris.wpk"; }

    void Put(const std::string &name, const std::string &text, mode_t mode = 0644) {
        const fs::path path = fs::path(App()) / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
        chmod(path.c_str(), mode);
    }
    void Link(const std::string &target, const std::string &name) {
        fs::create_directories(fs::path(App() + "/" + name).parent_path());
        fs::create_symlink(target, App() + "/" + name);
    }

    // Runs a shell command; standard output and standard error come back in m_text.
    int Shell(const std::string &command) {
        FILE *pipe = popen(("exec 2>&1; " + command).c_str(), "r");
        char block[4096];
        m_text.clear();
        while (const std::size_t n = fread(block, 1, sizeof block, pipe)) {
            m_text.append(block, n);
        }
        const int status = pclose(pipe);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Command(const std::string &options = "--level 1") const {
        return Command(options, App(), Out());
    }
    static std::string Command(const std::string &options, const std::string &app,
                               const std::string &out) {
        return LUMARIS_PACK " --build 121 --major 2 --minor 5 " + options + " " + app + " " + out;
    }
    int Verify() { return Shell("LC_ALL=C.UTF-8 " LUMARIS_PACK " --verify " + Package()); }
    // Nothing but the client and what else the test has put there.
    void ExpectNoOutput(std::ptrdiff_t others = 0) {
        EXPECT_EQ(std::distance(fs::directory_iterator(m_dir), {}), 1 + others);
    }
    // One line that begins with the name of the program.
    void ExpectLine(const std::string &part) {
        EXPECT_EQ(m_text.rfind("lumaris-pack: ", 0), 0U) << m_text;
        EXPECT_EQ(m_text.find('\n'), m_text.size() - 1) << m_text;
        EXPECT_NE(m_text.find(part), std::string::npos) << m_text;
    }

    std::string m_dir;
    std::string m_text;
};

// Under the plain C locale of a program that has not called setlocale.
std::vector<Item> ReadPackage(const std::string &path) {
    std::vector<Item> items;
    archive *a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    EXPECT_EQ(archive_read_open_filename(a, path.c_str(), 10240), ARCHIVE_OK);
    archive_entry *entry = nullptr;
    while (archive_read_next_header(a, &entry) == ARCHIVE_OK) {
        const char *link = archive_entry_symlink(entry);
        EXPECT_EQ(archive_entry_hardlink(entry), nullptr);
        EXPECT_EQ(archive_entry_mtime(entry), 0);
        EXPECT_EQ(archive_entry_uid(entry) + archive_entry_gid(entry), 0);
        EXPECT_EQ(std::string(archive_entry_uname(entry)), "");
        std::string data(static_cast<std::size_t>(archive_entry_size(entry)), '\0');
        archive_read_data(a, data.data(), data.size());
        items.push_back({archive_entry_pathname(entry), archive_entry_mode(entry),
                         link != nullptr ? link : data});
    }
    archive_read_free(a);
    return items;
}

void WritePackage(const std::string &path, const std::vector<Item> &items) {
    fs::create_directories(fs::path(path).parent_path());
    ASSERT_NE(setlocale(LC_ALL, "C.UTF-8"), nullptr);  // pax converts names
    archive *a = archive_write_new();
    archive_write_set_format_pax_restricted(a);
    ASSERT_EQ(archive_write_open_filename(a, path.c_str()), ARCHIVE_OK);
    for (const Item &item : items) {
        archive_entry *entry = archive_entry_new();
        archive_entry_set_pathname(entry, item.name.c_str());
        archive_entry_set_mode(entry, item.mode);
        if (S_ISLNK(item.mode)) {
            archive_entry_set_symlink(entry, item.data.c_str());
        } else if (!item.hard_link.empty()) {
            archive_entry_set_hardlink(entry, item.hard_link.c_str());
        } else if (S_ISREG(item.mode)) {
            archive_entry_set_size(entry, static_cast<la_int64_t>(item.data.size()));
        }
        archive_write_header(a, entry);
        archive_write_data(a, item.data.data(), S_ISREG(item.mode) ? item.data.size() : 0);
        archive_entry_free(entry);
    }
    archive_write_free(a);
    setlocale(LC_ALL, "C");
}

TEST_F(LumarisPack, StoresTheBundleAsTheLauncherNeedsIt) {
    const std::string long_name(120, 'n');
    Put("Contents/Library-", "sorts between the folder and what is in it");
    Put("Contents/Resources/" + kComposed, "1");
    Put("Contents/Resources/" + kDecomposed, "2", 0755);
    Put("Contents/Resources/" + long_name, "3");
    fs::create_directory(App() + "/Contents/Empty");
    chmod((App() + "/Contents/Empty").c_str(), 0555);
    fs::create_hard_link(App() + "/Contents/Library/a", App() + "/Contents/Library/b");
    Link("../Resources/" + kComposed, "Contents/Library/link");
    Link("link/../../../Contents", "Contents/Library/up");
    Link("missing", "Contents/Library/dangling");
    ASSERT_EQ(Shell(Command()), 0) << m_text;
    EXPECT_EQ(m_text, "");

    const std::vector<Item> expected = {
        {"Contents/", AE_IFDIR | 0755, ""},
        {"Contents/Empty/", AE_IFDIR | 0755, ""},
        {"Contents/Library/", AE_IFDIR | 0755, ""},
        {"Contents/Library-", AE_IFREG | 0644, "sorts between the folder and what is in it"},
        {"Contents/Library/a", AE_IFREG | 0640, "a"},
        {"Contents/Library/b", AE_IFREG | 0640, "a"},
        {"Contents/Library/dangling", AE_IFLNK | 0777, "missing"},
        {"Contents/Library/link", AE_IFLNK | 0777, "../Resources/" + kComposed},
        {"Contents/Library/up", AE_IFLNK | 0777, "link/../../../Contents"},
        {"Contents/MacOS/", AE_IFDIR | 0755, ""},
        {"Contents/Resources/", AE_IFDIR | 0755, ""},
        {"Contents/Resources/" + kDecomposed, AE_IFREG | 0755, "2"},
        {"Contents/Resources/" + long_name, AE_IFREG | 0644, "3"},
        {"Contents/Resources/" + kComposed, AE_IFREG | 0644, "1"},
        {kExecutable, AE_IFREG | 0755, "#!/bin/sh\n"},
        {kInfo, AE_IFREG | 0644, Read(App() + "/" + kInfo)}};
    const std::vector<Item> items = ReadPackage(Package());
    ASSERT_EQ(items.size(), expected.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i].name, expected[i].name);
        EXPECT_EQ(items[i].mode, expected[i].mode) << items[i].name;
        EXPECT_EQ(items[i].data, expected[i].data) << items[i].name;
    }
    EXPECT_EQ(Read(Out() + "/INFO"), Read(App() + "/" + kInfo));
    EXPECT_EQ(Verify(), 0);
    EXPECT_EQ(m_text, "16 entries\n");

    fs::remove_all(Out());
    ASSERT_EQ(Shell("script -qec '" + Command() + "' /dev/null"), 0) << m_text;
    EXPECT_NE(m_text.find("100 %"), std::string::npos) << m_text;
}

TEST_F(LumarisPack, TheSameFolderGivesTheSameBytes) {
    Put("Contents/Resources/" + kComposed, std::string(300000, 'x'));
    // Other times, another order in the folder, another time zone and locale.
    const std::string copy = m_dir + "/Copy.app";
    ASSERT_EQ(Shell("umask 022; mkdir -p " + copy + "/Contents/Resources && cp -Rp " + App() +
                    "/. " + copy + " && find " + copy + " -exec touch -h -d 2001-01-01 {} +"),
              0)
        << m_text;
    for (const std::string options : {"--filter none", "--filter gzip", "--filter xz",
                                      "--filter zstd", "--format pax", "--format zip"}) {
        ASSERT_EQ(Shell("LC_ALL=C.UTF-8 TZ=Asia/Tokyo " + Command(options)), 0) << m_text;
        const std::string first = Read(Package());
        EXPECT_EQ(Verify(), 0) << options << m_text;
        fs::remove_all(Out());
        ASSERT_EQ(Shell("LC_ALL=C TZ=America/New_York " + Command(options, copy, Out())), 0)
            << m_text;
        EXPECT_TRUE(first == Read(Package())) << options;
        if (options == "--filter gzip") {  // its time stamp would be that of the run
            EXPECT_EQ(first.substr(4, 4), std::string(4, '\0'));
        }
        fs::remove_all(Out());
    }
}

TEST_F(LumarisPack, TwentyThousandFiles) {
    for (int i = 0; i < 20000; ++i) {
        Put("Contents/Resources/" + std::to_string(i % 20) + "/" + std::to_string(i),
            std::to_string(i));
    }
    ASSERT_EQ(Shell(Command()), 0) << m_text;
    ASSERT_EQ(Verify(), 0) << m_text;
    EXPECT_EQ(m_text, "20027 entries\n");  // 24 folders and three files of the client besides
}

TEST_F(LumarisPack, RefusesWhatTheLauncherCannotInstall) {
    const auto mode = [this](const std::string &name, mode_t bits) {
        ASSERT_EQ(chmod((App() + "/" + name).c_str(), bits), 0);
    };
    const auto remove = [this](const std::string &name) { fs::remove(App() + "/" + name); };
    const struct {
        std::string line;
        std::function<void()> harm;
    } cases[] = {
        {"'" + kExecutable + "' is missing", [&] { remove(kExecutable); }},
        {"'" + kExecutable + "' is not executable", [&] { mode(kExecutable, 0655); }},
        {"'" + kExecutable + "' is not a plain file",
         [&] { remove(kExecutable), Link("../Library/a", kExecutable); }},
        {"'" + kInfo + "' is missing", [&] { remove(kInfo); }},
        {"has build_version '12', the package would have '121'",
         [&] { Put(kInfo, "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=12\n"); }},
        {"has icon_overlay_version ''",
         [&] { Put(kInfo, "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\n"); }},
        {"'Contents/l' points to an absolute", [&] { Link("/etc/passwd", "Contents/l"); }},
        {"'l' points out of the bundle", [&] { Link("../Client.app/Contents", "l"); }},
        {"'Contents/l' points out of the bundle",
         [&] { Link(".", "Contents/here"), Link("here/../../x", "Contents/l"); }},
        {"'Contents/l' never arrives", [&] { Link("l", "Contents/l"); }},
        {"'Contents/Library/a' is set-uid", [&] { mode("Contents/Library/a", 04755); }},
        {"'Contents/Library' is set-uid, set-gid or sticky",
         [&] { mode("Contents/Library", 01755); }},
        {"'Contents/pipe' is neither",
         [&] { ASSERT_EQ(mkfifo((App() + "/Contents/pipe").c_str(), 0644), 0); }},
        {"'Contents/\\xff\\x0ax' is not valid UTF-8", [&] { Put("Contents/\xff\nx", ""); }},
        {"'Contents/._a' is an AppleDouble file", [&] { Put("Contents/._a", ""); }},
    };
    for (const auto &c : cases) {
        MakeClient();
        c.harm();
        EXPECT_EQ(Shell(Command()), 1) << c.line;
        ExpectLine(c.line);
        ExpectNoOutput();
    }
}

TEST_F(LumarisPack, RefusesWrongUsage) {
    const std::string paths = " " + App() + " " + Out();
    for (const std::string arguments :
         {"", "--bogus", "--build 12x --major 2 --minor 5", "--build 121 --major -2 --minor 5",
          "--build 0121 --major 2 --minor 5", "--build 121 --major 2",
          "--build 4294967296 --major 2 --minor 5"}) {
        EXPECT_EQ(Shell(LUMARIS_PACK " " + arguments + paths), 2) << arguments;
        ExpectLine("");
    }
    for (const std::string &options :
         std::vector<std::string>{"--format rar", "--filter lzma", "--level 23", "--level x",
                                  "--format zip --filter xz", "--filter none --level 1", App()}) {
        EXPECT_EQ(Shell(Command(options)), 2) << options;
        ExpectLine("");
    }
    ExpectNoOutput();
}

TEST_F(LumarisPack, TouchesNoOutputThatExists) {
    fs::create_directory(Out());
    EXPECT_EQ(Shell(Command()), 0) << m_text;
    const std::string before = Read(Package());
    Put("Contents/Library/a", "b");
    EXPECT_EQ(Shell(Command()), 1);
    ExpectLine("/out' exists");
    EXPECT_TRUE(before == Read(Package()));
    ExpectNoOutput(1);
}

TEST_F(LumarisPack, StoppedWhileReadingItLeavesNothingBehind) {
    // Empty space that takes minutes to read. All files are listed when the temporary output is
    // there.
    const std::string file = App() + "/Contents/Library/a";
    const std::string begin = kAllowLeaks + "truncate -s 100G " + file + "; timeout -s KILL 30 " +
                              Command() + " & p=$!; until ls -d " + Out() +
                              ".* >/dev/null 2>&1 || ! kill -0 $p; do sleep 0.01; done; ";
    const std::string changed = "'Contents/Library/a' changed while it was packed";
    const std::pair<std::string, std::string> cases[] = {
        {"echo >> " + file, changed},
        {"truncate -s 1M " + file, changed},
        {"touch -d 2001-01-01 " + file, changed},
        {"kill -TERM $p", "interrupted"},
    };
    for (const auto &[event, line] : cases) {
        EXPECT_EQ(Shell(begin + event + "; wait $p"), 1);
        ExpectLine(line);
        ExpectNoOutput();
    }
}

TEST_F(LumarisPack, AnUnreadableFileIsAnError) {
    const std::string user =
        geteuid() == 0 ? "setpriv --reuid 65534 --regid 65534 --clear-groups " : "";
    chmod(m_dir.c_str(), 0777);
    if (Shell(user + LUMARIS_PACK " --help >/dev/null") != 0) {
        GTEST_SKIP() << "an unprivileged user cannot start the program: " << m_text;
    }
    Put("Contents/Library/a", "secret", 0);
    EXPECT_EQ(Shell(kAllowLeaks + user + Command()), 1);
    ExpectLine("cannot read 'Contents/Library/a': Permission denied");
    ExpectNoOutput();
}

TEST_F(LumarisPack, AFullDiskIsAnError) {
    fs::create_directory(m_dir + "/disk");
    if (geteuid() != 0 || Shell("mount -t tmpfs -o size=64k tmpfs " + m_dir + "/disk") != 0) {
        GTEST_SKIP() << "a small file system cannot be mounted: " << m_text;
    }
    Put("Contents/Library/a", std::string(1 << 20, 'x'));
    EXPECT_EQ(Shell(kAllowLeaks + Command("--filter none", App(), m_dir + "/disk/out")), 1);
    ExpectLine("No space left on device");
    EXPECT_TRUE(fs::is_empty(m_dir + "/disk"));
    EXPECT_EQ(Shell("umount " + m_dir + "/disk"), 0) << m_text;
}

TEST_F(LumarisPack, VerifyNamesWhatTheLauncherWouldRefuse) {
    const std::vector<Item> head = {{"Contents", AE_IFDIR | 0755, ""},
                                    {"Contents/MacOS", AE_IFDIR | 0755, ""},
                                    {"Contents/Resources", AE_IFDIR | 0755, ""}};
    const std::vector<Item> tail = {{kExecutable, AE_IFREG | 0755, "x"},
                                    {kInfo, AE_IFREG | 0644, "i"}};
    const struct {
        std::string line;
        std::vector<Item> items;
    } cases[] = {
        {"'/etc/x' is not a relative name", {{"/etc/x"}}},
        {"'Contents/../x' has an empty, '.' or '..' part", {{"Contents/../x"}}},
        {"'Contents/h' is a hard link", {{"Contents/h", AE_IFREG | 0644, "", kInfo}}},
        {"'Contents/s' is set-uid", {{"Contents/s", AE_IFREG | 02755, ""}}},
        {"'Contents/p' is neither", {{"Contents/p", AE_IFIFO | 0644, ""}}},
        {"'Contents/d/' is a folder that its owner", {{"Contents/d", AE_IFDIR | 0555, ""}}},
        {"'Contents/l' points out of the bundle", {{"Contents/l", AE_IFLNK | 0777, "../../x"}}},
        {"'Contents/l/x' does not come after",
         {{"Contents/l", AE_IFLNK | 0777, "MacOS"}, {"Contents/l/x"}}},
        {"'Contents/a' is there twice", {{"Contents/a"}, {"Contents/a"}}},
        {"Pathname can't be converted", {{"Contents/" + kComposed}}},
    };
    for (const auto &c : cases) {
        std::vector<Item> items = head;
        items.insert(items.end(), c.items.begin(), c.items.end());
        items.insert(items.end(), tail.begin(), tail.end());
        WritePackage(Package(), items);
        EXPECT_EQ(Verify(), 1) << c.line;
        ExpectLine(c.line);
    }
    WritePackage(Package(), {head[0], head[1], head[2], tail[1], tail[0]});
    EXPECT_EQ(Verify(), 1);
    EXPECT_NE(m_text.find("the last entry is not '" + kInfo + "'"), std::string::npos) << m_text;
    WritePackage(Package(), {head[0], head[1], head[2], {kExecutable}, tail[1]});
    EXPECT_EQ(Verify(), 1);
    ExpectLine("'" + kExecutable + "' is not executable");
}

TEST_F(LumarisPack, VerifyRefusesDamage) {
    Put("Contents/Library/a", std::string(100000, 'x'));
    ASSERT_EQ(Shell(Command("--filter none")), 0) << m_text;
    const std::string whole = Read(Package());
    for (const std::size_t size : {std::size_t{0}, std::size_t{512}, whole.size() / 2}) {
        fs::resize_file(Package(), 0);
        std::ofstream(Package()) << whole.substr(0, size);
        EXPECT_EQ(Verify(), 1) << size;
    }
    // One flipped bit, wherever it lies: the default is chosen for that.
    fs::remove_all(Out());
    ASSERT_EQ(Shell(Command("")), 0) << m_text;
    const std::string packed = Read(Package());
    for (std::size_t i = packed.size() / 20; i < packed.size(); i += packed.size() / 20) {
        std::string flipped = packed;
        flipped[i] ^= 1;
        std::ofstream(Package()) << flipped;
        EXPECT_EQ(Verify(), 1) << i;
    }
    // A checksum fails only where the data is read.
    fs::remove_all(Out());
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += std::to_string(i * i);
    }
    Put("Contents/Library/a", text);
    ASSERT_EQ(Shell(Command("--format zip")), 0) << m_text;
    std::string zip = Read(Package());
    zip[zip.find("Library/a") + 500] ^= 1;
    std::ofstream(Package()) << zip;
    EXPECT_EQ(Verify(), 1);
    ExpectLine("'Contents/Library/a' has data that cannot be read");
    fs::remove(Package());
    EXPECT_EQ(Verify(), 1);
    EXPECT_NE(m_text.find("cannot be opened"), std::string::npos) << m_text;
}

}  // namespace
