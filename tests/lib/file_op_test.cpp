#include "file-op.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>

#include "file-system-type.h"
#include "logger.h"

namespace fs = std::filesystem;

/// Stands in for the real one, since no network volume can be mounted here.
int FileSystemType(const ustring &path, ustring &name) {
    errno = EIO;
    name = FSBaseName(path);
    return path == "/bad" ? -1 : 0;
}

static size_t g_most_written = std::numeric_limits<size_t>::max();

/// Regular files take a whole block, other destinations need not.
extern "C" ssize_t write(int fd, const void *data, size_t size) {
    return syscall(SYS_write, fd, data, std::min(size, g_most_written));
}

namespace {

void Write(const fs::path &path, const std::string &text) {
    if (path.has_parent_path()) {
        fs::create_directories(path.parent_path());
    }
    std::ofstream(path, std::ios::binary) << text;
}

std::string Read(const fs::path &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

int Mode(const fs::path &path) {
    return static_cast<int>(fs::status(path).permissions());
}

fs::path NewFolder(const fs::path &parent) {
    std::string name = (fs::canonical(parent) / "file-op-XXXXXX").string();
    return mkdtemp(name.data());
}

/// Every test works in a folder of its own, which is the current one.
class FileOpTest : public testing::Test {
protected:
    void SetUp() override {
        m_before = fs::current_path();
        m_root = NewFolder(fs::temp_directory_path());
        Write(m_root / "levels", "file_op_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, (m_root / "log").c_str(), (m_root / "levels").c_str(),
                           1);
        fs::create_directory(m_root / "work");
        fs::permissions(m_root, fs::perms(0755));
        fs::permissions(m_root / "work", fs::perms(0777));
        fs::current_path(m_root / "work");
    }
    void TearDown() override {
        Logger::Destroy();
        umount2((m_root / "work/volume").c_str(), MNT_DETACH);
        fs::current_path(m_before);
        fs::remove_all(m_root);
        fs::remove_all(m_other);
    }
    ustring Full(const char *name) const { return (m_root / "work" / name).c_str(); }
    /// Whether `text` was logged since the last call.
    bool Logged(const std::string &text) {
        const std::string all = Read(m_root / "log");
        const size_t from = std::exchange(m_log_read, all.size());
        return all.find(text, from) != std::string::npos;
    }
    /// Runs checks in a process of their own, as somebody whom permissions and limits hold.
    static void Apart(const std::function<void()> &checks) {
        const pid_t child = fork();
        if (child == 0) {
            EXPECT_TRUE(geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0));
            checks();
            _exit(HasFailure() ? 1 : 0);
        }
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }

    fs::path m_before, m_root, m_other;
    size_t m_log_read = 0;
};

}  // namespace

TEST(FilePathTest, TextOnly) {
    const char *const paths[][3] = {{"a", "/", "a"},       {"/a", "/", "a"}, {"/a/b", "/a", "b"},
                                    {"/a/b/", "/a/b", ""}, {"", "/", ""},    {"a//b", "a/", "b"}};
    for (const auto &[path, parent, base] : paths) {
        EXPECT_EQ(FSParentPath(path), parent) << path;
        EXPECT_EQ(FSBaseName(path), base) << path;
    }
    const char *const beneath[][2] = {{"/a", "/a"},   {"/a", "/a/b"},   {"/", "//a"},
                                      {"/a/", "/a/"}, {"/a/", "/a//b"}, {"", "/a"}};
    for (const auto &[parent, child] : beneath) {
        EXPECT_TRUE(FSIsParentFolder(parent, child)) << parent << ' ' << child;
    }
    const char *const apart[][2] = {{"/a", "/ab"},  {"/a/", "/a/b"}, {"/", "/a"},
                                    {"/a/b", "/a"}, {"/x", "/a/b"},  {"/a", "/a0"}};
    for (const auto &[parent, child] : apart) {
        EXPECT_FALSE(FSIsParentFolder(parent, child)) << parent << ' ' << child;
    }
}

TEST_F(FileOpTest, InfoOfEveryKind) {
    Write("file", "12345");
    fs::create_symlink("nowhere", "link");
    ASSERT_EQ(mkfifo("fifo", 0600), 0);
    const std::map<const char *, int> kinds = {
        {"file", 1}, {".", 2}, {"link", 3}, {"/dev/null", 5}, {"fifo", 6}};
    FILE_INFO info;
    for (const auto &[path, type] : kinds) {
        struct stat st;
        ASSERT_EQ(lstat(path, &st), 0);
        ASSERT_EQ(GetFileInfo(path, info), 0) << path;
        EXPECT_TRUE(info.exists && info.type == type) << path << ' ' << info.type;
        EXPECT_TRUE(info.mtime == st.st_mtime && info.size == st.st_size) << path;
        EXPECT_TRUE(info.mode == st.st_mode && info.uid == st.st_uid) << path;
    }
    ASSERT_EQ(GetFileInfo("file", info), 0);
    FILE_INFO same = info, other = info;
    same.uid = same.gid = same.mode = 99;
    other.mtime++;
    EXPECT_TRUE(info == same && info != other);
    EXPECT_EQ(GetFileInfo("file/x", info), -1);
    EXPECT_TRUE(info == same);
    EXPECT_EQ(GetFileInfo("no/such", info), 0);
    EXPECT_TRUE(!info.exists && info.type == 0 && info.mode == 0 && info.mtime == 0);
    EXPECT_EQ(info.path + info.name, "no/suchsuch");
}

TEST_F(FileOpTest, RealPathDecides) {
    Write("d/e\u0301t\u00E9", "");
    Write("bad\xFF", "");
    fs::create_directory_symlink("d", "link");
    for (const char *path : {"d/\u00E9t\u00E9", "d/e\u0301te\u0301", "link"}) {
        EXPECT_TRUE(IsFileExist(Full(path), false) && IsFileExist(Full(path), true)) << path;
    }
    for (const char *path : {"d/../d/\u00E9t\u00E9", "link/\u00E9t\u00E9", "d/", "d"}) {
        EXPECT_TRUE(IsFileExist(path, false) && !IsFileExist(path, true)) << path;
    }
    for (const char *path : {"d/\u00E9", "bad\xFF", ""}) {
        EXPECT_FALSE(IsFileExist(path, false)) << path;
    }
    FILE_INFO info;
    EXPECT_EQ(GetFileInfo("link/e\u0301t\u00E9", info), 0);
    EXPECT_EQ(info.path, Full("d/\u00E9t\u00E9"));
    EXPECT_EQ(info.name, "\u00E9t\u00E9");
    EXPECT_EQ(GetFileInfo("bad\xFF", info), -1);
    EXPECT_TRUE(Logged("FSPathMakeRef: -43\n"));
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_EQ(FSStat("link/\u00E9t\u00E9", info, true), 0);
    EXPECT_FALSE(info.exists);
    fs::create_symlink("link/e\u0301t\u00E9", "leaf");
    ustring path("leaf"), none("none");
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_EQ(path, Full("d/e\u0301t\u00E9"));
    EXPECT_EQ(FSGetRealPath(none), -1);
    EXPECT_EQ(none, "none");
}

TEST_F(FileOpTest, DeepFolders) {
    ustring deep("deep");
    for (int i = 0; i < 1000; ++i) {
        deep += "/d";
    }
    EXPECT_EQ(FSMKDir(deep, true), 0);
    struct rlimit files = {};
    getrlimit(RLIMIT_NOFILE, &files);
    const struct rlimit few = {64, files.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
    EXPECT_EQ(FSRemove("deep", false), 0);
    setrlimit(RLIMIT_NOFILE, &files);
    EXPECT_FALSE(fs::exists("deep"));

    for (int i = 0; i < 20; ++i) {  // deeper than a path can tell
        const std::string name(250, 'n');
        ASSERT_TRUE(mkdir(name.c_str(), 0700) == 0 && chdir(name.c_str()) == 0);
    }
    FILE_INFO info;
    ustring path(".");
    EXPECT_EQ(GetFileInfo(path, info), -1);
    EXPECT_TRUE(Logged("FSPathMakeRef: -2110\n"));
    EXPECT_EQ(FSGetRealPath(path), -1);
    EXPECT_TRUE(Logged("[ERROR] file-op(") && path == ".");
}

TEST_F(FileOpTest, CopyMovesContentOnly) {
    std::string text(33 * 1024 * 1024, 'x');  // more than one block
    for (size_t i = 0; i < text.size(); i += 1000) {
        text[i] = static_cast<char>(i / 1000);
    }
    Write("src", text);
    Write("dst", text + "longer");
    fs::permissions("dst", fs::perms(0600));
    g_most_written = 7000000;
    ASSERT_EQ(FSCopy("src", "dst", true), 0);
    g_most_written = std::numeric_limits<size_t>::max();
    EXPECT_TRUE(Read("dst") == text);
    EXPECT_FALSE(fs::exists("src"));
    EXPECT_EQ(Mode("dst"), 0600);

    EXPECT_EQ(FSCopy("none", "dst", false), -1);
    EXPECT_TRUE(Logged("CopyFile: open(none): No such file or directory (2)\n"));
    EXPECT_EQ(FSCopy("dst", "no/dst", true), -1);
    EXPECT_TRUE(Logged("CopyFile: open(no/dst): No such file or directory (2)\n"));
    EXPECT_EQ(FSCopy(".", "new", false), -1);
    EXPECT_TRUE(Logged("CopyFile: read: Is a directory (21)\n"));
    EXPECT_EQ(FSCopy("dst", "/dev/full", true), -2);
    EXPECT_TRUE(Logged("CopyFile: write: No space left on device (28)\n"));
    EXPECT_EQ(fs::file_size("dst"), text.size());  // no failure touched it
    Apart([] {
        signal(SIGXFSZ, SIG_IGN);
        Logger::Destroy();
        const struct rlimit limit = {4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(FSCopy("/bin/sh", "part", false), -1);
    });
    EXPECT_EQ(fs::file_size("part"), 4096u);
}

TEST_F(FileOpTest, FullVolume) {
    if (geteuid() != 0 || unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        GTEST_SKIP() << "only root can mount a small volume";
    }
    fs::create_directory("volume");
    ASSERT_EQ(mount("tmpfs", "volume", "tmpfs", 0, "size=64k"), 0);
    Write("tree/src", std::string(100000, 'x'));
    EXPECT_EQ(FSCopy("tree/src", "volume/dst", true), -2);
    EXPECT_EQ(fs::file_size("volume/dst"), 65536u);  // what fitted stays
    EXPECT_EQ(FSRename("tree", "volume/tree", false), -3);
    EXPECT_EQ(fs::file_size("tree/src"), 100000u);
}

TEST_F(FileOpTest, RenameCodes) {
    Write("src/e\u0301/f", "x");
    Write("full/f", "");
    const std::string long_name(256, 'n');
    const struct {
        ustring src, dst;
        bool exact;
        int result;
    } cases[] = {{"", "dst", false, -1},          {"src", "", false, -1},
                 {"none", "dst", false, -2},      {"src", "dst", true, -2},  // not the real path
                 {"src", "full", false, -3},      {"src", "none/dst", false, -3},
                 {"src", long_name, false, -100}, {Full("src/\u00E9"), "dst", true, 0}};
    for (const auto &c : cases) {
        EXPECT_EQ(FSRename(c.src, c.dst, c.exact), c.result) << c.src << " -> " << c.dst;
    }
    EXPECT_EQ(Read("dst/f"), "x");
}

TEST_F(FileOpTest, RenameAcrossVolumes) {
    struct stat here = {}, there = {};
    if (stat(".", &here) != 0 || stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev) {
        GTEST_SKIP() << "/dev/shm is no volume of its own here";
    }
    m_other = NewFolder("/dev/shm");
    const ustring other = m_other.c_str();
    Write("u\u0308/sub/e\u0301", "one");
    Write("u\u0308/two", "two");
    ASSERT_EQ(FSRename(Full("\u00FC"), other + "/dst", true), 0);
    EXPECT_EQ(Read(m_other / "dst/sub/e\u0301") + Read(m_other / "dst/two"), "onetwo");
    EXPECT_FALSE(fs::exists("u\u0308"));

    Write("src/file", "three");
    fs::create_symlink("file", "src/link");
    EXPECT_EQ(FSRename("src/link", other + "/link", false), 0);
    EXPECT_FALSE(fs::is_symlink(m_other / "link"));
    EXPECT_EQ(FSRename("src", other + "/moved", false), -3);  // the link keeps it from being empty
    EXPECT_EQ(Read(m_other / "moved/file"), "three");
    EXPECT_TRUE(fs::is_symlink("src/link") && !fs::exists("src/file"));

    Write("tree/f", "");
    EXPECT_EQ(FSRename("tree", other + "/dst/two", false), -3);  // a file is there
    EXPECT_EQ(FSRename("tree", other + "/" + ustring(std::string(4096, 'n')), false), -100);
    EXPECT_TRUE(fs::exists("tree/f"));
}

TEST_F(FileOpTest, MakeFolderCodes) {
    Write("file", "");
    EXPECT_EQ(FSMKDir("", true), -1);
    EXPECT_EQ(FSMKDir("file", true), -1);
    EXPECT_TRUE(Logged("Create a folder but local file system is not directory 'file' (1)\n"));
    EXPECT_EQ(FSMKDir("file/x", true), -1);
    EXPECT_TRUE(Logged("FSMKDir: Failed to to file info 'file/x'\n"));
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    EXPECT_TRUE(Logged("path = a/b errno : No such file or directory\n"));
    EXPECT_EQ(FSMKDir("a/b/", true), 0);
    EXPECT_EQ(FSMKDir("a/b", false), 0);

    EXPECT_EQ(FSMKDirFromRoot("a", "a/b"), -1);
    EXPECT_TRUE(Logged("Giving a root 'a/b' whose length is larger then target's 'a'.\n"));
    EXPECT_EQ(FSMKDirFromRoot("ab/c", "a"), -1);
    EXPECT_TRUE(Logged("root 'a' is not a parent folder of target 'ab/c'\n"));
    EXPECT_EQ(FSMKDirFromRoot("a/b/c/d", "a"), 0);
    EXPECT_TRUE(Logged("FSMKDirFromRoot: create /b/c/d\n"));
    EXPECT_EQ(FSMKDirFromRoot("none", "none"), 0);
    EXPECT_TRUE(fs::is_directory("a/b/c/d") && !fs::exists("none"));
}

TEST_F(FileOpTest, MakeFolderWalk) {
    Write("file", "");
    fs::create_directory("e\u0301");
    fs::create_directory_symlink("e\u0301", "link");
    const struct {
        const char *path;
        bool replace;
        int error;
        const char *rest;  // what the walk did not reach
    } cases[] = {{"new/a/b", false, 0, ""},      {"new/a/c/", false, 0, "/"},
                 {"link", false, 0, ""},         {"link/d", false, 0, ""},
                 {"\u00E9/x/y/", false, 0, "/"}, {"file", false, EEXIST, ""},
                 {"file/", false, EEXIST, "/"},  {"file/x/y", false, ENOTDIR, "/y"},
                 {"file/x/y", true, 0, ""}};
    for (const auto &c : cases) {
        const ustring path = Full("") + c.path;
        char *stop = nullptr;
        EXPECT_EQ(FSMKDirP(path, &stop, c.replace, 0xFFFF), c.error == 0 ? 0 : -1) << c.path;
        EXPECT_TRUE(c.error == 0 || errno == c.error) << c.path << ' ' << errno;
        EXPECT_EQ(stop, path.c_str() + path.length() - std::strlen(c.rest)) << c.path;
    }
    for (const char *made : {"new/a/b", "new/a/c", "link/d", "e\u0301/x/y", "file/x/y"}) {
        EXPECT_TRUE(fs::is_directory(made)) << made;
    }
    const mode_t before = umask(077);
    EXPECT_EQ(FSMKDirP("exact/mode", nullptr, false, 0775), 0);
    EXPECT_EQ(FSMKDirP("exact/mask", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(umask(before), mode_t{077});
    EXPECT_TRUE(Mode("exact/mode") == 0775 && Mode("exact/mask") == 0700);
}

TEST_F(FileOpTest, RemoveTree) {
    Write("u\u0308/sub/e\u0301", "");
    Write("kept/f", "");
    fs::create_directory_symlink("../kept", "u\u0308/link");
    EXPECT_EQ(FSRemove("\u00FC", true), 0);
    EXPECT_TRUE(!fs::exists("u\u0308") && fs::exists("kept/f"));
    for (const ustring &entry : {Full("\u00FC/link"), Full("\u00FC/sub/\u00E9")}) {
        m_log_read = 0;  // each leaves its trace
        EXPECT_TRUE(Logged("outTargetPath path = [" + std::string(entry.c_str()) + "].\n"));
    }
    EXPECT_EQ(FSRemove("\u00FC", false), 0);
    EXPECT_EQ(FSRemove("", false), -1);
    EXPECT_EQ(FSRemove("kept/f/x", false), -1);
    Write("bad/\xFE", "");
    Write("bad/\xFF", "");
    EXPECT_EQ(FSRemove("bad", false), -3);
    const std::string log = Read(m_root / "log"), failure = "FSPathMakeRef: -43\n";
    EXPECT_NE(log.find(failure), std::string::npos);
    EXPECT_EQ(log.find(failure), log.rfind(failure));  // the first one ends the walk
    EXPECT_TRUE(fs::exists("bad/\xFE") && fs::exists("bad/\xFF"));
}

TEST_F(FileOpTest, ListFolder) {
    Write("e\u0301/file", "12345");
    fs::create_symlink("file", "e\u0301/link");
    const std::map<ustring, int> types = {{".", 2}, {"..", 2}, {"file", 1}, {"link", 3}};
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    for (const int flags : {0, int{DIR_FLAG_STAT}}) {
        std::map<ustring, int> found;
        ASSERT_EQ(FSOpenDir(Full("\u00E9"), flags, handle), 0);
        while (FSReadDir(handle, entry) == 1) {
            found[entry.name] = entry.type;
            const bool filled = flags != 0 && entry.name.length() == 4;
            EXPECT_EQ(entry.size, !filled ? 0 : entry.name == "file" ? 5 : 4) << entry.name;
            EXPECT_EQ(entry.mtime != 0, filled) << entry.name;
        }
        EXPECT_EQ(found, types);
        close(dirfd(handle.dir));  // the next read fails
        EXPECT_EQ(FSReadDir(handle, entry), -1);
        EXPECT_TRUE(Logged("/\u00E9'. Bad file descriptor\n"));
        FSCloseDir(handle);
        EXPECT_TRUE(handle.dir == nullptr && handle.path.empty());
    }
    EXPECT_EQ(FSOpenDir("none", 0, handle), -1);
    EXPECT_TRUE(Logged("FSOpenDir: Failed to open directory 'none'. No such file or directory\n"));
}

TEST_F(FileOpTest, Permissions) {
    fs::create_directory("closed");
    Write("locked/f", "");
    fs::permissions("locked/f", fs::perms(0));
    fs::permissions("closed", fs::perms(geteuid() == 0 ? 0700 : 0));
    fs::permissions("locked", fs::perms(0555));
    Apart([] {
        FILE_INFO info;
        EXPECT_EQ(GetFileInfo("closed/f", info), -1);
        EXPECT_EQ(GetFileInfo("locked/f", info), 0);
        EXPECT_TRUE(isFileLocked("locked/f", R_OK) && !isFileLocked("locked/f", F_OK));
        EXPECT_FALSE(isFileLocked("none", R_OK) || hasFilePermission("locked/f", R_OK));
        EXPECT_TRUE(hasFilePermission("none", R_OK) && hasFilePermission("/", R_OK));
        EXPECT_EQ(FSRemove("closed", false), -3);
        EXPECT_TRUE(fs::exists("closed"));
        EXPECT_EQ(FSRemove("locked", false), -3);
        EXPECT_EQ(FSMKDir("locked/new", true), -2);
        EXPECT_EQ(FSCopy("/etc/passwd", "copy", true), -1);  // copied, but not removed
        EXPECT_TRUE(fs::exists("copy"));
        EXPECT_EQ(FSChown("/etc", 1, 1), -1);
    });
    EXPECT_TRUE(Logged("FSChown: Failed to chown '/etc' (code: 1, msg: Operation not permitted)"));
    fs::permissions("closed", fs::perms(0700));
    fs::permissions("locked", fs::perms(0700));
}

TEST_F(FileOpTest, TemporaryFilesAndLinks) {
    ustring path, text;
    const mode_t before = umask(077);
    EXPECT_EQ(FSMktemp(".", path), 0);
    umask(before);
    EXPECT_TRUE(FSParentPath(path) == "." && path.length() == 8 && Mode(path.c_str()) == 0644);
    EXPECT_EQ(FSMktemp("none", path), -1);
    EXPECT_TRUE(Logged("mkstemp(none/XXXXXX): No such file or directory\n"));
    const std::string slashes(4088, '/');  // what fits the buffer makes a template too
    EXPECT_EQ(FSMktemp("." + slashes + "XXXXXX", path), -1);
    EXPECT_TRUE(Logged("/XXXXXX): File name too long\n"));
    EXPECT_EQ(FSCreateTempPath("/t", path), 0);
    EXPECT_TRUE(FSParentPath(path) == "/t" && path.length() == 11);

    for (const size_t length : {size_t{1023}, size_t{1024}}) {
        EXPECT_EQ(FSCreateSymbolicLink(std::string(length, 't'), std::to_string(length)), 0);
        EXPECT_EQ(FSReadSymbolicLink(std::to_string(length), text), length == 1023 ? 0 : -1);
        EXPECT_EQ(text, std::string(1023, 't'));
    }
    EXPECT_TRUE(Logged("symbolic link '1024' (code: 36, msg: File name too long)\n"));
    EXPECT_EQ(FSCreateSymbolicLink("to", "1023"), -1);
    EXPECT_TRUE(Logged("create symbolic link 'to' -> '1023' (code: 17, msg: File exists)\n"));
    struct stat st;
    EXPECT_TRUE(FSUTime("1023", 11, 22) == 0 && lstat("1023", &st) == 0);
    EXPECT_TRUE(st.st_atime == 11 && st.st_mtime == 22);
    EXPECT_EQ(FSChown("1023", getuid(), getgid()), 0);  // its target does not exist
}

TEST_F(FileOpTest, VolumeTypes) {
    for (const char *path : {"/nfs", "/smbfs", "/afpfs"}) {
        EXPECT_TRUE(isMountPoint(path) && !IsMSDOS(path)) << path;
    }
    for (const char *path : {"/NFS", "/apfs", "/nfs2"}) {
        EXPECT_FALSE(isMountPoint(path) || IsMSDOS(path)) << path;
    }
    EXPECT_TRUE(IsMSDOS("/msdos") && !isMountPoint("/msdos"));
    EXPECT_TRUE(Logged("Detect a MSDOS platform for path '/msdos'.\n"));
    EXPECT_FALSE(isMountPoint("/bad"));
    EXPECT_TRUE(Logged("isMountPoint: Failed to get file system info '/bad'. Input/output error"));
    EXPECT_FALSE(IsMSDOS("/bad"));
    EXPECT_TRUE(Logged("IsSupportLargeFile: Failed to get file system info '/bad'. "));
}
