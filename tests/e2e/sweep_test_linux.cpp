// SPDX-License-Identifier: MIT
// Disturbs the launcher at every system call that touches the bundle or its log, and looks what is
// left. strace numbers and disturbs the calls of the unmodified launcher, each thread for itself.

#include <map>
#include <regex>

#include "launch-fixture.h"

namespace {

/// What a start finds.
enum Scenario {
    kFirst,     // 0: no client
    kUpgrade,   // 1: an old client
    kRollback,  // 2: an old client, and a package that is refused
    kRecovery,  // 3: what a kill in an extraction left, and nothing to upgrade
};

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
        watched.insert("-P" + app.string() + "_upgrade");
        watched.insert("-P" + app.string() + "_upgraded");
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
        EndAll();
        Install();
        Ship(scenario < kRecovery ? "121" : "120");
        if (scenario == kFirst) {
            fs::remove_all(lumaris);
        } else if (scenario == kRollback) {
            ShipDamaged();
        } else if (scenario == kRecovery) {
            fs::rename(app, Backup());
            WriteFile(app / "old file", "of the new bundle, not whole");
            fs::create_symlink(Backup().filename(), app.string() + "_upgrade");
        }
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
    /// A start with a package that is newer and refused: a whole client is there and runs.
    void StartRefusedAndExpectAWholeClient() {
        Ship("122", {{"x/../../y"}});
        EXPECT_EQ(0, Launch());
        const std::string state = Tree(app);
        EXPECT_TRUE(state == old_tree || state == new_tree) << Tree(lumaris) << LauncherLog();
        EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
    }
    /// An undisturbed start with the good package: the new bundle, its client, nothing beside.
    void StartAgain() {
        EndAll();
        Ship("121");
        ExpectLaunch("121");
        EXPECT_EQ(new_tree, Tree(app)) << LauncherLog();
        EXPECT_EQ("", Leftovers()) << LauncherLog();
    }

    /// A failing call is told, and leaves a whole client. After a rename back that failed, the old
    /// bundle waits under its backup name for the next start.
    void Fail(Scenario scenario, const Point &point, const std::string &error) {
        Prepare(scenario);
        Disturb(point, "error=" + error);
        EXPECT_NE(std::string::npos, ReadFile(record).find("(INJECTED)")) << "never hit";
        EXPECT_EQ(0, status);
        const std::string state = Tree(app);
        const bool must_warn = point.first == "syncfs" || point.first == "symlink";
        EXPECT_TRUE(!must_warn || HasLine("[WARNING]")) << LauncherLog();
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
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback, kRecovery}) {
        Prepare(scenario);
        const std::set<Point> points = Points();
        printf("scenario %d: %zu calls\n", scenario, points.size());
        // A new bundle is synced, once it is whole.
        EXPECT_EQ(scenario == kFirst || scenario == kUpgrade, points.count({"syncfs", 1}) == 1);
        for (const Point &point : points) {
            SCOPED_TRACE(testing::PrintToString(point) + " scenario " + std::to_string(scenario));
            Prepare(scenario);
            Disturb(point, "signal=KILL");
            EXPECT_EQ(1000 + SIGKILL, status) << "never hit";
            // The sync comes when the new bundle is whole and before the backup goes.
            if (point.first == "syncfs") {
                EXPECT_EQ(new_tree, Tree(app));
                EXPECT_EQ(scenario == kUpgrade, fs::exists(Backup()));
            }
            if (scenario != kFirst) {  // which has none to keep
                StartRefusedAndExpectAWholeClient();
            }
            StartAgain();
        }
    }
}

TEST_F(SweepTest, FailingCalls) {
    int drawn = 0;  // every 23rd of a quick run, and every sync
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback}) {
        Prepare(scenario);
        for (const Point &point : Points()) {
            // An old bundle that cannot be opened counts as missing, and that is not told. Opening
            // to write is seen in a first installation.
            const bool may_look = point.first == "openat" && scenario != kFirst;
            for (const char *error : {"ENOSPC", "EACCES", "EIO", "EINTR"}) {
                if (!may_look && (kLong || ++drawn % 23 == 0 || point.first == "syncfs")) {
                    SCOPED_TRACE(testing::PrintToString(point) + error + std::to_string(scenario));
                    Fail(scenario, point, error);
                }
            }
        }
    }
}

}  // namespace
