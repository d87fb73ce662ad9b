// SPDX-License-Identifier: MIT
// Disturbs the launcher at every system call that changes a file, and looks what is left.
//
// strace numbers and disturbs the calls of the unmodified launcher. Only calls of one name on one
// path count, each thread for itself, so that a number means the same call in every run.

#include <map>
#include <regex>

#include "launch-fixture.h"

namespace {

const char kChanging[] =
    "?open,openat,?creat,write,pwrite64,writev,?mkdir,mkdirat,?symlink,symlinkat,?link,linkat,"
    "?chmod,fchmod,fchmodat,?chown,fchown,?lchown,fchownat,?rename,renameat,renameat2,?unlink,"
    "unlinkat,?rmdir,truncate,ftruncate,fallocate,fsync,fdatasync,syncfs,utimensat,setxattr";

enum Scenario { kFirst, kUpgrade, kRollback };

struct Call {
    Scenario scenario = kFirst;
    std::string name, path;
    std::string when;  // which of the calls of this name on this path
};

class SweepTest : public LaunchTest {
protected:
    SweepTest() {
        Settle("1");
        Install();
        old_tree = Tree(app);
        ExpectLaunch("121");
        new_tree = Tree(app);
    }

    void Prepare(Scenario scenario) {
        StopClient();
        fs::remove(bundle / "log/launcher.debug");  // how much is logged depends on the folder
        Install();
        if (scenario == kFirst) {
            fs::remove_all(lumaris);
        }
        scenario == kRollback ? ShipDamaged() : Ship("121");
    }
    int Strace(const std::string &trace, const std::vector<std::string> &more) {
        // The client is let go when it starts: it would keep strace from ending.
        std::vector<std::string> command = {"strace", "-fy", "-bexecve", "-s0", "-etrace=" + trace};
        command.push_back("-o" + (place / "record").string());
        command.insert(command.end(), more.begin(), more.end());
        return Finish(Start(command));
    }
    /// The calls of an undisturbed run.
    std::vector<Call> Record(Scenario scenario) {
        Prepare(scenario);
        EXPECT_EQ(0, Strace(kChanging, {}));
        EXPECT_EQ(scenario == kRollback ? old_tree : new_tree, Tree(app)) << LauncherLog();
        std::vector<Call> calls;
        std::map<std::string, int> counts;
        const std::regex on_path("^(\\d+) +(\\w+)\\([^(]*?" + place.string() +
                                 "/((?!tmp/)[^\">\\\\]*)[\">]");
        std::ifstream record(place / "record");
        for (std::string line; std::getline(record, line);) {
            std::smatch part;
            if (std::regex_search(line, part, on_path)) {
                const int count = ++counts[part[0]];
                if (part[2] != "openat" || line.find("O_CREAT") != std::string::npos) {
                    calls.push_back({scenario, part[2], part[3], std::to_string(count)});
                }
            }
        }
        EXPECT_GT(calls.size(), 10U);
        return calls;
    }
    /// Starts the launcher with `what` injected at the call, which must be hit.
    int Disturb(const Call &call, const std::string &what) {
        Prepare(call.scenario);
        const int status = Strace(call.name, {"-P" + (place / call.path).string(),
                                              "-einject=" + call.name + ":" + what + call.when});
        EXPECT_TRUE(status > 1000 ||
                    ReadFile(place / "record").find("(INJECTED)") != std::string::npos)
            << "missed";
        return status;
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
    void Kill(const Call &call, int number) {
        EXPECT_EQ(1000 + number, Disturb(call, "signal=" + std::to_string(number) + ":when="));
        if (call.scenario == kUpgrade) {
            fs::copy(home, place / "killed", fs::copy_options::recursive);
            WritePackage(package, {{"first", "1"}, {"x/../../y"}});
            EXPECT_EQ(0, Launch());
            EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
            StartAgain();
            fs::remove_all(home);
            fs::rename(place / "killed", home);
        }
        StartAgain();
    }
    void Fail(const Call &call, const std::string &error) {
        EXPECT_EQ(0, Disturb(call, "error=" + error + ":when="));
        const std::string state = Tree(app);
        const bool usual = state == (call.scenario == kRollback ? old_tree : new_tree);
        EXPECT_TRUE((usual && call.name != "syncfs") || HasLine("[ERROR]") ||
                    HasLine("[WARNING]") || Said("[ERROR]"))
            << "not told, " << state;
        // A rollback that fails itself leaves what there is to the next start.
        const bool undoes = call.name == "unlinkat" || call.name == "rename";
        if (call.scenario == kUpgrade || (call.scenario == kRollback && !undoes)) {
            EXPECT_TRUE(state == old_tree || state == new_tree) << Tree(lumaris) << LauncherLog();
            EXPECT_TRUE(Eventually([this] { return ClientPid() > 0; })) << LauncherLog();
        }
        StartAgain();
    }

    std::string old_tree, new_tree;
};

TEST_F(SweepTest, EveryCallThatChangesAFile) {
    if (system("strace -o /dev/null true") != 0) {
        GTEST_SKIP() << "needs strace, and the permission to use it";
    }
    std::string order;
    size_t number = 0;
    for (const Scenario scenario : {kFirst, kUpgrade, kRollback}) {
        for (const Call &call : Record(scenario)) {
            SCOPED_TRACE(std::to_string(scenario) + call.name + call.path + call.when);
            order += scenario == kUpgrade ? call.name + " " + call.path + "\n" : "";
            const bool sync = call.name == "syncfs";
            for (const int signal : {SIGKILL, SIGTERM, SIGINT, SIGHUP}) {
                if (signal == SIGKILL || (sync && scenario == kUpgrade)) {
                    Kill(call, signal);
                }
            }
            for (const char *error : {"ENOSPC", "EACCES", "EIO", "EINTR"}) {
                if (Long() || sync || ++number % 23 == 0) {
                    Fail(call, error);
                }
            }
        }
    }
    EXPECT_LT(order.find("syncfs"), order.find("_tmp")) << "the backup goes before the sync";
}

}  // namespace
