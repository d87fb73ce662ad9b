#include "file-op.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <map>

#include "../support/test-support.h"

namespace {

/// Every test works in a folder of its own, which is the current one.
class FileOpTest : public HomeTest {
protected:
    FileOpTest() : m_work(fs::canonical(root) / "work"), m_before(fs::current_path()) {
        fs::create_directory(m_work);
        fs::permissions(root, fs::perms(0755));
        fs::permissions(m_work, fs::perms(0777));
        fs::current_path(m_work);
    }
    ~FileOpTest() override {
        umount2((m_work / "volume").c_str(), MNT_DETACH);
        fs::current_path(m_before);
        fs::remove_all(m_other);
    }
    ustring Full(const char *name) const { return (m_work / name).c_str(); }
    static int Mode(const char *path) { return static_cast<int>(fs::status(path).permissions()); }

    const fs::path m_work, m_before;
    fs::path m_other;  // a folder on another volume
};

TEST_F(FileOpTest, RealPathDecides) {
    WriteFile("d/e\u0301t\u00E9", "12345");
    WriteFile("bad\xFF", "");
    fs::create_directory_symlink("d", "link");
    for (const char *path : {"d/\u00E9t\u00E9", "d/e\u0301te\u0301", "link"})
        EXPECT_TRUE(IsFileExist(Full(path), false) && IsFileExist(Full(path), true)) << path;
    for (const char *path : {"d/../d/\u00E9t\u00E9", "link/\u00E9t\u00E9", "d/", "d"})
        EXPECT_TRUE(IsFileExist(path, false) && !IsFileExist(path, true)) << path;
    for (const char *path : {"d/\u00E9", "bad\xFF", ""})
        EXPECT_FALSE(IsFileExist(path, false)) << path;
    FILE_INFO info;
    EXPECT_TRUE(GetFileInfo("link", info) == 0 && info.exists && info.type == 3);
    EXPECT_EQ(GetFileInfo("link/e\u0301t\u00E9", info), 0);
    EXPECT_TRUE(info.path == Full("d/\u00E9t\u00E9") && info.name == "\u00E9t\u00E9");
    EXPECT_TRUE(info.type == 1 && info.size == 5 && (info.mode & 0700) == 0600);
    EXPECT_EQ(GetFileInfo("d/e\u0301t\u00E9/x", info), -1);
    EXPECT_TRUE(GetFileInfo("bad\xFF", info) == -1 && Logged("FSPathMakeRef: -43\n"));
    EXPECT_EQ(GetFileInfo("no/such", info), 0);
    EXPECT_TRUE(!info.exists && info.type == 0 && info.path + info.name == "no/suchsuch");
    EXPECT_EQ(GetFileInfo(info.path, info), 0);  // the record's own path
    EXPECT_EQ(info.path, "no/such");
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_TRUE(FSStat("link/\u00E9t\u00E9", info, false) == 0 && info.exists);
    EXPECT_TRUE(FSStat("link/\u00E9t\u00E9", info, true) == 0 && !info.exists);
}

TEST_F(FileOpTest, DeepFolders) {
    ustring deep("deep");
    for (int i = 0; i < 1000; ++i)
        deep += "/d";
    EXPECT_EQ(FSMKDir(deep, true), 0);
    struct rlimit files = {};
    getrlimit(RLIMIT_NOFILE, &files);
    const struct rlimit few = {64, files.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
    EXPECT_EQ(FSRemove("deep", false), 0);
    setrlimit(RLIMIT_NOFILE, &files);
    EXPECT_FALSE(fs::exists("deep"));
}

/// Composition turns each letter into two: what counts is what the file system stores.
TEST_F(FileOpTest, LongStoredPath) {
    fs::current_path(m_work);
    for (unsigned long length = Full("").length(); length < 2300; length += 61) {
        const std::string level = "\u0958\u0958\u0958\u0958\u0958\u0958\u0958\u0958\u0958\u0958";
        fs::create_directory(level + level);
        fs::current_path(level + level);
    }
    WriteFile("file", "");
    fs::current_path(m_work);
    for (const auto &entry : fs::directory_iterator("."))
        EXPECT_EQ(FSRemove(entry.path().c_str(), false), 0) << Log().substr(Log().size() - 300);
}

TEST_F(FileOpTest, CopyMovesContentOnly) {
    std::string text(33 * 1024 * 1024, 'x');  // more than one block
    for (size_t i = 0; i < text.size(); i += 1000)
        text[i] = static_cast<char>(i / 1000);
    WriteFile("src", text);
    WriteFile("dst", text + "longer");
    fs::permissions("dst", fs::perms(0600));
    ASSERT_EQ(FSCopy("src", "dst", true), 0);
    EXPECT_TRUE(ReadFile("dst") == text && !fs::exists("src") && Mode("dst") == 0600);
    EXPECT_TRUE(FSCopy("none", "dst", false) == -1 && FSCopy("dst", "no/dst", true) == -1);
    EXPECT_TRUE(Logged("CopyFile: open(no/dst): No such file or directory (2)\n"));
    EXPECT_EQ(FSCopy(".", "new", false), -1);
    EXPECT_EQ(fs::file_size("dst"), text.size());  // no failure touched it
}

TEST_F(FileOpTest, FullVolume) {
    if (geteuid() != 0 || unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "only root can mount a small volume";
    fs::create_directory("volume");
    ASSERT_EQ(mount("tmpfs", "volume", "tmpfs", 0, "size=64k"), 0);
    WriteFile("tree/src", std::string(100000, 'x'));
    EXPECT_EQ(FSCopy("tree/src", "volume/dst", true), -2);
    EXPECT_TRUE(Logged("CopyFile: write: No space left on device (28)\n"));
    EXPECT_EQ(fs::file_size("volume/dst"), 65536u);  // what fitted stays
    EXPECT_EQ(FSRename("tree", "volume/tree", false), -3);
    EXPECT_EQ(fs::file_size("tree/src"), 100000u);
}

TEST_F(FileOpTest, RenameCodes) {
    WriteFile("src/e\u0301/f", "x");
    WriteFile("full/f", "");
    const struct {
        ustring src, dst;
        bool exact;
        int result;
    } cases[] = {{"", "dst", false, -1},     {"src", "", false, -1},
                 {"none", "dst", false, -2}, {"src", "dst", true, -2},  // not the real path
                 {"src", "full", false, -3}, {"src", std::string(256, 'n'), false, -100},
                 {"full", "to", false, 0},   {Full("src/\u00E9"), "dst", true, 0}};
    for (const auto &c : cases)
        EXPECT_EQ(FSRename(c.src, c.dst, c.exact), c.result) << c.src << " -> " << c.dst;
    EXPECT_EQ(ReadFile("dst/f"), "x");
}

TEST_F(FileOpTest, RenameAcrossVolumes) {
    struct stat here = {}, there = {};
    if (stat(".", &here) != 0 || stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev)
        GTEST_SKIP() << "/dev/shm is no volume of its own here";
    char name[] = "/dev/shm/file-op-XXXXXX";
    m_other = mkdtemp(name);
    const ustring other = m_other.c_str();
    WriteFile("u\u0308/sub/e\u0301", "one");
    WriteFile("u\u0308/two", "two");
    EXPECT_EQ(FSRename(Full("\u00FC"), other + "/dst", true), 0);
    EXPECT_EQ(ReadFile(m_other / "dst/sub/e\u0301") + ReadFile(m_other / "dst/two"), "onetwo");
    EXPECT_FALSE(fs::exists("u\u0308"));

    WriteFile("onto/\u00E9/f", "four");  // "dst/sub" has the same name, spelt otherwise
    WriteFile(m_other / "onto/e\u0301/f", "old");
    EXPECT_EQ(FSRename("onto", other + "/onto", false), 0);
    EXPECT_EQ(ReadFile(m_other / "onto/e\u0301/f"), "four");

    WriteFile("src/file", "three");
    fs::create_symlink("file", "src/link");
    EXPECT_EQ(FSRename("src/link", other + "/link", false), 0);
    EXPECT_FALSE(fs::is_symlink(m_other / "link"));
    EXPECT_EQ(FSRename("src", other + "/moved", false), -3);  // the link keeps it from being empty
    EXPECT_EQ(ReadFile(m_other / "moved/file"), "three");
    EXPECT_TRUE(fs::is_symlink("src/link") && !fs::exists("src/file"));
    EXPECT_EQ(FSRename("src", other + "/dst/two", false), -3);  // a file is there
}

TEST_F(FileOpTest, MakeFolders) {
    WriteFile("file", "");
    for (const char *path : {"", "file", "file/x"})
        EXPECT_EQ(FSMKDir(path, true), -1) << path;
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    EXPECT_TRUE(FSMKDir("a/b/", true) == 0 && FSMKDir("a/b", false) == 0);
    EXPECT_TRUE(FSMKDirFromRoot("a", "a/b") == -1 && FSMKDirFromRoot("a/b/c/d", "a") == 0);

    fs::create_directory("e\u0301");
    fs::create_directory_symlink("e\u0301", "link");
    const struct {
        const char *path;
        bool replace;
        int error;
        const char *rest;  // what the walk did not reach
    } cases[] = {{"new/a/c/", false, 0, "/"},        {"link/d", false, 0, ""},
                 {"\u00E9/x/y/", false, 0, "/"},     {"file", false, EEXIST, ""},
                 {"file/x/y", false, ENOTDIR, "/y"}, {"file/x/y", true, 0, ""}};
    for (const auto &c : cases) {
        const ustring path = Full("") + c.path;
        char *stop = nullptr;
        EXPECT_EQ(FSMKDirP(path, &stop, c.replace, 0xFFFF), c.error == 0 ? 0 : -1) << c.path;
        EXPECT_TRUE(c.error == 0 || errno == c.error) << c.path << ' ' << errno;
        EXPECT_EQ(stop, path.c_str() + path.length() - std::strlen(c.rest)) << c.path;
    }
    for (const char *made : {"new/a/c", "link/d", "e\u0301/x/y", "file/x/y"})
        EXPECT_TRUE(fs::is_directory(made)) << made;
    const mode_t before = umask(077);
    EXPECT_EQ(FSMKDirP("exact/mode", nullptr, false, 0775), 0);
    EXPECT_EQ(FSMKDirP("exact/mask", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(umask(before), mode_t{077});
    EXPECT_TRUE(Mode("exact/mode") == 0775 && Mode("exact/mask") == 0700);
}

TEST_F(FileOpTest, RemoveTree) {
    WriteFile("u\u0308/sub/e\u0301", "");
    WriteFile("kept/f", "");
    fs::create_directory_symlink("../kept", "u\u0308/link");
    EXPECT_EQ(FSRemove("\u00FC", true), 0);
    EXPECT_TRUE(!fs::exists("u\u0308") && fs::exists("kept/f"));
    EXPECT_EQ(FSRemove("\u00FC", false), 0);
    EXPECT_TRUE(FSRemove("", false) == -1 && FSRemove("kept/f/x", false) == -1);
    WriteFile("bad/\xFE", "");
    WriteFile("bad/\xFF", "");
    EXPECT_EQ(FSRemove("bad", false), -3);
    const std::string failure = "FSPathMakeRef: -43\n";
    EXPECT_TRUE(Logged(failure) && Log().find(failure) == Log().rfind(failure));  // only one
    EXPECT_TRUE(fs::exists("bad/\xFE") && fs::exists("bad/\xFF"));
}

TEST_F(FileOpTest, ListFolder) {
    WriteFile("e\u0301/file", "12345");
    fs::create_symlink("file", "e\u0301/link");
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    std::map<ustring, std::pair<int, int>> found;  // type and size by name
    ASSERT_EQ(FSOpenDir(Full("\u00E9"), DIR_FLAG_STAT, handle), 0);
    while (FSReadDir(handle, entry) == 1)
        found[entry.name] = {entry.type, static_cast<int>(entry.size)};
    EXPECT_TRUE(found.size() == 4 && found["."].first == 2 && found[".."].first == 2);
    EXPECT_EQ(found["file"], std::make_pair(1, 5));
    EXPECT_EQ(found["link"], std::make_pair(3, 4));
    close(dirfd(handle.dir));  // the next read fails
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    FSCloseDir(handle);
    EXPECT_TRUE(handle.dir == nullptr && handle.path.empty());
    EXPECT_EQ(FSOpenDir("none", 0, handle), -1);
}

TEST_F(FileOpTest, Permissions) {
    fs::create_directory("closed");
    WriteFile("locked/f", "");
    fs::permissions("locked/f", fs::perms(0));
    fs::permissions("closed", fs::perms(geteuid() == 0 ? 0700 : 0));
    fs::permissions("locked", fs::perms(0555));
    Apart([] {
        FILE_INFO info;
        EXPECT_TRUE(GetFileInfo("closed/f", info) == -1 && GetFileInfo("locked/f", info) == 0);
        EXPECT_TRUE(FSRemove("closed", false) == -3 && FSRemove("locked", false) == -3);
        EXPECT_EQ(FSMKDir("locked/new", true), -2);
        EXPECT_EQ(FSCopy("/etc/passwd", "copy", true), -1);  // copied, but not removed
        EXPECT_TRUE(fs::exists("closed") && fs::exists("copy"));
    });
    fs::permissions("closed", fs::perms(0700));
    fs::permissions("locked", fs::perms(0700));
}

}  // namespace
