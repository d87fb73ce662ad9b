// SPDX-License-Identifier: MIT
#include "file-op.h"
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
    WriteFile("disk/fourth/file", "4");
    // What becomes dst, onto and moved takes the three blocks.
    EXPECT_EQ(FSRename(fs::absolute("disk/\u00FC").c_str(), "v/dst", true), 0);
    EXPECT_EQ(FSRename("disk/onto", "v/onto", false), 0);
    EXPECT_EQ(FSRename("disk/src/link", "v/link", false), 0) << "a link stays, which is no failure";
    EXPECT_EQ(FSRename("disk/src", "v/moved", false), -3) << "its link is left, so it stays";
    EXPECT_EQ(FSRename("disk/src", "v/moved/file", false), -3) << "onto a file";
    EXPECT_EQ(FSRename("disk/fourth", "v/fourth", false), -3) << "full";
    EXPECT_EQ(FSCopy("disk/fourth/file", "v/part", true), -2) << "full";
    EXPECT_EQ(Tree("v"),
              "dst/ dst/sub/ dst/sub/e\u0301=1 fourth/ fourth/file= moved/ moved/file=3 onto/ "
              "onto/e\u0301/ onto/e\u0301/u\u0308=new part=");
    EXPECT_EQ(Tree("disk"), "fourth/ fourth/file=4 src/ src/link->file");
}

TEST_F(VolumeTest, FindsAnyLetterCaseWhereAMacDoes) {
    WriteFile("\u00E9", "");
    EXPECT_FALSE(IsFileExist("\u00C9", false)) << "found on a volume of Linux";
    if (!MountMacVolume()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    // Stored decomposed, asked for composed. Of two names that differ in case only, each is found.
    for (const char *file : {"twin", "TWIN", "U\u0308ber"}) {
        WriteFile(fs::path("disk") / file, "");
    }
    for (const char *exact : {"twin", "TWIN", "\u00DCber"}) {
        EXPECT_TRUE(IsFileExist(OnVolume(exact), true)) << exact;
    }
    for (const char *other_case : {"Twin", "\u00DCBER"}) {
        EXPECT_TRUE(IsFileExist(OnVolume(other_case), false)) << other_case;
        EXPECT_FALSE(IsFileExist(OnVolume(other_case), true)) << other_case;
    }
}

}  // namespace
