// SPDX-License-Identifier: MIT
#include "file-op.h"

#include <cerrno>

#include "test-support.h"

namespace {

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
    // U+212A, the Kelvin sign, is "K" in NFC.
    for (const char *file : {"d/e\u0301t\u00E9", "\u212Aelvin", "x (deleted)"}) {
        WriteFile(file, "");
    }
    fs::create_directory_symlink("d", "link");
    const struct {
        const char *what;
        // In NFC, whatever the form on the disk.
        ustring path, found;
        int type;
        // The full path as it is found, but for its form.
        bool exact;
    } cases[] = {
        {"respelt", Full("d/\u00E9te\u0301"), Full("d/\u00E9t\u00E9"), FILE_TYPE_REGULAR, true},
        {"through a link", "link/\u00E9t\u00E9", Full("d/\u00E9t\u00E9"), FILE_TYPE_REGULAR, false},
        {"a link", Full("link"), Full("link"), FILE_TYPE_SYMLINK, true},
        {"relative", "Kelvin", Full("Kelvin"), FILE_TYPE_REGULAR, false},
        // The kernel ends the path of a removed file that is still open in " (deleted)".
        {"named as if removed", Full("x (deleted)"), Full("x (deleted)"), FILE_TYPE_REGULAR, true},
        {"missing", "no/\u00E9", "no/\u00E9", FILE_TYPE_NONE, false},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        FILE_INFO info, exact;
        info.exists = exact.exists = true;  // left over from another file
        EXPECT_EQ(GetFileInfo(row.path, info), 0);
        EXPECT_EQ(info.exists, row.type != FILE_TYPE_NONE);
        EXPECT_EQ(info.type, row.type);
        EXPECT_EQ(info.path, row.found);
        EXPECT_EQ(info.name, FSBaseName(row.found));
        EXPECT_EQ(FSStat(row.path, exact, true), 0);
        EXPECT_EQ(exact.exists, row.exact);
    }
}

TEST_F(FileOpTest, BeneathAFileIsAnErrorOrMissing) {
    WriteFile("file", "");
    FILE_INFO info;
    info.exists = true;  // left over from another file
    EXPECT_EQ(GetFileInfo("file/x", info), -1) << "ENOTDIR is an error here";
    EXPECT_EQ(FSStat("file/x", info, false), 0) << "and only missing here";
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(FSStat("", info, false), -1) << "no path";
}

TEST_F(FileOpTest, Copies) {
    WriteFile("src", "new");
    WriteFile("private", "longer than new");
    WriteFile("e\u0301/f", "old");
    fs::permissions("private", fs::perms(0600));
    EXPECT_EQ(FSCopy("src", "private", false), 0);
    EXPECT_EQ(FSCopy("src", "\u00E9/f", true), 0) << "and its source goes";
    EXPECT_EQ(FSCopy("src", "x", false), -1) << "the source is missing";
    EXPECT_EQ(FSCopy(".", "void", true), -1) << "a folder cannot be read, an empty copy stays";
    EXPECT_EQ(Tree("."), "e\u0301/ e\u0301/f=new private=new:600 void=");
}

TEST_F(FileOpTest, Renames) {
    for (const char *file : {"file", "e\u0301/f", "full/f"}) {
        WriteFile(file, file);
    }
    EXPECT_EQ(FSRename("", "x", false), -1);
    EXPECT_EQ(FSRename("none", "x", false), -2);
    EXPECT_EQ(FSRename("file", "x", true), -2) << "a relative path is never exact";
    EXPECT_EQ(FSRename("e\u0301", "full", false), -3) << "the destination is not empty";
    EXPECT_EQ(FSRename("file", std::string(256, 'n'), false), -100) << "too long";
    EXPECT_EQ(FSRename("full", "to", false), 0);
    EXPECT_EQ(FSRename(Full("\u00E9/f"), "x", true), 0) << "exact but for the form";
    EXPECT_EQ(Tree("."), "e\u0301/ file=file to/ to/f=full/f x=e\u0301/f");
}

TEST_F(FileOpTest, Removes) {
    for (const char *file : {"u\u0308/e\u0301", "u\u0308/.d/.f", "kept/f"}) {
        WriteFile(file, "");
    }
    fs::create_directory_symlink("../kept", "u\u0308/link");
    EXPECT_EQ(FSRemove("\u00FC", true), 0) << "a whole tree, stored in another spelling";
    EXPECT_EQ(FSRemove("\u00FC", true), 0) << "it is gone already";
    EXPECT_EQ(FSRemove("", true), -1);
    EXPECT_EQ(FSRemove("kept/f/x", true), -1) << "beneath a file";
    EXPECT_EQ(Tree("."), "kept/ kept/f=") << "a link and not its target";
}

TEST_F(FileOpTest, MakesFolders) {
    WriteFile("e\u0301/file", "");
    EXPECT_EQ(FSMKDir("", true), -1);
    EXPECT_EQ(FSMKDir("\u00E9/file", true), -1) << "a file, in another spelling";
    EXPECT_EQ(FSMKDir("a/b", false), -2) << "its parent is missing";
    EXPECT_EQ(FSMKDir("a/b/", true), 0);
    EXPECT_EQ(FSMKDir("a/b", false), 0) << "it is there";
    EXPECT_EQ(FSMKDirFromRoot("a/b/c/d", "a"), 0);
    EXPECT_EQ(FSMKDirFromRoot("axx", "a"), -1) << "it is not below";
    EXPECT_EQ(Tree("."), "a/ a/b/ a/b/c/ a/b/c/d/ e\u0301/ e\u0301/file=");
}

TEST_F(FileOpTest, MakesAllFoldersOfAPath) {
    WriteFile("e\u0301/file", "");
    const ustring blocked("\u00E9/file/x/y");
    char *stop = nullptr;  // points into the path's text
    EXPECT_EQ(FSMKDirP("\u00E9/x/y", nullptr, false, 0775), 0);
    // 0xFFFF: as the umask says.
    EXPECT_EQ(FSMKDirP(blocked, &stop, false, 0xFFFF), -1);
    EXPECT_STREQ(stop, "/y") << "what was not tried, behind the x that cannot be made";
    EXPECT_EQ(FSMKDirP("\u00E9/file/x", nullptr, true, 0xFFFF), 0) << "in place of a file";
    EXPECT_EQ(Tree("."), "e\u0301/ e\u0301/file/ e\u0301/file/x/ e\u0301/x/:775 e\u0301/x/y/:775");
}

TEST_F(FileOpTest, ListsFolders) {
    WriteFile("e\u0301/file", "12345");
    fs::create_symlink("file", "e\u0301/link");
    EXPECT_EQ(FSUTime("\u00E9/file", 1, 20), 0);
    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir("none", 0, handle), -1);
    EXPECT_EQ(FSOpenDir(Full("\u00E9"), DIR_FLAG_STAT, handle), 0);
    std::map<ustring, int> types;
    DIR_ENTRY entry;
    // An errno from before must not make the end look like an error.
    for (errno = EIO; FSReadDir(handle, entry) == 1; errno = EIO) {
        types[entry.name] = entry.type;
        EXPECT_TRUE(entry.name != "file" || (entry.size == 5 && entry.mtime == 20)) << entry.size;
    }
    const int folder = FILE_TYPE_DIRECTORY, file = FILE_TYPE_REGULAR, link = FILE_TYPE_SYMLINK;
    EXPECT_EQ(types, (std::map<ustring, int>{
                         {".", folder}, {"..", folder}, {"file", file}, {"link", link}}));
    EXPECT_EQ(FSReadDir(handle, entry), 0) << "at the end";
    FSCloseDir(handle);
}

TEST_F(FileOpTest, SplitsPaths) {
    EXPECT_EQ(FSParentPath("/a/b"), "/a");
    EXPECT_EQ(FSParentPath("/a"), "/");
    EXPECT_EQ(FSBaseName("a/b/"), "");
    EXPECT_TRUE(FSIsParentFolder("/a", "/a/b"));
    EXPECT_FALSE(FSIsParentFolder("/a", "/ab"));
}

TEST_F(FileOpTest, MakesReadsAndResolvesLinks) {
    WriteFile("e\u0301/file", "");
    ustring text, real = "\u00E9/link", none = "none";
    EXPECT_EQ(FSCreateSymbolicLink("file", "\u00E9/link"), 0);
    EXPECT_EQ(FSCreateSymbolicLink("file", "\u00E9/link"), -1) << "it is there already";
    EXPECT_EQ(FSReadSymbolicLink("\u00E9/link", text), 0);
    EXPECT_EQ(text, "file");
    EXPECT_EQ(FSReadSymbolicLink("none", text), -1);
    EXPECT_EQ(FSGetRealPath(real), 0);
    EXPECT_EQ(real, Full("e\u0301/file")) << "as spelt on the disk";
    EXPECT_EQ(FSGetRealPath(none), -1);
    EXPECT_EQ(none, "none");
}

TEST_F(FileOpTest, ChangesALinkAndNotItsTarget) {
    fs::create_symlink("none", "dead");  // an operation that follows it fails
    FILE_INFO info;
    EXPECT_EQ(FSUTime("dead", 1, 2), 0);
    EXPECT_EQ(FSChown("dead", geteuid(), getegid()), 0);
    EXPECT_EQ(GetFileInfo("dead", info), 0);
    EXPECT_EQ(info.mtime, 2);
    EXPECT_EQ(FSChown("none", 0, 0), -1) << "it is missing";
}

TEST_F(FileOpTest, MakesTemporaryFiles) {
    fs::create_directory("e\u0301");
    ustring file;
    EXPECT_EQ(FSMktemp("none", file), -1);
    EXPECT_EQ(FSMktemp("\u00E9", file), 0);
    EXPECT_EQ(Tree("."), std::string("e\u0301/ e\u0301/") + FSBaseName(file).c_str() + "=");
}

TEST_F(FileOpTest, LockedMeansAccessDenied) {
    WriteFile("file", "");  // that not even root may run
    EXPECT_TRUE(isFileLocked("file", X_OK));
    EXPECT_FALSE(isFileLocked("none", X_OK));
    EXPECT_FALSE(hasFilePermission("file", X_OK));
}

TEST_F(FileOpTest, ComparesDescriptions) {
    FILE_INFO exists, size, mtime, type, path, name;
    exists.exists = true;
    size.size = mtime.mtime = type.type = 1;
    path.path = name.name = "x";
    for (const FILE_INFO &other : {exists, size, mtime, type, path, name}) {
        EXPECT_TRUE(other != FILE_INFO());
    }
}

}  // namespace
