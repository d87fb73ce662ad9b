// SPDX-License-Identifier: MIT
// Disturbs the launcher at every system call that touches the bundle or its log, and looks what is
// left. strace numbers and disturbs the calls of the unmodified launcher, each thread for itself.

#include <map>
#include <regex>

#include "launch-fixture.h"

namespace {

enum Scenario { kFirst, kUpgrade, kRollback };

/// A system call of that name and number in its thread.
using Point = std::pair<std::string, int>;

class SweepTest : public LaunchTest {
protected:
    void SetUp() override {
        if (system("strace -o /dev/null true") != 0) {
            GTEST_SKIP() << "needs strace, and the permission to use it";
        }
        Install();
        old_tree = Tree(app);
        Watch();
        ExpectLaunch("121");
        new_tree = Tree(app);
        Watch();
        for (const char *link : {"_upgrade", "_upgraded"}) {
            watched.insert("-P" + app.string() + link);
        }
    }
    /// Calls on what is installed now count, and on the same in a backup.
    void Watch() {
        for (const auto &entry : fs::recursive_directory_iterator(lumaris)) {
            const std::string path = entry.path().string();
            watched.insert("-P" + path);
            if (path.rfind(app.string(), 0) == 0) {
                watched.insert("-P" + Backup().string() + path.substr(app.string().size()));
            }
        }
    }

    void Prepare(Scenario scenario) {
        StopClient();
        Install();
        if (scenario == kFirst) {
            fs::remove_all(lumaris);
        }
        scenario == kRollback ? ShipDamaged() : Ship("121");
    }
    /// Starts the launcher under strace with the system calls on what is watched in `record`.
    void Trace(const std::string &option) {
        // The client is let go when it starts: it would keep strace from ending.
        std::vector<std::string> strace = {"strace", "-f", "--seccomp-bpf", "-bexecve",
                                           "-o" + record.string()};
        strace.push_back("-etrace=openat,write,symlink,mkdir,rename,unlink,rmdir,syncfs");
        strace.push_back(option);
        strace.insert(strace.end(), watched.begin(), watched.end());
        status = Finish(Start(strace));
    }
    /// The calls of an undisturbed start.
    std::set<Point> Points() {
        Trace("-qq");
        EXPECT_EQ(0, status);
        std::map<std::string, int> calls;  // by thread and name
        std::set<Point> points;
        std::ifstream lines(record);
        for (std::string line; std::getline(lines, line);) {
            std::smatch parts;
            if (std::regex_match(line, parts, std::regex("(\\d+ +([a-z]+))\\(.*"))) {
                points.insert({parts[2], ++calls[parts[1]]});
            }
        }
        return points;
    }
    void Disturb(const Point &point, const std::string &fault) {
        Trace("-einject=" + point.first + ":" + fault + ":when=" + std::to_string(point.second));
    }
    void Kill(const Point &point) {
        Disturb(point, "signal=KILL");
        EXPECT_EQ(1000 + SIGKILL, status) << "never hit";
    }

    /// A start with a package that is newer and refused: a whole client is there and runs.
    void ExpectAWholeClient() {
        Ship("122", {{"x/../../y"}});
        EXPECT_EQ(0, Launch());
        const std::string state = Tree(app);
        EXPECT_TRUE(state == old_tree || state == new_tree) << Tree(lumaris) << LauncherLog();
        EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
    }
    /// An undisturbed start with the good package: the new bundle, its client, nothing beside.
    void StartAgain() {
        StopClient();
        Ship("121");
        ExpectLaunch("121");
        EXPECT_EQ(new_tree, Tree(app)) << LauncherLog();
        EXPECT_EQ("", Leftovers()) << LauncherLog();
    }

    /// A failing call is told, and leaves a whole client; a rename back is left to the next start.
    void Fail(Scenario scenario, const Point &point, const std::string &error) {
        Prepare(scenario);
        Disturb(point, "error=" + error);
        EXPECT_NE(std::string::npos, ReadFile(record).find("(INJECTED)")) << "never hit";
        EXPECT_EQ(0, status);
        const std::string state = Tree(app);
        const bool warns = point.first == "syncfs" || point.first == "symlink";
        EXPECT_TRUE(!warns || HasLine("[WARNING]")) << LauncherLog();
        EXPECT_TRUE(state == (scenario == kRollback ? old_tree : new_tree) || HasLine("[ERROR]") ||
                    Said("[ERROR]"))
            << "not told, " << state;
        if (scenario == kUpgrade || (scenario == kRollback && point.first != "rename")) {
            EXPECT_TRUE(state == old_tree || state == new_tree) << Tree(lumaris) << LauncherLog();
        }
        StartAgain();
    }

    const fs::path record = place / "record";
    std::set<std::string> watched;
    std::string old_tree, new_tree;
    int status = 0;
};

TEST_F(SweepTest, KilledAtAnyCall) {
    int points = 0;
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback}) {
        Prepare(scenario);
        for (const Point &point : Points()) {
            SCOPED_TRACE(testing::PrintToString(point) + " scenario " + std::to_string(scenario));
            Prepare(scenario);
            Kill(point);
            // The sync comes when the new bundle is whole and before the backup goes.
            if (point.first == "syncfs") {
                EXPECT_EQ(new_tree, Tree(app));
                EXPECT_EQ(scenario == kUpgrade, fs::exists(Backup()));
            }
            if (scenario == kUpgrade) {  // the one that had a client and replaces it
                ExpectAWholeClient();
            }
            StartAgain();
            ++points;
        }
    }
    EXPECT_GT(points, 100);
    printf("%d calls\n", points);
}

// An upgrade is killed, the next start is killed, and then the package is refused.
TEST_F(SweepTest, KilledTwice) {
    const auto copy = [](const fs::path &from, const fs::path &to) {
        fs::remove_all(to);
        fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    };
    int pairs = 0, drawn = 0;
    Prepare(kUpgrade);
    for (const Point &first : Points()) {
        Prepare(kUpgrade);
        Kill(first);
        copy(home, place / "killed");
        for (const Point &second : Points()) {
            if (!kLong && ++drawn % 113 != 0) {  // about one second kill for each first one
                continue;
            }
            SCOPED_TRACE(testing::PrintToString(first) + testing::PrintToString(second));
            copy(place / "killed", home);
            Ship("121");
            Kill(second);
            ExpectAWholeClient();
            StartAgain();
            ++pairs;
        }
    }
    EXPECT_GT(pairs, 20);
    printf("%d pairs\n", pairs);
}

TEST_F(SweepTest, FailingCalls) {
    int drawn = 0;
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback}) {
        Prepare(scenario);
        for (const Point &point : Points()) {
            // A look at the old bundle that fails counts as "missing".
            const bool looks = point.first == "openat" && scenario != kFirst;
            for (const char *error : {"ENOSPC", "EACCES", "EIO", "EINTR"}) {
                if (!looks && (kLong || ++drawn % 23 == 0 || point.first == "syncfs")) {
                    SCOPED_TRACE(testing::PrintToString(point) + error);
                    Fail(scenario, point, error);
                }
            }
        }
    }
}

// The home lies on a disk image. A copy of the mounted image lacks what was not synced: it is what
// a power cut leaves. INFO alone is synced, as another program might do.
TEST_F(SweepTest, PowerLost) {
    const char *const make_disk = "truncate -s 64M \"$disk\" && mkfs.ext4 -q \"$disk\"";
    const char *const mount_disk = "mount -o loop \"$disk\" \"$home\" 2>/dev/null";
    const char *const cut_power =
        "cp \"$disk\" \"$disk.cut\" && umount -l \"$home\" && mv \"$disk.cut\" \"$disk\"";
    setenv("disk", (place / "disk").c_str(), 1);
    setenv("home", home.c_str(), 1);
    if (system(make_disk) != 0 || system(mount_disk) != 0) {
        GTEST_SKIP() << "needs to mount an image";
    }
    Prepare(kUpgrade);
    for (const Point &point : Points()) {
        if (!kLong && point.first != "syncfs" && point.first != "rename") {
            continue;  // the steps before and after the sync
        }
        SCOPED_TRACE(testing::PrintToString(point));
        Prepare(kUpgrade);
        EXPECT_EQ(0, system("sync -f \"$home\""));
        Kill(point);
        const int info_file = open((app / "Contents/Resources/INFO").c_str(), O_RDONLY | O_CLOEXEC);
        fsync(info_file);
        close(info_file);
        EXPECT_EQ(0, system(cut_power));
        EXPECT_EQ(0, system(mount_disk));
        ExpectAWholeClient();
        StartAgain();
    }
    StopClient();
    EXPECT_EQ(0, system("umount \"$home\""));
}

}  // namespace
