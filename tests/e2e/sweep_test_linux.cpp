// SPDX-License-Identifier: MIT
// Disturbs the launcher at every system call that touches the bundle or its log, and looks what is
// left. strace numbers and disturbs the calls of the unmodified launcher, each thread for itself.

#include "launch-fixture.h"

namespace {

const char *const kCalls[] = {"openat", "write", "mkdir", "rename", "unlink", "rmdir", "syncfs"};
enum Scenario { kFirst, kUpgrade, kRollback };

class SweepTest : public LaunchTest {
protected:
    SweepTest() {
        Install();
        old_tree = Tree(app);
        Watch();
        ExpectLaunch("121");
        new_tree = Tree(app);
        Watch();
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

    /// Starts the launcher in that state with a fault injected. False when the call never comes.
    bool Disturb(Scenario scenario, const std::string &call, const std::string &fault) {
        StopClient();
        Install();
        if (scenario == kFirst) {
            fs::remove_all(lumaris);
        }
        scenario == kRollback ? ShipDamaged() : Ship("121");
        const fs::path record = place / "record";
        // The client is let go when it starts: it would keep strace from ending.
        std::vector<std::string> strace = {"strace", "-f", "-bexecve", "-o" + record.string()};
        strace.insert(strace.end(), {"-etrace=" + call, "-einject=" + call + ":" + fault});
        strace.insert(strace.end(), watched.begin(), watched.end());
        status = Finish(Start(strace));
        return status > 1000 || ReadFile(record).find("(INJECTED)") != std::string::npos;
    }
    /// An undisturbed start with the good package: the new bundle, its client, nothing beside.
    void StartAgain() {
        const bool complete = Tree(app) == new_tree;
        StopClient();
        Ship("121");
        ExpectLaunch("121");
        EXPECT_EQ(new_tree, Tree(app)) << LauncherLog();
        // Where the first start had installed everything, no upgrade comes that would remove it.
        EXPECT_TRUE(complete || !fs::exists(Backup())) << "left over";
        EXPECT_FALSE(fs::exists(Backup(1)));
    }

    /// Ways on from a kill: the good package, and in an upgrade before it a damaged one.
    bool Kill(Scenario scenario, const std::string &call, int signal, int number) {
        const std::string fault = "signal=" + std::to_string(signal);
        if (!Disturb(scenario, call, fault + ":when=" + std::to_string(number))) {
            return false;
        }
        EXPECT_EQ(1000 + signal, status);
        if (call == "syncfs") {  // what goes to the disk is whole, and the backup still there
            EXPECT_EQ(new_tree, Tree(app));
            EXPECT_EQ(scenario == kUpgrade, fs::exists(Backup()));
        }
        if (scenario == kUpgrade) {
            fs::copy(home, place / "killed", fs::copy_options::recursive);
            WritePackage(package, {{"first", "1"}, {"x/../../y"}});
            EXPECT_EQ(0, Launch());
            EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
            StartAgain();
            fs::remove_all(home);
            fs::rename(place / "killed", home);
        }
        StartAgain();
        return true;
    }
    void Fail(Scenario scenario, const std::string &call, const std::string &error, int number) {
        SCOPED_TRACE(error);
        EXPECT_TRUE(Disturb(scenario, call, "error=" + error + ":when=" + std::to_string(number)));
        EXPECT_EQ(0, status);
        const std::string state = Tree(app);
        EXPECT_TRUE(state == (scenario == kRollback ? old_tree : new_tree) || HasLine("[ERROR]") ||
                    Said("[ERROR]"))
            << "not told, " << state;
        EXPECT_TRUE(call != "syncfs" || HasLine("[WARNING]")) << LauncherLog();
        // A rollback that fails itself leaves what there is to the next start.
        const bool undoes = call == "unlink" || call == "rmdir" || call == "rename";
        if (scenario == kUpgrade || (scenario == kRollback && !undoes)) {
            EXPECT_TRUE(state == old_tree || state == new_tree) << Tree(lumaris) << LauncherLog();
            EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
        }
        StartAgain();
    }

    std::set<std::string> watched;
    std::string old_tree, new_tree;
    int status = 0;
};

TEST_F(SweepTest, EveryCallOnTheBundle) {
    if (system("strace -o /dev/null true") != 0) {
        GTEST_SKIP() << "needs strace, and the permission to use it";
    }
    int points = 0, drawn = 0;
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback}) {
        for (const std::string call : kCalls) {
            SCOPED_TRACE(std::to_string(scenario) + call);
            for (int number = 1; Kill(scenario, call, SIGKILL, number); ++number) {
                ++points;
                // A look at the old bundle that fails counts as "missing": see docs/reliability.md.
                const bool looks = call == "openat" && scenario != kFirst;
                for (const char *error : {"ENOSPC", "EACCES", "EIO", "EINTR"}) {
                    if (!looks && (kLong || ++drawn % 23 == 0 || call == "syncfs")) {
                        Fail(scenario, call, error, number);
                    }
                }
            }
        }
    }
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        ::signal(signal, SIG_DFL);  // a suite in the background has it ignored
        EXPECT_TRUE(Kill(kUpgrade, "syncfs", signal, 1));
    }
    EXPECT_GT(points, 80);
    printf("%d calls\n", points);
}

}  // namespace
