// Nothing left to write to, and power that fails.

#include <sys/sysmacros.h>

#include "launch-fixture.h"
#include "own-mounts.h"

namespace {

class StarvationTest : public LaunchTest {
protected:
    ~StarvationTest() override {
        StopClient();
        for (const fs::path &volume : {home, tmp})
            umount2(volume.c_str(), MNT_DETACH);
    }
    void SetUp() override {
        if (!OwnMounts())
            GTEST_SKIP() << "needs root or user namespaces, to mount small volumes";
    }
};

TEST_F(StarvationTest, FullTemporaryFolder) {
    ASSERT_EQ(0, mount("tmp", tmp.c_str(), "tmpfs", 0, "size=4k"));
    WriteFile(tmp / "filler", std::string(4096, 'x'));
    Install();
    ExpectUpgraded();
}

TEST_F(StarvationTest, MoreThanTheDiskHolds) {
    ASSERT_EQ(0, mount("home", home.c_str(), "tmpfs", 0, "size=8m"));
    Install();
    PackageEntry bomb{"zeros", std::string(1 << 20, '\0')};
    bomb.repeat = Long() ? 2048 : 10;
    const fs::path package = resources / "package/lumaris.wpk";
    WritePackage(package, {{"first", "x"}, bomb});
    // Only the long run has a package that is larger than what the launcher may allocate.
    EXPECT_EQ(0, Launch({"prlimit", "--data=" + std::to_string(1 << 30)}));
    EXPECT_TRUE(OldOneIsWhole()) << Tree(lumaris);
    EXPECT_TRUE(ClientRuns());
    StopClient();
    Ship("121");
    ExpectUpgraded();
}

TEST_F(LaunchTest, FilesThatMayNotGrow) {
    for (const bool upgrade : {true, false})
        for (const size_t limit : {size_t{0}, size_t{4096}, size_t{fs::file_size(CLIENT) - 1}}) {
            SCOPED_TRACE(limit);
            Install();
            if (!upgrade)
                fs::remove_all(lumaris);
            EXPECT_EQ(0, Launch({"prlimit", "--fsize=" + std::to_string(limit)}));
            EXPECT_TRUE(limit == 0 || HasLine("[ERROR] extractor(")) << LauncherLog();
            EXPECT_TRUE(!upgrade || OldOneIsWhole()) << Tree(lumaris);
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

// The home is an ext4 volume in a file. What a copy of that file holds is what a power failure at
// this moment would leave.
TEST_F(StarvationTest, PowerLost) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root, for a loop device";
    const std::string image = (root / "image").string();
    const auto run = [](const std::string &command) { return system(command.c_str()); };
    const auto use = [&](const std::string &disk, const std::string &options) {
        umount2(home.c_str(), MNT_DETACH);
        return run("mount -o loop" + options + " '" + disk + "' '" + home.string() + "'");
    };
    // Names go to disk every second, or every five, contents when the kernel wants.
    if (run("truncate -s 32M '" + image + "' && mkfs.ext4 -q '" + image + "'") != 0 ||
        use(image, Long() ? "" : ",commit=1") != 0)
        GTEST_SKIP() << "needs a loop device and ext4";
    struct stat st = {};
    stat(home.c_str(), &st);
    // Otherwise a device as slow as this one is not allowed to keep anything in memory.
    WriteFile("/sys/class/bdi/" + std::to_string(major(st.st_dev)) + ":" +
                  std::to_string(minor(st.st_dev)) + "/min_ratio",
              "90");
    Install();
    EXPECT_EQ(0, run("sync -f '" + home.string() + "'"));

    Entries more;
    for (int i = 0; i < 100; ++i)
        more.push_back({"Contents/Resources/" + std::to_string(i), std::string(30000, 'x')});
    Ship("121", more);
    const pid_t launcher = Start({"strace", "-f", "-b", "execve", "-o", root / "record", "-e",
                                  "trace=/rmdir", "-e", "inject=/rmdir:delay_enter=300000"});
    int copies = 0, at_end = 0;
    for (bool ended = false; copies < at_end + (Long() ? 40 : 4) || !ended; ++copies) {
        const std::string copy = image + std::to_string(copies);
        // A copy counts when nothing was written meanwhile.
        while (run("cp --sparse=always '" + image + "' '" + copy + "' && cmp -s '" + image + "' '" +
                   copy + "'") != 0) {
        }
        if (!ended && waitpid(launcher, nullptr, WNOHANG) == launcher) {
            ended = true;
            at_end = copies + 1;
        }
        usleep(ended ? (Long() ? 1000000 : 500000) : 100000);
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

}  // namespace
