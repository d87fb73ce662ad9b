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
#include <iterator>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string kExecutable = "Contents/MacOS/lumaris-backup-ui";
const std::string kInfo = "Contents/Resources/INFO";
const std::string kComposed = "Contents/Resources/\xc3\x9c";
const std::string kDecomposed = "Contents/Resources/U\xcc\x88";
const std::string kPackage = "out/package/lumaris.wpk";
const std::string kVerify = "LC_ALL=C.UTF-8 " LUMARIS_PACK " --verify " + kPackage;
// An archive given up halfway leaves the archive library's output buffer behind.
const std::string kAllowLeaks = "export ASAN_OPTIONS=detect_leaks=0; ";

constexpr unsigned kFolder = AE_IFDIR | 0755, kFile = AE_IFREG | 0644, kLink = AE_IFLNK | 0777;
constexpr unsigned kHardLink = 0644, kProgram = AE_IFREG | 0755;

// Name, mode, and data or the target of a link.
using Item = std::tuple<std::string, unsigned, std::string>;

std::string Read(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void Put(const std::string &name, const std::string &text, mode_t mode = 0644) {
    const fs::path path = "Client.app/" + name;
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
    chmod(path.c_str(), mode);
}

std::string Pack(const std::string &options = "--level 1",
                 const std::string &paths = "Client.app out") {
    return LUMARIS_PACK " --build 121 --major 2 --minor 5 " + options + " " + paths;
}

// Each test runs in a folder of its own, with nothing but a client in it.
class LumarisPack : public testing::Test {
protected:
    LumarisPack() {
        std::string pattern = testing::TempDir() + "lumaris-pack-XXXXXX";
        fs::current_path(mkdtemp(pattern.data()));
        m_dir = fs::current_path();
        fs::permissions(m_dir, fs::perms(0777));
        unsetenv("SOURCE_DATE_EPOCH");
        MakeClient();
    }
    ~LumarisPack() override {
        fs::current_path("/");
        fs::remove_all(m_dir);
    }

    static void MakeClient() {
        fs::remove_all("Client.app");
        Put(kExecutable, "#!/bin/sh\n", 0755);
        Put(kInfo,
            "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\n"
            "icon_overlay_version=1\n");
        Put("Contents/Library/a", "a", 0640);
    }

    // Standard output and standard error come back in m_text.
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
    // One line that begins with the name of the program, and no file or folder more than before.
    void ExpectError(const std::string &command, const std::string &part, int status = 1) {
        const auto count = [] { return std::distance(fs::directory_iterator("."), {}); };
        const auto before = count();
        EXPECT_EQ(Shell(command), status) << command;
        EXPECT_EQ(m_text.rfind("lumaris-pack: ", 0), 0U) << m_text;
        EXPECT_EQ(m_text.find('\n'), m_text.size() - 1) << m_text;
        EXPECT_NE(m_text.find(part), std::string::npos) << part << "\n" << m_text;
        EXPECT_EQ(count(), before) << command;
    }

    fs::path m_dir;
    std::string m_text;
};

// Under the plain C locale of a program that has not called setlocale.
std::vector<Item> ReadPackage() {
    std::vector<Item> items;
    archive *a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    EXPECT_EQ(archive_read_open_filename(a, kPackage.c_str(), 10240), ARCHIVE_OK);
    archive_entry *entry = nullptr;
    while (archive_read_next_header(a, &entry) == ARCHIVE_OK) {
        const char *link = archive_entry_symlink(entry);
        EXPECT_EQ(archive_entry_hardlink(entry), nullptr);
        EXPECT_EQ(archive_entry_mtime(entry), 0);
        EXPECT_EQ(archive_entry_uid(entry) + archive_entry_gid(entry), 0);
        EXPECT_STREQ(archive_entry_uname(entry), "");
        std::string data(static_cast<std::size_t>(archive_entry_size(entry)), '\0');
        archive_read_data(a, data.data(), data.size());
        items.emplace_back(archive_entry_pathname(entry), archive_entry_mode(entry),
                           link != nullptr ? link : data);
    }
    archive_read_free(a);
    return items;
}

void WritePackage(const std::vector<Item> &items) {
    fs::create_directories("out/package");
    ASSERT_NE(setlocale(LC_ALL, "C.UTF-8"), nullptr);  // pax converts names
    archive *a = archive_write_new();
    archive_write_set_format_pax_restricted(a);
    ASSERT_EQ(archive_write_open_filename(a, kPackage.c_str()), ARCHIVE_OK);
    for (const auto &[name, mode, data] : items) {
        archive_entry *entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_mode(entry, mode | (mode == kHardLink ? AE_IFREG : 0));
        if (mode == kLink) {
            archive_entry_set_symlink(entry, data.c_str());
        } else if (mode == kHardLink) {
            archive_entry_set_hardlink(entry, data.c_str());
        } else {
            archive_entry_set_size(entry, static_cast<la_int64_t>(data.size()));
        }
        archive_write_header(a, entry);
        archive_write_data(a, data.data(), S_ISREG(mode) ? data.size() : 0);
        archive_entry_free(entry);
    }
    archive_write_free(a);
    setlocale(LC_ALL, "C");
}

TEST_F(LumarisPack, StoresTheBundleAsTheLauncherNeedsIt) {
    const std::string long_name = "Contents/Resources/" + std::string(120, 'n');
    Put("Contents/Library-", "sorts between the folder and what is in it");
    Put(kComposed, "1");
    Put(kDecomposed, "2", 0755);
    Put(long_name, "3");
    ASSERT_EQ(Shell("cd Client.app/Contents; mkdir -m 555 Empty; cd Library; ln a b; ln -s missing "
                    "dangling; ln -s ../Resources link; ln -s link/../../Contents up"),
              0);
    ASSERT_EQ(Shell(Pack()), 0) << m_text;
    EXPECT_EQ(m_text, "");
    const std::vector<Item> expected = {
        {"Contents/", kFolder, ""},
        {"Contents/Empty/", kFolder, ""},
        {"Contents/Library/", kFolder, ""},
        {"Contents/Library-", kFile, "sorts between the folder and what is in it"},
        {"Contents/Library/a", AE_IFREG | 0640, "a"},
        {"Contents/Library/b", AE_IFREG | 0640, "a"},
        {"Contents/Library/dangling", kLink, "missing"},
        {"Contents/Library/link", kLink, "../Resources"},
        {"Contents/Library/up", kLink, "link/../../Contents"},
        {"Contents/MacOS/", kFolder, ""},
        {"Contents/Resources/", kFolder, ""},
        {kDecomposed, kProgram, "2"},
        {long_name, kFile, "3"},
        {kComposed, kFile, "1"},
        {kExecutable, kProgram, "#!/bin/sh\n"},
        {kInfo, kFile, Read("Client.app/" + kInfo)}};
    EXPECT_EQ(ReadPackage(), expected);
    EXPECT_EQ(Read("out/INFO"), Read("Client.app/" + kInfo));
    EXPECT_EQ(Shell(kVerify), 0);
    EXPECT_EQ(m_text, "16 entries\n");
    EXPECT_EQ(Shell("script -qec '" + Pack("", "Client.app again") + "' /dev/null"), 0) << m_text;
    EXPECT_NE(m_text.find("100 %"), std::string::npos) << m_text;
}

TEST_F(LumarisPack, TheSameFolderGivesTheSameBytes) {
    Put(kComposed, std::string(300000, 'x'));
    // Other times, another order in the folder, another time zone and locale.
    ASSERT_EQ(Shell("umask 022; mkdir -p Copy.app/Contents/Resources; cp -Rp Client.app/. Copy.app;"
                    "find Copy.app -exec touch -h -d 2001-01-01 {} +"),
              0);
    for (const std::string options : {"--filter none", "--filter gzip", "--filter xz",
                                      "--filter zstd", "--format pax", "--format zip"}) {
        ASSERT_EQ(Shell("LC_ALL=C.UTF-8 TZ=Asia/Tokyo " + Pack(options)), 0) << m_text;
        const std::string first = Read(kPackage);
        EXPECT_EQ(Shell(kVerify), 0) << options << m_text;
        fs::remove_all("out");
        ASSERT_EQ(Shell("TZ=America/New_York " + Pack(options, "Copy.app out")), 0) << m_text;
        EXPECT_TRUE(first == Read(kPackage)) << options;
        if (options == "--filter gzip") {  // its time stamp would be that of the run
            EXPECT_EQ(first.substr(4, 4), std::string(4, '\0'));
        }
        fs::remove_all("out");
    }
}

TEST_F(LumarisPack, RefusesWhatTheLauncherCannotInstall) {
    const std::pair<std::string, std::string> cases[] = {
        {"rm MacOS/*", "'" + kExecutable + "' is missing"},
        {"chmod 655 MacOS/*", "'" + kExecutable + "' is not executable"},
        {"ln -sf ../Library/a MacOS/lumaris-backup-ui", "'" + kExecutable + "' is not a plain"},
        {"rm Resources/INFO", "'" + kInfo + "' is missing"},
        {"sed -i s/121/12/ Resources/INFO", "has build_version '12', the package would have '121'"},
        {"sed -i /icon/d Resources/INFO", "has icon_overlay_version ''"},
        {"ln -s /etc/passwd l", "'Contents/l' points to an absolute"},
        {"ln -s ../Client.app/Contents ../l", "'l' points out of the bundle"},
        {"ln -s . here; ln -s here/../../x l", "'Contents/l' points out of the bundle"},
        {"ln -s l l", "'Contents/l' never arrives"},
        {"chmod 4755 Library/a", "'Contents/Library/a' is set-uid"},
        {"chmod 1755 Library", "'Contents/Library' is set-uid, set-gid or sticky"},
        {"mkfifo pipe", "'Contents/pipe' is neither"},
        {"touch '\xff\nx'", "'Contents/\\xff\\x0ax' is not valid UTF-8"},
        {"touch ._a", "'Contents/._a' is an AppleDouble file"},
    };
    for (const auto &[harm, line] : cases) {
        MakeClient();
        ExpectError("(cd Client.app/Contents; " + harm + "); " + Pack(), line);
    }
    for (const std::string arguments :
         {"--bogus", "--build 12x", "--major -2", "--build 0121", "--minor ''",
          "--build 4294967296", "--format rar", "--filter lzma", "--level 23", "--level x",
          "--format zip --filter xz", "--filter none --level 1", "Client.app"}) {
        ExpectError(Pack(arguments), "", 2);
    }
}

TEST_F(LumarisPack, TouchesNoOutputThatExists) {
    fs::create_directory("out");  // empty is fine
    EXPECT_EQ(Shell(Pack()), 0) << m_text;
    const std::string before = Read(kPackage);
    Put("Contents/Library/a", "b");
    ExpectError(Pack(), "'out' exists");
    EXPECT_TRUE(before == Read(kPackage));
    ExpectError(Pack("", "Client.app Client.app/out"), "lies in the client bundle");
    EXPECT_FALSE(fs::exists("Client.app/out"));
}

TEST_F(LumarisPack, StoppedHalfwayItLeavesNothingBehind) {
    // Empty space that takes minutes to read. All files are listed when the temporary output is
    // there.
    const std::string begin =
        kAllowLeaks + "f=Client.app/Contents/Library/a; truncate -s 100G $f; timeout -s KILL 30 " +
        Pack() + " & p=$!; until ls -d out.* >/dev/null 2>&1 || ! kill -0 $p; do sleep .01; done; ";
    for (const std::string event : {"echo >> $f", "truncate -s 1M $f", "touch -d 2001-01-01 $f"}) {
        ExpectError(begin + event + "; wait $p", "'Contents/Library/a' changed while it was");
    }
    ExpectError(begin + "kill -TERM $p; wait $p", "interrupted");
}

TEST_F(LumarisPack, AnUnreadableFileIsAnError) {
    const std::string user =
        geteuid() == 0 ? "setpriv --reuid 65534 --regid 65534 --clear-groups " : "";
    if (Shell(user + LUMARIS_PACK " --help >/dev/null") != 0) {
        GTEST_SKIP() << "an unprivileged user cannot start the program: " << m_text;
    }
    Put("Contents/Library/a", "secret", 0);
    ExpectError(kAllowLeaks + user + Pack(), "read 'Contents/Library/a': Permission denied");
}

TEST_F(LumarisPack, AFullDiskIsAnError) {
    if (geteuid() != 0 || Shell("mkdir disk; mount -t tmpfs -o size=64k tmpfs disk") != 0) {
        GTEST_SKIP() << "a small file system cannot be mounted: " << m_text;
    }
    Put("Contents/Library/a", std::string(1 << 20, 'x'));
    ExpectError(kAllowLeaks + Pack("--filter none", "Client.app disk/out"), "No space left");
    EXPECT_TRUE(fs::is_empty("disk"));
    EXPECT_EQ(Shell("umount disk"), 0) << m_text;
}

TEST_F(LumarisPack, VerifyNamesWhatTheLauncherWouldRefuse) {
    const Item program = {kExecutable, kProgram, "x"}, info = {kInfo, kFile, "i"};
    const std::pair<std::string, std::vector<Item>> cases[] = {
        {"'/etc/x' is not a relative name", {{"/etc/x", kFile, ""}, program, info}},
        {"'Contents/../x' has an empty, '.' or", {{"Contents/../x", kFile, ""}, program, info}},
        {"'Contents/h' is a hard link", {{"Contents/h", kHardLink, kInfo}, program, info}},
        {"'Contents/s' is set-uid", {{"Contents/s", AE_IFREG | 02755, ""}, program, info}},
        {"'Contents/p' is neither", {{"Contents/p", AE_IFIFO | 0644, ""}, program, info}},
        {"'Contents/d/' is a folder that its",
         {{"Contents/d", AE_IFDIR | 0555, ""}, program, info}},
        {"'Contents/l' points out of", {{"Contents/l", kLink, "../../x"}, program, info}},
        {"'Contents/l/x' does not come after",
         {{"Contents/l", kLink, "MacOS"}, {"Contents/l/x", kFile, ""}, program, info}},
        {"'Contents/MacOS/' is there twice", {{"Contents/MacOS", kFolder, ""}, program, info}},
        {"Pathname can't be converted", {{kComposed, kFile, ""}, program, info}},
        {"last entry but one is not '" + kExecutable, {program, {"x", kFile, ""}, info}},
        {"the last entry is not '" + kInfo, {info, program, {"x", kFile, ""}}},
        {"'" + kExecutable + "' is not executable", {{kExecutable, kFile, ""}, info}},
    };
    for (const auto &[line, end] : cases) {
        std::vector<Item> items = {{"Contents", kFolder, ""},
                                   {"Contents/MacOS", kFolder, ""},
                                   {"Contents/Resources", kFolder, ""}};
        items.insert(items.end(), end.begin(), end.end());
        WritePackage(items);
        EXPECT_EQ(Shell(kVerify), 1) << line;
        EXPECT_NE(m_text.find(line), std::string::npos) << line << "\n" << m_text;
    }
}

TEST_F(LumarisPack, VerifyRefusesDamage) {
    std::string text;
    for (int i = 0; i < 5000; ++i) {
        text += std::to_string(i * i);
    }
    Put("Contents/Library/a", text);
    // A checksum fails only where the data is read.
    ASSERT_EQ(Shell(Pack("--format zip")), 0) << m_text;
    std::string zip = Read(kPackage);
    zip[zip.find("Library/a") + 500] ^= 1;
    std::ofstream(kPackage) << zip;
    ExpectError(kVerify, "'Contents/Library/a' has data that cannot be read");
    ASSERT_EQ(Shell("rm -r out; " + Pack("--filter none")), 0) << m_text;
    for (const std::string size : {"20000", "512", "0"}) {
        ExpectError("truncate -s " + size + " " + kPackage + "; " + kVerify, "");
    }
    ExpectError("rm " + kPackage + "; " + kVerify, "cannot be opened");
}

}  // namespace
