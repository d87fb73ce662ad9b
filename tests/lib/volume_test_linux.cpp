// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include "file-op.h"
#include "mac/mac-service.h"
#include "volume-fixture.h"

namespace {

TEST_F(VolumeTest, MovesToAnotherVolume) {
    // Each file takes a block: there is room for three.
    if (mount("tmpfs", "v", "tmpfs", 0, "nr_blocks=3") != 0) {
        GTEST_SKIP() << "this user cannot mount a small volume";
    }
    WriteFile("disk/u\u0308/sub/e\u0301", "1");
    WriteFile("disk/onto/\u00E9/\u00FC", "new");
    WriteFile("v/onto/e\u0301/u\u0308", "old");  // the same file, spelt otherwise
    WriteFile("disk/src/file", "3");
    fs::create_symlink("file", "disk/src/link");
    WriteFile("disk/late/file", "4");
    EXPECT_EQ(FSRename(fs::absolute("disk/\u00FC").c_str(), "v/dst", true), 0);
    EXPECT_EQ(FSRename("disk/onto", "v/onto", false), 0);
    EXPECT_EQ(FSRename("disk/src/link", "v/link", false), 0) << "though it stays";
    EXPECT_EQ(FSRename("disk/src", "v/moved", false), -3) << "the link is left";
    EXPECT_EQ(FSRename("disk/src", "v/moved/file", false), -3) << "onto a file";
    EXPECT_EQ(FSRename("disk/late", "v/late", false), -3) << "full";
    EXPECT_EQ(FSCopy("disk/late/file", "v/part", true), -2) << "full";
    EXPECT_EQ(Tree("v"),
              "dst/ dst/sub/ dst/sub/e\u0301=1 late/ late/file= moved/ moved/file=3 onto/ "
              "onto/e\u0301/ onto/e\u0301/u\u0308=new part=");
    EXPECT_EQ(Tree("disk"), "late/ late/file=4 src/ src/link->file");
}

// On a Mac all names are valid.
TEST_F(VolumeTest, RefusesNamesThatAreNotUtf8) {
    for (const char *file : {"bad/\xFE", "bad/\xFF"}) {
        WriteFile(file, "text");
    }
    FILE_INFO info;
    EXPECT_EQ(GetFileInfo("bad/\xFF", info), -1);
    EXPECT_TRUE(info.exists);
    EXPECT_TRUE(Logged("FSPathMakeRef: -43\n"));
    EXPECT_EQ(FSRemove("bad", true), -3);
    EXPECT_EQ(Tree("bad"), "\xFE=text \xFF=text");
}

TEST_F(VolumeTest, TellsWhatTheSystemRefuses) {
    WriteFile("file", "text");
    EXPECT_EQ(FSCopy("file", "/proc/self/coredump_filter", false), -1) << "it opens, no more";
    EXPECT_EQ(FSRemove("/proc/version", false), -3);
    // A Mac has no link as long as that, and reads a list ahead.
    ustring text;
    EXPECT_EQ(FSCreateSymbolicLink(std::string(1024, 'x'), "long"), 0);
    EXPECT_EQ(FSReadSymbolicLink("long", text), -1);
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    EXPECT_EQ(FSOpenDir("disk", 0, handle), 0);
    close(dirfd(handle.dir));
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    FSCloseDir(handle);
}

TEST_F(VolumeTest, FindsAnyLetterCaseWhereAMacDoes) {
    WriteFile("\u00E9", "");
    EXPECT_FALSE(IsFileExist("\u00C9", false)) << "not on a volume of Linux";
    if (!MountMacVolume()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    // Twins as on a volume of this type that has both.
    for (const char *file : {"Foo", "twin", "TWIN", "U\u0308ber/e\u0301"}) {
        WriteFile(fs::path("disk") / file, "");
    }
    for (const char *exact : {"Foo", "twin", "TWIN", "\u00DCber/\u00E9"}) {
        EXPECT_TRUE(IsFileExist(OnVolume(exact), true)) << exact;
    }
    for (const char *name : {"foo", "U\u0308BER/e\u0301"}) {
        EXPECT_FALSE(IsFileExist(OnVolume(name), true)) << name;
        EXPECT_TRUE(IsFileExist(OnVolume(name), false)) << name;
    }
    EXPECT_EQ(FSRename(OnVolume("foo"), "v/bar", false), 0);
    EXPECT_EQ(FSRemove("v/\u00FCBER", false), 0);
    EXPECT_EQ(Tree("disk"), "TWIN= bar= twin=");
}

TEST_F(VolumeTest, InstallsWithTheRulesOfAMac) {
    if (!MountMacVolume()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    int arguments = 0;
    const QCoreApplication application(arguments, nullptr);
    const ustring package = Service::GetRootLumarisResourceInstallPath() + "/package/lumaris.wpk";
    const struct {
        const char *build, *letter, *last_entry;
        int result;
        const char *installed;
    } cases[] = {
        {"1", "\u00E9", "z", 0, "readme=1"},
        {"2", "e\u0301", "z", 0, "readme=2"},
        {"3", "\u00C9", "a/../../x", -1, "readme=2"},  // refused at its end, and rolled back
    };
    for (const auto &row : cases) {
        // Names that differ only in case become one file here.
        const std::string folder = std::string("Contents/Resources/") + row.letter + "/";
        Entries entries = ClientPackage(row.build);
        entries.insert(
            entries.end(),
            {{folder}, {folder + "README"}, {folder + "readme", row.build}, {row.last_entry}});
        WritePackage(package.c_str(), entries);
        EXPECT_EQ(MacService().PrepareUserEnv(), row.result) << row.build;
        EXPECT_EQ(Tree(app / "Contents/Resources/E\u0301"), row.installed) << row.build;
    }
}

}  // namespace
