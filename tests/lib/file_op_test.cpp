// SPDX-License-Identifier: MIT
#include "file-op.h"

#include <cerrno>
#include <csignal>

#include "sync-volume.h"
#include "test-support.h"

namespace {

/// Results of operations, which run from left to right: Results() << FSCopy(...) << FSRename(...)
using Results = std::string;
Results operator<<(const Results &results, const ustring &text) {
    return results + (results.empty() ? "" : " ") + text.c_str();
}
Results operator<<(const Results &results, long code) {
    return results << std::to_string(code).c_str();
}

/// Every test works in a folder of its own, which is the current one, and closes what it opens.
class FileOpTest : public HomeTest {
protected:
    FileOpTest() { fs::current_path(home); }
    ~FileOpTest() override {
        EXPECT_EQ(std::distance(fs::directory_iterator("/dev/fd"), {}), m_descriptors);
    }
    static ustring Full(const char *name) { return (fs::current_path() / name).c_str(); }

    const std::ptrdiff_t m_descriptors = std::distance(fs::directory_iterator("/dev/fd"), {});
};

TEST_F(FileOpTest, FindsAnySpelling) {
    for (const char *file : {"d/e\u0301t\u00E9", "\u212Aelvin", "x (deleted)"}) {
        WriteFile(file, "12345");
    }
    fs::create_directory_symlink("d", "link");
    // What GetFileInfo tells; then whether the path exists, and whether it is the exact one.
    const std::pair<ustring, ustring> cases[] = {
        {Full("d/\u00E9te\u0301"), "0 1 1 5 " + Full("d/\u00E9t\u00E9") + " \u00E9t\u00E9 1 0 1"},
        {"link/e\u0301t\u00E9", "0 1 1 5 " + Full("d/\u00E9t\u00E9") + " \u00E9t\u00E9 1 0 0"},
        {Full("link"), "0 1 3 1 " + Full("link") + " link 1 0 1"},
        {"Kelvin", "0 1 1 5 " + Full("Kelvin") + " Kelvin 1 0 0"},
        {Full("x (deleted)"), "0 1 1 5 " + Full("x (deleted)") + " x (deleted) 1 0 1"},
        {"no/\u00E9", "0 0 0 0 no/\u00E9 \u00E9 0 0 0"},
        {"Kelvin/x", "-1 1 0 0   0 0 0"},
        {"", "0 0 0 0   0 -1 1"}};
    for (const auto &[path, expected] : cases) {
        FILE_INFO info, exact;
        info.exists = exact.exists = true;  // left over from another file
        EXPECT_EQ(Results() << GetFileInfo(path, info) << info.exists << info.type << info.size
                            << info.path << info.name << IsFileExist(path, false)
                            << FSStat(path, exact, true) << exact.exists,
                  expected.c_str());
    }
}

TEST_F(FileOpTest, FindsAFileThatIsReplacedMeanwhile) {
    WriteFile("file", "");
    const pid_t writer = Child([] {
        for (;; fs::rename("new", "file")) {
            WriteFile("new", "");
        }
    });
    int missed = 0;
    for (int i = 0; i < 3000; ++i) {
        missed += !IsFileExist("file", false);
    }
    kill(writer, SIGKILL);
    Finish(writer);
    EXPECT_LE(missed, 3);  // now and then a writer that never pauses wins
}

TEST_F(FileOpTest, CopiesRenamesAndRemoves) {
    for (const char *file :
         {"src", "dst", "e\u0301/f", "full/f", "u\u0308/e\u0301", "u\u0308/.d/.f", "kept/f"}) {
        WriteFile(file, file);
    }
    fs::create_directory_symlink("../kept", "u\u0308/link");
    fs::permissions("dst", fs::perms(0600));
    EXPECT_EQ(Results() << FSCopy("src", "e\u0301/f", false) << FSCopy("src", "\u00E9/f", true)
                        << FSCopy("full/f", "dst", false) << FSCopy("src", "dst", false)
                        << FSCopy("dst", "\u00E9/f/x", true) << FSCopy(".", "void", true),
              "0 0 0 -1 -1 -1");
    EXPECT_EQ(Results() << FSRename("", "x", false) << FSRename("dst", "", false)
                        << FSRename("none", "x", false) << FSRename("dst", "x", true)
                        << FSRename("e\u0301", "full", false)
                        << FSRename("dst", std::string(256, 'n'), false)
                        << FSRename("full", "to", false) << FSRename(Full("\u00E9/f"), "x", true),
              "-1 -1 -2 -2 -3 -100 0 0");
    EXPECT_EQ(Results() << FSRemove("\u00FC", true) << FSRemove("\u00FC", true)
                        << FSRemove("", true) << FSRemove("x/x", true),
              "0 0 -1 -1");
    EXPECT_EQ(Tree("."), "dst=full/f:600 e\u0301/ kept/ kept/f=kept/f to/ to/f=full/f void= x=src");
}

/// The errno code of FSMKDirP, and what its walk did not reach.
ustring MakeAll(const ustring &path, bool replace_files = false, unsigned short mode = 0xFFFF) {
    char *stop = nullptr;
    const int error = FSMKDirP(path, &stop, replace_files, mode) == 0 ? 0 : errno;
    return ustring(std::to_string(error).c_str()) + stop;
}

TEST_F(FileOpTest, MakesFolders) {
    WriteFile("file", "");
    WriteFile("e\u0301/file", "");
    fs::create_directory_symlink("e\u0301", "link");
    EXPECT_EQ(Results() << FSMKDir("", true) << FSMKDir("file/x", true)
                        << FSMKDir("\u00E9/file", true) << FSMKDir("a/b", false)
                        << FSMKDir("a/b/", true) << FSMKDir("a/b", false)
                        << FSMKDirFromRoot("a", "a/b") << FSMKDirFromRoot("axx", "a")
                        << FSMKDirFromRoot("file/x", "file") << FSMKDirFromRoot("a/b/c/d", "a"),
              "-1 -1 -1 -2 0 0 -1 -1 -1 0");
    EXPECT_EQ(Results() << MakeAll(Full("new/a/")) << MakeAll("link/d")
                        << MakeAll("\u00E9/x/y", false, 0775) << MakeAll("e\u0301/file")
                        << MakeAll("\u00E9/file/x/y") << MakeAll(Full("file/x"), true),
              "0/ 0 0 17 20/y 0");
    EXPECT_EQ(umask(022), mode_t{022});  // as it was
    EXPECT_EQ(Tree("."),
              "a/ a/b/ a/b/c/ a/b/c/d/ e\u0301/ e\u0301/d/ e\u0301/file= e\u0301/x/:775 "
              "e\u0301/x/y/:775 file/ file/x/ link->e\u0301 new/ new/a/");
}

TEST_F(FileOpTest, ListsFolders) {
    WriteFile("e\u0301/file", "12345");
    fs::create_symlink("file", "e\u0301/link");
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    EXPECT_EQ(Results() << FSUTime("\u00E9/file", 1, 20) << FSOpenDir("none", 0, handle)
                        << FSOpenDir(Full("\u00E9"), DIR_FLAG_STAT, handle),
              "0 -1 0");
    std::set<Results> found;
    for (errno = EIO; FSReadDir(handle, entry) == 1; errno = EIO) {
        const long told = entry.name == "file" ? entry.mtime + entry.size : 0;
        found.insert(Results() << entry.name << entry.type << told);
    }
    EXPECT_EQ(found, (std::set<Results>{". 2 0", ".. 2 0", "file 1 25", "link 3 0"}));
    EXPECT_EQ(FSReadDir(handle, entry), 0);
    FSCloseDir(handle);
    EXPECT_EQ(handle.dir, nullptr);
}

/// The operations that the launcher does not call.
TEST_F(FileOpTest, OtherOperations) {
    WriteFile("e\u0301/file", "");
    fs::create_symlink("none", "e\u0301/dead");  // an operation that follows it fails
    const ustring dead("\u00E9/dead"), made("\u00E9/made");
    ustring text, real = made, none("none"), temp, path;
    const gid_t group = geteuid() == 0 ? 1 : getegid();  // not the one that files have anyway
    FILE_INFO info;
    EXPECT_EQ(Results() << FSCreateSymbolicLink("file", made) << FSCreateSymbolicLink("file", made)
                        << FSReadSymbolicLink(made, text) << text
                        << FSReadSymbolicLink("none", text),
              "0 -1 0 file -1");
    EXPECT_EQ(Results() << FSGetRealPath(real) << FSGetRealPath(none) << none
                        << FSMktemp("none", temp) << FSMktemp("\u00E9", temp) << FSParentPath(temp)
                        << GetFileInfo(temp, info) << info.mode << FSCreateTempPath("none", path)
                        << FSParentPath(path) << FSParentPath("/a") << FSParentPath("a")
                        << FSBaseName("a"),
              "0 -1 none -1 0 \u00E9 0 33188 0 none / / a");
    EXPECT_EQ(real, Full("e\u0301/file"));
    EXPECT_EQ(Results() << FSUTime("none", 1, 2) << FSUTime(dead, 1, 2) << FSChown("none", 0, 0)
                        << FSChown(dead, geteuid(), group) << GetFileInfo(dead, info) << info.mtime
                        << info.gid - group << (info.dev != 0),
              "-1 0 -1 0 0 2 0 1");
    EXPECT_EQ(Results() << isFileLocked(made, X_OK) << isFileLocked("none", X_OK)
                        << hasFilePermission(made, X_OK) << hasFilePermission("none", X_OK)
                        << isMountPoint(".") << isMountPoint("none") << IsMSDOS(".")
                        << IsMSDOS("none") << SyncVolume("none") << FSTimeEqual(5, 5)
                        << FSTimeEqual(5, 6) << FSIsParentFolder("/a", "/a")
                        << FSIsParentFolder("/a", "/a/b") << FSIsParentFolder("/a", "/ab")
                        << FSIsParentFolder("/a", "/b/c") << FSIsParentFolder("/a/", "/a"),
              "1 0 0 1 0 0 0 0 -1 1 0 1 1 0 0 0");
    EXPECT_TRUE(Logged("IsSupportLargeFile: Failed to get file system info 'none'. No such"));
    FILE_INFO other[8];
    other[0].exists = true;
    other[1].size = other[2].mtime = other[3].type = 1;
    other[4].path = other[5].name = "x";
    EXPECT_EQ(std::count(other, other + 8, FILE_INFO()), 2);
    // What stays removed is not looked up without end.
    EXPECT_EQ(Results() << (fs::remove_all(home) > 0) << FSGetRealPath(real = "."), "1 -1");
}

}  // namespace
