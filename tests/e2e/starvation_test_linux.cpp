// SPDX-License-Identifier: MIT
// Nothing left to write to, and power that fails.

#include <sys/sysmacros.h>

#include "launch-fixture.h"
#include "own-mounts.h"

namespace {

class VolumeTest : public LaunchTest {
protected:
    ~VolumeTest() override {
        StopClient();
        umount2(home.c_str(), MNT_DETACH);
    }
    void SetUp() override {
        if (!OwnMounts()) {
            GTEST_SKIP() << "needs root or user namespaces, to mount volumes";
        }
    }
};

TEST_F(VolumeTest, MoreThanTheDiskHolds) {
    ASSERT_EQ(0, mount("home", home.c_str(), "tmpfs", 0, "size=8m"));
    Install();
    WritePackage(resources / "package/lumaris.wpk", {{"zeros", std::string(10 << 20, '\0')}});
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole()) << Tree(lumaris);
    EXPECT_TRUE(ClientRuns());
    StopClient();
    Ship("121");
    ExpectUpgraded();
}

// The home is an ext4 volume in a file. What a copy of that file holds is what a power failure at
// this moment would leave.
TEST_F(VolumeTest, PowerLost) {
    const std::string image = (root / "image").string();
    const auto run = [](const std::string &command) { return system(command.c_str()); };
    const auto use = [&](const std::string &disk, const std::string &options) {
        umount2(home.c_str(), MNT_DETACH);
        return run("mount -o loop" + options + " '" + disk + "' '" + home.string() + "'");
    };
    // Names go to disk every second, or every five, contents when the kernel wants.
    if (run("truncate -s 32M '" + image + "' && mkfs.ext4 -q '" + image + "'") != 0 ||
        use(image, Long() ? "" : ",commit=1") != 0) {
        GTEST_SKIP() << "needs root, a loop device and ext4";
    }
    struct stat st = {};
    stat(home.c_str(), &st);
    // Otherwise a device as slow as this one is not allowed to keep anything in memory.
    WriteFile("/sys/class/bdi/" + std::to_string(major(st.st_dev)) + ":" +
                  std::to_string(minor(st.st_dev)) + "/min_ratio",
              "90");
    Install();
    EXPECT_EQ(0, run("sync -f '" + home.string() + "'"));
    Ship("121", {{"Contents/Resources/data", std::string(3 << 20, 'x')}});
    const pid_t launcher = Start({"strace", "-f", "-bexecve", "-etrace=/rmdir", "-o/dev/null",
                                  "-einject=/rmdir:delay_enter=300000"});
    int copies = 0, at_end = 0;
    for (const int after = Long() ? 40 : 4; at_end == 0 || copies < at_end + after; ++copies) {
        const std::string copy = image + std::to_string(copies);
        if (at_end == 0 && waitpid(launcher, nullptr, WNOHANG) == launcher) {
            at_end = copies;
        }
        do {  // until nothing was written meanwhile
            EXPECT_EQ(0, run("cp --sparse=always '" + image + "' '" + copy + "'"));
        } while (run("cmp -s '" + image + "' '" + copy + "'") != 0);
        usleep(at_end == 0 ? 100000 : Long() ? 1000000 : 500000);
        alarm(kSecondsPerStep);
    }
    EXPECT_GT(at_end, 1);
    StopClient();
    for (int i = 0; i < copies; ++i) {
        SCOPED_TRACE("copy " + std::to_string(i) + ", ended before " + std::to_string(at_end));
        ASSERT_EQ(0, use(image + std::to_string(i), ""));
        EXPECT_TRUE(i < at_end || Whole("121")) << Tree(app);
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(Whole("121")) << LauncherLog();
        EXPECT_TRUE(ClientRuns());
        StopClient();
    }
    printf("power lost: %d copies, %d of them after the end\n", copies, copies - at_end);
}

TEST_F(LaunchTest, FilesThatMayNotGrow) {
    for (const char *const limit : {"0", "4096"}) {
        SCOPED_TRACE(limit);
        Install();
        EXPECT_EQ(0, Launch({"prlimit", std::string("--fsize=") + limit}));
        EXPECT_TRUE(*limit == '0' || HasLine("[ERROR] extractor(")) << LauncherLog();
        EXPECT_TRUE(OldOneIsWhole()) << Tree(lumaris);
        StopClient();
        ExpectUpgraded();
    }
}

TEST_F(LaunchTest, NobodyReadsWhatItSays) {
    Install();
    WriteFile(lumaris / "log", "a file");  // so that errors go to standard error
    ShipDamaged();
    EXPECT_EQ(0, Launch({"bash", "-c", "exec > >(:) 2>&1; wait $!; exec \"$0\""}));
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_TRUE(ClientRuns());
    const std::string status = ReadFile("/proc/" + std::to_string(ClientPid()) + "/status");
    const unsigned long ignored = strtoul(&status[status.find("SigIgn:") + 7], nullptr, 16);
    EXPECT_EQ(0UL, ignored & (1UL << (SIGPIPE - 1) | 1UL << (SIGXFSZ - 1))) << "as it expects";
}

}  // namespace
