// SPDX-License-Identifier: MIT
#include <sys/file.h>

#include "launch-fixture.h"

namespace {

TEST_F(LaunchTest, InstallsAndThenLeavesTheClientAlone) {
    EXPECT_EQ(0, Launch());
    ExpectInstalled("121");
    const pid_t first = ClientPid();
    const fs::path opened = "/proc/" + std::to_string(first) + "/fd";
    // It inherits none of the launcher's descriptors, and keeps its pid file open.
    const int streams = 3, pid_file = 1;
    EXPECT_TRUE(Eventually(
        [&] { return std::distance(fs::directory_iterator(opened), {}) == streams + pid_file; }));
    const fs::path aged = lumaris / "app";  // of an older layout, removed at every start
    WriteFile(aged / "file", "x");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): no need to upgrade\n")) << LauncherLog();
    EXPECT_EQ(first, ClientPid()) << "the client was restarted";
    EXPECT_FALSE(fs::exists(aged));
}

TEST_F(LaunchTest, OthersCannotWriteInTheClientsFolder) {
    umask(0);
    EXPECT_EQ(0, Launch());
    EXPECT_EQ(fs::perms(0755), fs::status(lumaris).permissions());
}

TEST_F(LaunchTest, WithoutALogFolderErrorsGoToStandardError) {
    WriteFile(lumaris, "a file where the folder should be");
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("a file where the folder should be", ReadFile(lumaris));
    EXPECT_TRUE(Said("): Failed to launch Lumaris UI\n")) << Err();
    EXPECT_FALSE(Said("[DEBUG]")) << "for all its level 7: " << Err();
}

TEST_F(LaunchTest, OddFilesHoldNobodyUp) {
    const fs::path pid = lumaris / "ui.pid", installed = app / "Contents/Resources/INFO";
    const fs::path levels = bundle / "log/launcher.debug", log = lumaris / "log/launcher.log";
    const auto pipe = [](const fs::path &path) { EXPECT_EQ(0, mkfifo(path.c_str(), 0600)); };
    const auto endless = [](const fs::path &path) { fs::create_symlink("/dev/zero", path); };
    const auto huge = [](const fs::path &path) {
        // The build that is shipped.
        WriteFile(path, Info("121"));
        fs::resize_file(path, 800 << 20);
    };
    const struct {
        const char *what;
        fs::path path;
        std::function<void(const fs::path &)> make;
    } rows[] = {
        {"a pipe as pid file", pid, pipe},      {"an endless pid file", pid, endless},
        {"a pipe as INFO", installed, pipe},    {"an endless INFO", installed, endless},
        {"an INFO of 800 MB", installed, huge}, {"a pipe as log", log, pipe},
        {"a pipe as levels", levels, pipe},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Install();
        fs::create_directory(lumaris / "log");
        fs::remove(row.path);
        row.make(row.path);
        // 124 when it is held up.
        EXPECT_EQ(0, Finish(Start({"timeout", "10"})));
        EXPECT_FALSE(fs::exists(app / "old file")) << "not upgraded";
        EndAll();
    }
}

TEST_F(LaunchTest, TriesTenBackupNames) {
    for (const int taken : {9, 10}) {
        SCOPED_TRACE(taken);
        Install();
        for (int index = 0; index < taken; ++index) {
            WriteFile(Backup(index) / "stale", "x");
        }
        ExpectLaunch(taken == 10 ? "120" : "121");
        EXPECT_EQ(taken == 10, HasLine("_tmp9' at max retries, exiting\n")) << LauncherLog();
    }
}

// Another user may have linked a file of his to the lock's name, and could hold it for ever.
TEST_F(LaunchTest, AHardLinkedLockFileStopsNobody) {
    ExpectLaunch("121");
    // The only file there is the lock.
    const auto files = fs::directory_iterator(place / "tmp");
    const fs::path lock =
        *std::find_if(begin(files), end(files),
                      [](const fs::directory_entry &file) { return file.is_regular_file(); });
    fs::create_hard_link(lock, place / "second name");
    const int other = open(lock.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(0, flock(other, LOCK_EX));
    Install();
    ExpectLaunch("121");
    close(other);
}

}  // namespace
