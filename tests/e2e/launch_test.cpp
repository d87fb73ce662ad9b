// SPDX-License-Identifier: MIT
#include <sys/file.h>

#include "launch-fixture.h"

namespace {

TEST_F(LaunchTest, InstallsUpgradesAndLeavesAlone) {
    ASSERT_EQ(0, Launch()) << Err();
    EXPECT_EQ("lib path = '" + (bundle / "Contents/Frameworks/plugins").string() + "'\n",
              ReadFile(place / "out"));
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_TRUE(NewOneIsWhole()) << Tree(lumaris);

    const pid_t first = ClientPid();
    EXPECT_EQ(first, getsid(first)) << "it outlives the launcher's session";
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): no need to upgrade\n")) << LauncherLog();
    EXPECT_EQ(first, ClientPid()) << "the client was left running";

    Ship("122");
    WriteFile(resources / "INFO", "; packed by root@Vega\n" + Info("122"));
    WriteFile(lumaris / "app/aged", "x");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_NE(first, ClientPid());
    EXPECT_TRUE(Whole("122")) << Tree(lumaris);
    EXPECT_FALSE(fs::exists(Backup()));
    EXPECT_FALSE(fs::exists(lumaris / "app"));
    EXPECT_FALSE(HasLine("[ERROR]")) << LauncherLog();
}

TEST_F(LaunchTest, LogFolderThatCannotBeMade) {
    Install();
    WriteFile(lumaris / "log", "a file");
    ShipDamaged();
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_TRUE(Said(" [ERROR] extractor(")) << Err();
    EXPECT_FALSE(Said("[DEBUG]")) << Err();
    StopClient();

    fs::remove_all(lumaris);
    WriteFile(lumaris, "a file where the folder should be");
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("a file where the folder should be", ReadFile(lumaris));
    EXPECT_TRUE(Said("): Failed to launch Lumaris UI\n")) << Err();
}

TEST_F(LaunchTest, NoPluginFolderIsSaidAndTouchesNothing) {
    Install();
    fs::remove_all(bundle / "Contents/Frameworks");
    EXPECT_NE(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_TRUE(Said("[ERROR] main(")) << Err();
    EXPECT_TRUE(Said("Contents/Frameworks/plugins' does not exist\n")) << Err();
}

TEST_F(LaunchTest, StaleEntriesInTheWay) {
    const auto litter = [this](int last) {
        Install();
        for (int index = 0; index <= last; ++index) {
            WriteFile(Backup(index) / "stale", "x");
        }
    };
    litter(8);
    WriteFile(lumaris / "stale", "x");
    ExpectUpgraded();
    EXPECT_EQ(3, std::distance(fs::directory_iterator(lumaris), {}))
        << "the application, its log and what is not the launcher's";
    litter(9);
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_TRUE(ClientRuns());
    EXPECT_TRUE(HasLine("_tmp9' at max retries, exiting\n")) << LauncherLog();
}

TEST_F(LaunchTest, OnlyOneLauncherWorks) {
    Install();
    const pid_t first = StartToWait();
    ASSERT_TRUE(Waits()) << LauncherLog();
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): app has already launched, return\n")) << LauncherLog();
    LetGo();
    EXPECT_EQ(0, Finish(first));
    EXPECT_TRUE(OldOneIsWhole()) << "the pipe held no package";
    StopClient();

    fs::remove(resources / "package/lumaris.wpk");
    Ship("121");
    const fs::path lock = Lock();
    ASSERT_NE("", lock);
    fs::remove(lock);
    fs::create_directories(lock / "cannot be opened as a file");
    Install();
    ExpectUpgraded();
    fs::remove_all(lock);
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a lock file to another user";
    }
    WriteFile(lock, "");
    EXPECT_EQ(0, chown(lock.c_str(), 65534, 65534));
    const int foreign = open(lock.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(0, flock(foreign, LOCK_EX));
    Install();
    ExpectUpgraded();
    close(foreign);
}

}  // namespace
