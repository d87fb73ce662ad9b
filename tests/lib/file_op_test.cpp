// SPDX-License-Identifier: MIT
#include "file-op.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <sstream>

#include "../support/test-support.h"

namespace {

using Codes = std::vector<int>;

/// Every test works in a folder of its own, which is the current one.
class FileOpTest : public HomeTest {
protected:
    FileOpTest() : m_work(fs::canonical(root) / "work"), m_before(fs::current_path()) {
        fs::create_directory(m_work);
        fs::permissions(root, fs::perms(0755));
        fs::permissions(m_work, fs::perms(0777));
        fs::current_path(m_work);
    }
    ~FileOpTest() override { fs::current_path(m_before); }
    ustring Full(const char *name) const { return (m_work / name).c_str(); }
    static int Mode(const char *path) { return static_cast<int>(fs::status(path).permissions()); }
    /// What GetFileInfo returns, then existence, type, size, path and name.
    static ustring Info(const ustring &path) {
        FILE_INFO info;
        std::ostringstream text;
        text << GetFileInfo(path, info) << ' ' << info.exists << ' ' << info.type << ' ';
        text << info.size << ' ' << info.path << ' ' << info.name;
        return text.str();
    }

    const fs::path m_work, m_before;
};

TEST_F(FileOpTest, RealPathDecides) {
    for (const char *file : {"d/e\u0301t\u00E9", "both/e\u0301", "\u212Aelvin", "x (deleted)"}) {
        WriteFile(file, "12345");
    }
    for (const char *file : {"both/\u00E9", "bad\xFF"}) {
        WriteFile(file, "");
    }
    fs::create_directory_symlink("d", "link");
    const struct {
        ustring path;
        bool exists, exact;
    } cases[] = {{Full("d/\u00E9t\u00E9"), true, true},
                 {Full("d/e\u0301te\u0301"), true, true},
                 {Full("link"), true, true},
                 {"link/\u00E9t\u00E9", true, false},
                 {"d", true, false},
                 {Full("d/../d/"), true, false},
                 {Full("x (deleted)"), true, true},
                 {"d/\u00E9", false, false},
                 {"bad\xFF", false, false}};
    FILE_INFO info;
    for (const auto &c : cases) {
        EXPECT_EQ(IsFileExist(c.path, false), c.exists) << c.path;
        EXPECT_EQ(FSStat(c.path, info, true), 0) << c.path;
        EXPECT_EQ(info.exists, c.exact) << c.path;
    }
    EXPECT_EQ(FSStat("", info, true), -1);
    const std::pair<const char *, ustring> records[] = {
        {"link", "0 1 3 1 " + Full("link") + " link"},
        {"link/e\u0301t\u00E9", "0 1 1 5 " + Full("d/\u00E9t\u00E9") + " \u00E9t\u00E9"},
        {"both/e\u0301", "0 1 1 5 " + Full("both/\u00E9") + " \u00E9"},  // its own bytes win
        {"both/\u00E9", "0 1 1 0 " + Full("both/\u00E9") + " \u00E9"},
        {"Kelvin", "0 1 1 5 " + Full("Kelvin") + " Kelvin"},
        {"no/such", "0 0 0 0 no/such such"},
        {"Kelvin/x", "-1 0 0 0  "}};
    for (const auto &[path, record] : records) {
        EXPECT_EQ(Info(path), record);
    }
    EXPECT_EQ(GetFileInfo("bad\xFF", info), -1);
    EXPECT_TRUE(Logged("FSPathMakeRef: -43\n"));
    info.path = "no/such";
    EXPECT_EQ(GetFileInfo(info.path, info), 0);
    EXPECT_EQ(info.path, "no/such");
}

/// Deeper than there are descriptors, and longer than a path may be once each letter is composed,
/// since composition turns this one into two.
TEST_F(FileOpTest, DeepFolders) {
    ustring deep("deep");
    for (int i = 0; i < 600; ++i) {
        deep += "/\u0958";
    }
    EXPECT_EQ(FSMKDir(deep, true), 0);
    WriteFile((deep + "/file").c_str(), "");
    struct rlimit files = {};
    getrlimit(RLIMIT_NOFILE, &files);
    const struct rlimit few = {64, files.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
    EXPECT_EQ(FSRemove("deep", false), 0);
    setrlimit(RLIMIT_NOFILE, &files);
    EXPECT_FALSE(fs::exists("deep"));
}

TEST_F(FileOpTest, CopyMovesContentOnly) {
    std::string text(33UL * 1024 * 1024, 'x');  // more than one block
    for (size_t i = 0; i < text.size(); i += 1000) {
        text[i] = static_cast<char>(i / 1000);
    }
    WriteFile("src", text);
    WriteFile("dst", text + "longer");
    WriteFile("e\u0301/f", "");
    fs::permissions("dst", fs::perms(0600));
    ASSERT_EQ(FSCopy("src", "dst", true), 0);
    EXPECT_FALSE(fs::exists("src"));
    EXPECT_EQ(Mode("dst"), 0600);
    for (const auto &[src, dst] : {std::pair("none", "dst"), {"dst", "\u00E9/f/x"}, {".", "new"}}) {
        EXPECT_EQ(FSCopy(src, dst, true), -1) << src;
    }
    EXPECT_TRUE(ReadFile("dst") == text);  // no failure touched it
    EXPECT_TRUE(Logged("CopyFile: open(\u00E9/f/x): Not a directory (20)\n"));
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
    for (const auto &c : cases) {
        EXPECT_EQ(FSRename(c.src, c.dst, c.exact), c.result) << c.src << " -> " << c.dst;
    }
    EXPECT_EQ(ReadFile("dst/f"), "x");
}

TEST_F(FileOpTest, MakeFolders) {
    WriteFile("file", "");
    WriteFile("e\u0301/file", "");
    fs::create_directory_symlink("e\u0301", "link");
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    for (const auto &[path, result] :
         {std::pair("", -1), {"file/x", -1}, {"a/b/", 0}, {"a/b", 0}}) {
        EXPECT_EQ(FSMKDir(path, true), result) << path;
    }
    EXPECT_EQ(FSMKDir("\u00E9/file", true), -1);
    EXPECT_TRUE(Logged("local file system is not directory '\u00E9/file' (1)\n"));
    EXPECT_EQ(FSMKDirFromRoot("a", "a/b"), -1);
    EXPECT_EQ(FSMKDirFromRoot("a/b/c/d", "a"), 0);

    const struct {
        const char *path;
        bool replace;
        int error;
        const char *rest;  // what the walk did not reach
    } cases[] = {{"new/a/c/", false, 0, "/"},    {"link/d", false, 0, ""},
                 {"\u00E9/x/y/", false, 0, "/"}, {"\u00E9/file/x/y", false, ENOTDIR, "/y"},
                 {"file", false, EEXIST, ""},    {"file/x/y", true, 0, ""}};
    for (const auto &c : cases) {
        const ustring path = Full("") + c.path;
        char *stop = nullptr;
        EXPECT_EQ(FSMKDirP(path, &stop, c.replace, 0xFFFF) == 0 ? 0 : errno, c.error) << c.path;
        EXPECT_EQ(stop, path.c_str() + path.length() - std::strlen(c.rest)) << c.path;
    }
    EXPECT_TRUE(Logged("/work/\u00E9/file is symbolic link pointed to folder\n"));
    for (const char *made : {"a/b/c/d", "new/a/c", "link/d", "e\u0301/x/y", "file/x/y"}) {
        EXPECT_TRUE(fs::is_directory(made)) << made;
    }
    const mode_t before = umask(077);
    EXPECT_EQ(FSMKDirP("exact/mode", nullptr, false, 0775), 0);
    EXPECT_EQ(FSMKDirP("exact/mask", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(umask(before), mode_t{077});
    EXPECT_EQ(Mode("exact/mode"), 0775);
    EXPECT_EQ(Mode("exact/mask"), 0700);
}

TEST_F(FileOpTest, RemoveTree) {
    WriteFile("u\u0308/sub/e\u0301", "");
    WriteFile("u\u0308/.hidden/.f", "");
    WriteFile("kept/f", "");
    fs::create_directory_symlink("../kept", "u\u0308/link");
    WriteFile("bad/\xFE", "");
    WriteFile("bad/\xFF", "");
    const std::pair<const char *, int> cases[] = {
        {"\u00FC", 0}, {"\u00FC", 0}, {"", -1}, {"kept/f/x", -1}, {"bad", -3}};
    for (const auto &[path, result] : cases) {
        EXPECT_EQ(FSRemove(path, true), result) << path;
    }
    EXPECT_FALSE(fs::exists("u\u0308"));
    for (const char *kept : {"kept/f", "bad/\xFE", "bad/\xFF"}) {
        EXPECT_TRUE(fs::exists(kept)) << kept;
    }
    const std::string failure = "FSPathMakeRef: -43\n";
    EXPECT_NE(Log().find(failure), std::string::npos);
    EXPECT_EQ(Log().find(failure), Log().rfind(failure)) << "the walk went on";
}

TEST_F(FileOpTest, ListFolder) {
    WriteFile("e\u0301/file", "12345");
    fs::create_symlink("file", "e\u0301/link");
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    std::map<ustring, long long> found;  // ten times the type, and the size
    ASSERT_EQ(FSOpenDir(Full("\u00E9"), DIR_FLAG_STAT, handle), 0);
    EXPECT_EQ(handle.path, Full("\u00E9"));
    for (errno = EIO; FSReadDir(handle, entry) == 1; errno = EIO) {
        found[entry.name] = 10LL * entry.type + (entry.type == 2 ? 0 : entry.size);
    }
    EXPECT_EQ(found, (decltype(found){{".", 20}, {"..", 20}, {"file", 15}, {"link", 34}}));
    EXPECT_EQ(FSReadDir(handle, entry), 0);
    close(dirfd(handle.dir));
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    FSCloseDir(handle);
    EXPECT_EQ(handle.dir, nullptr);
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
        const Codes codes = {GetFileInfo("closed/f", info),  GetFileInfo("locked/f", info),
                             FSRemove("closed", false),      FSRemove("locked", false),
                             FSMKDir("locked/new", true),    FSCopy("/etc/passwd", "copy", true),
                             isFileLocked("locked/f", R_OK), hasFilePermission("locked/f", R_OK)};
        EXPECT_EQ(codes, (Codes{-1, 0, -3, -3, -2, -1, 1, 0}));
        EXPECT_TRUE(fs::exists("copy"));  // only its source could not be removed
    });
    fs::permissions("closed", fs::perms(0700));
    fs::permissions("locked", fs::perms(0700));
}

/// The operations that the launcher does not call.
TEST_F(FileOpTest, OtherOperations) {
    WriteFile("e\u0301/file", "");
    fs::create_symlink("none", "e\u0301/dead");  // an operation that follows it fails
    const ustring dead("\u00E9/dead"), made("\u00E9/made");
    ustring text, real = made, none("none"), temp, path;
    FILE_INFO info;
    const Codes parents = {FSIsParentFolder("/a", "/a"), FSIsParentFolder("/a", "/a/b"),
                           FSIsParentFolder("/a", "/ab"), FSIsParentFolder("/a", "/b/c"),
                           FSIsParentFolder("/a/", "/a/b")};
    EXPECT_EQ(parents, (Codes{1, 1, 0, 0, 0}));
    const Codes links = {FSCreateSymbolicLink("file", made),
                         FSCreateSymbolicLink("file", made),
                         FSReadSymbolicLink(made, text),
                         FSCreateSymbolicLink(std::string(1024, 'x'), "long"),
                         FSReadSymbolicLink("long", none),
                         FSGetRealPath(real),
                         FSGetRealPath(none)};
    EXPECT_EQ(links, (Codes{0, -1, 0, 0, -1, 0, -1}));
    const Codes files = {FSMktemp("none", temp), FSMktemp("\u00E9", temp), GetFileInfo(temp, info),
                         static_cast<int>(info.mode), FSCreateTempPath("none", path)};
    EXPECT_EQ(files, (Codes{-1, 0, 0, 0100644, 0}));
    const Codes attributes = {FSUTime("none", 1, 2),   FSUTime(dead, 1, 2),
                              GetFileInfo(dead, info), static_cast<int>(info.mtime),
                              FSChown("none", 0, 0),   FSChown(dead, geteuid(), getegid())};
    EXPECT_EQ(attributes, (Codes{-1, 0, 0, 2, -1, 0}));
    const Codes volumes = {isMountPoint("."), isMountPoint("none"), IsMSDOS("."), IsMSDOS("none")};
    EXPECT_EQ(volumes, Codes(4, 0));
    EXPECT_FALSE(isFileLocked("none", F_OK));
    EXPECT_TRUE(hasFilePermission("none", F_OK));
    EXPECT_TRUE(FSTimeEqual(5, 5));
    EXPECT_FALSE(FSTimeEqual(5, 6));
    const ustring texts[][2] = {{FSParentPath("a"), "/"},        {FSParentPath("/a"), "/"},
                                {FSParentPath("/a/b/"), "/a/b"}, {FSBaseName("a"), "a"},
                                {FSBaseName("/a/b/"), ""},       {text, "file"},
                                {real, Full("e\u0301/file")},    {none, "none"},
                                {FSParentPath(temp), "\u00E9"},  {FSParentPath(path), "none"}};
    for (const auto &[result, expected] : texts) {
        EXPECT_EQ(result, expected);
    }
    for (const char *message :
         {"'\u00E9/made' (code: 17,", "link 'long' (code: 36,", "mkstemp(none/XXXXXX): No such",
          "FSChown: Failed to chown 'none' (code: 2,", "isMountPoint: Failed to get file system ",
          "IsSupportLargeFile: Failed to get file system info 'none'. No such"}) {
        EXPECT_TRUE(Logged(message)) << message;
    }
    FILE_INFO other[7];
    other[0].exists = true;
    other[1].size = other[2].mtime = other[3].type = 1;
    other[4].path = other[5].name = "x";
    other[6].mode = 1;  // no part of the comparison
    for (const FILE_INFO &record : other) {
        EXPECT_EQ(record == FILE_INFO(), &record == other + 6) << &record - other;
    }
}

}  // namespace
