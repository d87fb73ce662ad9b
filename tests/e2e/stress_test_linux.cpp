// SPDX-License-Identifier: MIT
// Writes that fail, no thread to be had, many launchers at once, launchers of two bundles.

#include <sys/file.h>

#include "launch-fixture.h"

namespace {

// Files may not grow beyond 4096 bytes and nobody reads the output: SIGXFSZ and SIGPIPE would end
// the launcher. The package does not fit, so the old client stays.
TEST_F(LaunchTest, GoesOnWhenWritesFail) {
    Install();
    WriteFile(lumaris / "log", "");                 // so that errors go to standard error
    const std::string unread = R"("$0" 2>&1 | :)";  // $0 is the launcher
    Finish(Start({"prlimit", "--fsize=4096", "sh", "-c", unread}));  // the status is that of ":"
    ExpectInstalled("120");
}

TEST_F(LaunchTest, EndsWithoutAThread) {
    EXPECT_EQ(0, Finish(Start({"strace", "-f", "-o/dev/null", "-etrace=clone3",
                               "-einject=clone3:error=EAGAIN"})));
    EXPECT_TRUE(HasLine("failed to start the worker thread\n")) << LauncherLog() << Err();
}

// The winner waits for its package, which is a pipe; all others find the lock taken and leave.
TEST_F(LaunchTest, OneOfManyWorks) {
    const int launchers = kLong ? 50 : 20;
    for (int round = 0; round < (kLong ? 200 : 4); ++round) {
        Install();
        kill(StartToWait(), SIGKILL);  // its lock file stays
        if (round % 2 == 1) {          // and every other time it is gone
            fs::remove_all(place / "tmp");
            fs::create_directory(place / "tmp");
        }
        fs::remove_all(lumaris / "log");
        for (int i = 0; i < launchers; ++i) {
            Start();
        }
        // The killed one and all of these but one end, none by the alarm that ends what waits.
        for (int ended = 0, status = 0; ended < launchers; ++ended) {
            ASSERT_TRUE(wait(&status) > 0 && status != SIGALRM) << "more than one works";
        }
        EXPECT_TRUE(Eventually([this] { return HasLine("): extract package: "); }));
        EXPECT_EQ(0, waitpid(-1, nullptr, WNOHANG)) << "nobody works";
        EndAll();
        EXPECT_GT(wait(nullptr), 0);
    }
}

TEST_F(LaunchTest, LocksTheFolderDuringItsUpgrade) {
    const pid_t launcher = StartToWait();
    const int folder = open(lumaris.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_TRUE(flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) << "not locked";
    close(folder);
    EndAll();
    Finish(launcher);
}

TEST_F(LaunchTest, WaitsForTheLauncherOfAnotherBundle) {
    Install();
    const int others_lock = open(lumaris.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(0, flock(others_lock, LOCK_EX));
    const pid_t launcher = Start();
    EXPECT_TRUE(Eventually([this] { return HasLine("): waiting for the launcher"); }));
    WriteFile(app / "Contents/Resources/INFO", Info("121"));  // the other one has upgraded it
    close(others_lock);
    EXPECT_EQ(0, Finish(launcher));
    EXPECT_TRUE(HasLine("): no need to upgrade\n")) << "it decided before the wait";
}

// strace makes each sleep return at once, so that the minute of waiting is over soon.
TEST_F(LaunchTest, GoesOnWhenAnotherLauncherHangs) {
    Install();
    const int others_lock = open(lumaris.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(0, flock(others_lock, LOCK_EX));
    ExpectLaunch("121", {"strace", "-f", "-bexecve", "-o/dev/null", "-etrace=clock_nanosleep",
                         "-einject=clock_nanosleep:retval=0"});
    EXPECT_TRUE(HasLine("[WARNING] lumaris-service")) << LauncherLog();
    close(others_lock);
}

}  // namespace
