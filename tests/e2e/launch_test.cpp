// SPDX-License-Identifier: MIT
#include <sys/file.h>

#include "launch-fixture.h"

namespace {

TEST_F(LaunchTest, InstallsUpgradesAndLeavesAlone) {
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("lib path = '" + (bundle / "Contents/Frameworks/plugins").string() + "'\n",
              ReadFile(place / "out"));
    ExpectInstalled("121");
    EXPECT_EQ("hello 121", ReadFile(app / "Contents/Resources/gr\xc3\xbc\xc3\x9f.txt"));
    const pid_t first = ClientPid();
    EXPECT_EQ(first, getsid(first)) << "it outlives the launcher's session";

    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): no need to upgrade\n")) << LauncherLog();
    EXPECT_EQ(first, ClientPid()) << "the client was left running";

    Ship("122");
    WriteFile(info, "; packed by root@Vega\n" + Info("122"));
    WriteFile(lumaris / "app/aged", "x");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(Eventually([&] { return ClientPid() > 0 && ClientPid() != first; }));
    ExpectInstalled("122");
    EXPECT_FALSE(fs::exists(Backup()));
    EXPECT_FALSE(fs::exists(lumaris / "app"));
    EXPECT_FALSE(HasLine("[ERROR]")) << LauncherLog();
}

TEST_F(LaunchTest, WithoutALogFolderErrorsGoToStandardError) {
    WriteFile(lumaris, "a file where the folder should be");
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("a file where the folder should be", ReadFile(lumaris));
    EXPECT_TRUE(Said("): Failed to launch Lumaris UI\n")) << Err();
    EXPECT_FALSE(Said("[DEBUG]")) << Err();
}

TEST_F(LaunchTest, NoPluginFolderIsSaidAndTouchesNothing) {
    Install();
    const std::string before = Tree(home);
    fs::remove(bundle / "Contents/Frameworks");
    EXPECT_NE(0, Launch());
    EXPECT_EQ(before, Tree(home));
    EXPECT_TRUE(Said("Contents/Frameworks/plugins' does not exist\n")) << Err();
}

TEST_F(LaunchTest, StaleEntriesInTheWay) {
    for (const int last : {8, 9}) {
        Install();
        for (int index = 0; index <= last; ++index) {
            WriteFile(Backup(index) / "stale", "x");
        }
        ExpectLaunch(last == 8 ? "121" : "120");
        EXPECT_EQ(last == 9, HasLine("_tmp9' at max retries, exiting\n")) << LauncherLog();
        EXPECT_EQ(last == 9, fs::exists(Backup())) << Tree(lumaris);
        EXPECT_EQ(last == 9, fs::exists(Backup(9))) << Tree(lumaris);
    }
}

TEST_F(LaunchTest, OnlyOneLauncherWorks) {
    Install();
    const pid_t first = StartToWait();
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): app has already launched, return\n")) << LauncherLog();
    LetGo();
    EXPECT_EQ(0, Finish(first));
    ExpectInstalled("120");  // the pipe held no package
    StopClient();

    // A lock that cannot be taken stops nobody from getting at the backups.
    fs::remove(package);
    Ship("121");
    fs::path lock;  // beside what the toolkit keeps there
    for (const auto &entry : fs::directory_iterator(place / "tmp")) {
        lock = entry.is_regular_file() ? entry.path() : lock;
    }
    ASSERT_TRUE(fs::remove(lock)) << Tree(place / "tmp");
    fs::create_directories(lock / "cannot be opened as a file");
    ExpectLaunch("121");
    fs::remove_all(lock);
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a lock file to another user";
    }
    WriteFile(lock, "");
    EXPECT_EQ(0, chown(lock.c_str(), 65534, 65534));
    const int foreign = open(lock.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(0, flock(foreign, LOCK_EX));
    Install();
    ExpectLaunch("121");
    close(foreign);
}

}  // namespace
