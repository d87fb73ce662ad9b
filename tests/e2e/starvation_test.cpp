#include <sys/statvfs.h>

#include "launch-fixture.h"
#include "own-mounts.h"

namespace {

class StarvationTest : public LaunchTest {
protected:
    ~StarvationTest() override {
        StopClient();
        Unmount();
    }

    void SetUp() override {
        if (!OwnMounts())
            GTEST_SKIP() << "needs root or user namespaces, to mount small volumes";
    }

    /// Makes the home folder a volume of its own, away from the bundle and the temporary folder.
    /// With `log_outside` the log folder leads back, so that the log of a full disk can be read.
    void Mount(bool log_outside) {
        ASSERT_EQ(0, mount("home", home.c_str(), "tmpfs", 0, "size=16m"));
        WriteFile(home / "letter", "dear");
        fs::create_directories(lumaris);
        fs::create_directories(root / "log folder");
        if (log_outside)
            fs::create_directory_symlink(root / "log folder", lumaris / "log");
    }
    void Remount(const std::string &options, unsigned long flags = 0) const {
        ASSERT_EQ(0, mount("home", home.c_str(), "tmpfs", MS_REMOUNT | flags, options.c_str()));
    }
    void Unmount() {
        umount2(home.c_str(), MNT_DETACH);
        fs::remove_all(root / "log folder");
    }
    /// Even a client that cannot write its pid file notes in its log that it was started.
    bool ClientStarted() const {
        for (int attempt = 0; attempt < 300; ++attempt, usleep(10000))
            if (fs::exists(lumaris / "log/client.log"))
                return true;
        return false;
    }
    bool ErrorSaid() const { return HasLine("[ERROR]") || Said("[ERROR]"); }

    struct Sweep {
        const char *name;
        const char *option;  // takes `unit` times what is used and a little more
        unsigned long unit;
        bool log_outside;
    };
    unsigned long Used(const Sweep &sweep) const {
        struct statvfs volume = {};
        statvfs(home.c_str(), &volume);
        return sweep.unit == 1 ? volume.f_files - volume.f_ffree
                               : (volume.f_blocks - volume.f_bfree) * volume.f_frsize / sweep.unit;
    }
    /// One start with `room` units left and one more with plenty. Returns whether the first one
    /// could install; `broken` counts what must never be.
    bool StartWith(unsigned long room, const Sweep &sweep, bool upgrade, int &broken) {
        Mount(sweep.log_outside);
        if (upgrade)
            Install();
        if (!sweep.log_outside)  // a log that needs a new page with its next line
            WriteFile(lumaris / "log/launcher.log", std::string(4096, '\n'));
        Remount(sweep.option + std::to_string((Used(sweep) + room) * sweep.unit));
        bool good = Launch() == 0;
        const bool installed = NewOneIsWhole();
        good = good && (installed || !upgrade || OldOneIsWhole());
        // A log without a page to its name says nothing.
        good = good && (installed || ErrorSaid() || (room == 0 && !sweep.log_outside));
        if (sweep.log_outside && (installed || upgrade))
            good = good && ClientStarted();
        StopClient();
        Remount("size=16m,nr_inodes=1000");
        EXPECT_TRUE(good) << sweep.name << ", room " << room << LauncherLog() << Err();
        good = good && Launch() == 0 && NewOneIsWhole() && ClientRuns();
        EXPECT_TRUE(good) << sweep.name << ", room after " << room << LauncherLog() << Err();
        broken += good ? 0 : 1;
        StopClient();
        Unmount();
        return installed;
    }
};

TEST_F(StarvationTest, FullDiskAtEveryPage) {
    // The pages in the middle of the client are alike: the quick run takes every fourth.
    const unsigned long middle = getenv("EVERY_PAGE") ? 0 : fs::file_size(CLIENT) / 4096 - 2;
    const Sweep sweeps[] = {{"full disk", "size=", 4096, true},
                            {"full disk with the log on it", "size=", 4096, false},
                            {"no inode left", "nr_inodes=", 1, true}};
    for (const Sweep &sweep : sweeps)
        for (const bool upgrade : {true, false}) {
            int failed = 0, installed = 0, broken = 0;
            for (unsigned long room = 0;
                 installed<3; room += sweep.unit> 1 && room > 1 && room < middle ? 4 : 1)
                ++(StartWith(room, sweep, upgrade, broken) ? installed : failed);
            EXPECT_GT(failed, 3) << "the fault struck";
            printf("%s, %s: %d starts, %d too small, %d installed, broken %d\n", sweep.name,
                   upgrade ? "upgrade" : "first installation", failed + installed, failed,
                   installed, broken);
        }
}

TEST_F(StarvationTest, ReadOnlyHome) {
    for (const bool upgrade : {true, false})
        for (const bool log_outside : {true, false}) {
            Mount(log_outside);
            if (upgrade)
                Install();
            Remount("", MS_RDONLY);
            EXPECT_EQ(0, Launch());
            EXPECT_TRUE(ErrorSaid()) << Err();
            EXPECT_TRUE(!upgrade || (OldOneIsWhole() && (!log_outside || ClientStarted())));
            StopClient();
            Remount("");
            EXPECT_TRUE(Launch() == 0 && NewOneIsWhole() && ClientRuns()) << LauncherLog();
            StopClient();
            Unmount();
        }
}

TEST_F(StarvationTest, FullTemporaryFolder) {
    ASSERT_EQ(0, mount("tmp", (root / "tmp").c_str(), "tmpfs", 0, "size=4k"));
    WriteFile(root / "tmp/filler", std::string(4096, 'x'));
    Install();
    EXPECT_TRUE(Launch() == 0 && NewOneIsWhole() && ClientRuns()) << LauncherLog() << Err();
    umount2((root / "tmp").c_str(), MNT_DETACH);
}

TEST_F(LaunchTest, FilesThatMayNotGrow) {
    for (const bool upgrade : {true, false})
        for (const size_t limit : {size_t{0}, size_t{4096}, size_t{fs::file_size(CLIENT) - 1}}) {
            SCOPED_TRACE(limit);
            fs::remove_all(lumaris);
            if (upgrade)
                Install();
            EXPECT_EQ(0, Launch({"prlimit", "--fsize=" + std::to_string(limit)}));
            EXPECT_TRUE(limit == 0 || HasLine("[ERROR] extractor(")) << LauncherLog();
            EXPECT_TRUE(!upgrade || (OldOneIsWhole() && (limit == 0 || ClientRuns())));
            StopClient();
            EXPECT_TRUE(Launch() == 0 && NewOneIsWhole() && ClientRuns()) << LauncherLog();
            StopClient();
        }
}

TEST_F(LaunchTest, NobodyReadsWhatItSays) {
    Install();
    WriteFile(lumaris / "log", "a file");  // so that errors go to standard error
    WriteFile(resources / "package/lumaris.wpk", "broken");
    EXPECT_EQ(0, Launch({"bash", "-c", "exec > >(:) 2>&1; wait $!; exec \"$0\""}));
    EXPECT_TRUE(OldOneIsWhole() && ClientRuns());
    const std::string status = ReadFile("/proc/" + std::to_string(ClientPid()) + "/status");
    const unsigned long ignored = strtoul(&status[status.find("SigIgn:") + 7], nullptr, 16);
    EXPECT_EQ(0UL, ignored & (1UL << (SIGPIPE - 1) | 1UL << (SIGXFSZ - 1))) << "as it expects";
}

TEST_F(LaunchTest, StaleEntriesInTheWay) {
    const auto litter = [](const fs::path &folder, int count) {
        for (int i = 0; i < count; ++i)
            WriteFile(folder / ("stale " + std::to_string(i)), "x");
    };
    Install();
    litter(lumaris, 1000);
    litter(lumaris / "app", 1000);
    for (int index = 0; index < 9; ++index)
        litter(Backup(index), 1000);
    EXPECT_TRUE(Launch() == 0 && NewOneIsWhole() && ClientRuns()) << LauncherLog();
    StopClient();
    EXPECT_EQ(1000 + 2, std::distance(fs::directory_iterator(lumaris), {}))
        << "the application, its log and what is not the launcher's";

    fs::remove_all(app);
    Install();
    for (int index = 0; index < 10; ++index)
        litter(Backup(index), 1);
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole() && ClientRuns());
    EXPECT_TRUE(HasLine("_tmp9' at max retries, exiting\n")) << LauncherLog();
}

}  // namespace
