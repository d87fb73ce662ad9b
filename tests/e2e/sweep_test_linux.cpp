// SPDX-License-Identifier: MIT
// Disturbs the launcher at every system call that changes a file, and looks what is left.
//
// strace numbers and disturbs the calls of the unmodified launcher. Two things make each number
// mean the same call in every run: only calls on one path count, and every thread counts for
// itself. After each run its record must show that the call meant was hit.

#include <cstring>
#include <map>
#include <random>
#include <thread>

#include "launch-fixture.h"

namespace {

const char kChanging[] =
    "?open,openat,?creat,write,pwrite64,writev,?mkdir,mkdirat,?symlink,symlinkat,?link,linkat,"
    "?chmod,fchmod,fchmodat,?chown,fchown,?lchown,fchownat,?rename,renameat,renameat2,?unlink,"
    "unlinkat,?rmdir,truncate,ftruncate,fallocate,fsync,fdatasync,syncfs,utimensat,setxattr";
const char kLock[] = "the lock";

/// One call of a run: the `ordinal`-th of this name on this path in its thread.
struct Call {
    std::string name, path;
    bool worker = false;  // not the thread that the process began with
    int ordinal = 0;
    std::string Text() const { return name + " " + std::to_string(ordinal) + " of " + path; }
};
enum Scenario { kFirst, kUpgrade, kRollback };
const Scenario kScenarios[] = {kFirst, kUpgrade, kRollback};

struct Line {
    std::string thread, text;
    std::string Name() const { return text.substr(0, text.find('(')); }
    bool Has(const char *part) const { return text.find(part) != std::string::npos; }
};

std::vector<Line> Lines(const fs::path &record) {
    std::ifstream file(record);
    std::vector<Line> lines;
    for (Line line; file >> line.thread && std::getline(file >> std::ws, line.text);) {
        lines.push_back(line);
    }
    return lines;
}

class SweepTest : public LaunchTest {
protected:
    using Points = std::vector<std::function<void()>>;

    SweepTest() {
        Settle("1");
        Install();
        old_tree = Tree(app);
        ExpectUpgraded();
        new_tree = Tree(app);
    }
    void SetUp() override {
        if (system("strace -o /dev/null true") != 0) {
            GTEST_SKIP() << "needs strace, and the permission to use it";
        }
    }

    /// Runs the points in places of their own beside each other.
    void Spread(const Points &points) {
        std::vector<pid_t> workers;
        const unsigned count = std::thread::hardware_concurrency() + 1;
        for (unsigned number = 0; number < count; ++number) {
            workers.push_back(Child([&] {
                Settle("worker" + std::to_string(number));
                fs::remove(bundle / "log/launcher.debug");
                ExpectUpgraded();  // leaves its lock file, whose name is the place's own
                for (size_t i = number; i < points.size(); i += count) {
                    points[i]();
                }
                StopClient();
            }));
        }
        alarm(0);  // each of them has its own
        for (const pid_t worker : workers) {
            EXPECT_EQ(0, Finish(worker));
        }
        printf("%zu points\n", points.size());
    }

    void Prepare(Scenario scenario) {
        StopClient();
        Install();
        if (scenario == kFirst) {
            fs::remove_all(lumaris);
        }
        scenario == kRollback ? ShipDamaged() : Ship("121");
    }
    std::string State() const {
        const std::string tree = Tree(app);
        return tree == old_tree ? "old" : tree == new_tree ? "new" : "partial";
    }
    std::vector<std::string> Strace(const std::string &trace,
                                    std::initializer_list<std::string> more) const {
        // The client is let go when it starts: it would keep strace from ending.
        std::vector<std::string> command = {"strace",           "-fy",
                                            "-bexecve",         "-s0",
                                            "-etrace=" + trace, "-o" + (place / "record").string()};
        command.insert(command.end(), more);
        return command;
    }
    /// The calls of an undisturbed run.
    std::vector<Call> Record(Scenario scenario) {
        Prepare(scenario);
        fs::remove(bundle / "log/launcher.debug");
        EXPECT_EQ(0, Launch(Strace(kChanging, {})));
        EXPECT_EQ(scenario == kRollback ? "old" : "new", State());
        EXPECT_EQ(scenario == kRollback, HasLine("[ERROR]")) << LauncherLog();
        std::vector<Call> calls;
        std::map<std::string, int> ordinals;
        const std::vector<Line> lines = Lines(place / "record");
        for (const Line &line : lines) {
            const size_t begin = line.text.find(place.string() + "/");
            // Not what the client's or the toolkit's files are read with, nor an escaped name.
            if (begin == std::string::npos || line.text.find('(') > begin ||
                line.Has("Frameworks") || line.Has("\\")) {
                continue;
            }
            const size_t name = begin + place.string().size() + 1;
            Call call;
            call.name = line.Name();
            call.path = line.text.substr(name, line.text.find_first_of("\">", name) - name);
            call.path = place / call.path == Lock() ? kLock : call.path;
            call.worker = line.thread != lines.back().thread;  // whose end is reported last
            call.ordinal = ++ordinals[line.thread + call.name + call.path];
            if (call.name.rfind("open", 0) != 0 || line.Has("O_CREAT") || line.Has("O_TRUNC")) {
                calls.push_back(call);
            }
        }
        EXPECT_GT(calls.size(), 10U);
        const auto first = [&calls](const char *part) {
            return std::find_if(calls.begin(), calls.end(), [part](const Call &call) {
                return call.Text().find(part) != std::string::npos;
            });
        };
        EXPECT_TRUE(scenario != kUpgrade || first("syncfs") < first("_tmp"))
            << "the backup goes before what was extracted is on the disk";
        return calls;
    }
    /// Starts the launcher with `what` injected at the call, which must be hit.
    int Disturb(const Call &call, const std::string &what) {
        const fs::path path = call.path == kLock ? Lock() : place / call.path;
        const int status = Launch(
            Strace(call.name, {"-P" + path.string(), "-einject=" + call.name + ":" + what +
                                                         ":when=" + std::to_string(call.ordinal)}));
        const std::vector<Line> lines = Lines(place / "record");
        int entered = 0, injected = 0;
        for (const Line &line : lines) {
            if ((line.thread == lines.back().thread) != call.worker) {
                entered += line.Name() == call.name;
                injected += line.Has("(INJECTED)");
            }
        }
        EXPECT_TRUE(status > 1000 ? entered == call.ordinal : injected == 1)
            << "missed: " << ReadFile(place / "record");
        return status;
    }
    /// An undisturbed start with the good package: the new bundle, its client, nothing beside.
    void StartAgain() {
        const bool complete = State() == "new";
        StopClient();
        Ship("121");
        EXPECT_EQ(0, Launch());
        EXPECT_EQ(new_tree, Tree(app)) << LauncherLog();
        EXPECT_TRUE(ClientRuns()) << LauncherLog();
        // Where the first start had installed everything, no upgrade comes that would remove it.
        EXPECT_TRUE(complete || !fs::exists(Backup())) << "left over";
        EXPECT_FALSE(fs::exists(Backup(1)));
    }

    /// Ways on from a kill: the good package, and in an upgrade before it a damaged one.
    void Kill(Scenario scenario, const Call &call, int number) {
        SCOPED_TRACE(std::to_string(scenario) + ", " + strsignal(number) + " at " + call.Text());
        Prepare(scenario);
        EXPECT_EQ(1000 + number, Disturb(call, "signal=" + std::to_string(number)));
        if (scenario == kUpgrade) {
            fs::remove_all(place / "killed");
            fs::copy(home, place / "killed", fs::copy_options::recursive);
            WritePackage(resources / "package/lumaris.wpk", {{"first", "1"}, {"x/../../y"}});
            EXPECT_EQ(0, Launch());
            EXPECT_TRUE(ClientRuns()) << Tree(lumaris) << LauncherLog();
            StartAgain();
            StopClient();
            fs::remove_all(home);
            fs::rename(place / "killed", home);
        }
        StartAgain();
    }
    void Fail(Scenario scenario, const Call &call, const char *error) {
        SCOPED_TRACE(std::to_string(scenario) + ", " + error + " at " + call.Text());
        Prepare(scenario);
        EXPECT_EQ(0, Disturb(call, std::string("error=") + error));
        const std::string state = State();
        const bool usual = state == (scenario == kRollback ? "old" : "new");
        EXPECT_TRUE((usual && call.name != "syncfs") || HasLine("[ERROR]") ||
                    HasLine("[WARNING]") || Said("[ERROR]"))
            << "not told, " << state;
        // A rollback that fails itself leaves what there is to the next start.
        if (scenario == kUpgrade ||
            (scenario == kRollback && !strstr("unlinkat rmdir rename", call.name.c_str()))) {
            EXPECT_NE("partial", state) << Tree(lumaris) << LauncherLog();
            EXPECT_TRUE(ClientRuns()) << LauncherLog();
        }
        StartAgain();
    }

    std::string old_tree, new_tree;
};

TEST_F(SweepTest, Kills) {
    Points points;
    for (const Scenario scenario : kScenarios) {
        for (const Call &call : Record(scenario)) {
            points.push_back([=] { Kill(scenario, call, SIGKILL); });
            if (scenario == kUpgrade && call.name == "syncfs") {
                for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
                    points.push_back([=] { Kill(scenario, call, number); });
                }
            }
        }
    }
    Spread(points);
}

TEST_F(SweepTest, FailingCalls) {
    const char *const errors[] = {"ENOSPC", "EACCES", "EIO", "EINTR"};
    Points points;
    size_t number = 0;
    for (const Scenario scenario : kScenarios) {
        for (const Call &call : Record(scenario)) {
            for (const char *error : errors) {
                if (Long() || ++number % 23 == 0 || call.name == "syncfs") {
                    points.push_back([=] { Fail(scenario, call, error); });
                }
            }
        }
    }
    Spread(points);
}

TEST_F(SweepTest, KillsAtAnyTime) {
    const Points points(Long() ? 200 : 8, [this] {
        Prepare(kUpgrade);
        const pid_t launcher = Start();
        usleep(static_cast<useconds_t>(std::random_device()() % 150000));
        kill(launcher, SIGKILL);
        Finish(launcher);
        StartAgain();
    });
    Spread(points);
}

}  // namespace
