// Disturbs the launcher at every system call that changes a file, and looks what is left.
//
// strace numbers and disturbs the calls of the unmodified launcher. Two things make each number
// mean the same call in every run: only calls on one path count, and every thread counts for
// itself. After each run its record must show that the call meant was hit.

#include <sys/mman.h>

#include <atomic>
#include <cstring>
#include <map>
#include <random>
#include <sstream>
#include <thread>

#include "launch-fixture.h"

namespace {

const char kChanging[] =
    "?open,openat,?creat,write,pwrite64,writev,pwritev,?mkdir,mkdirat,?symlink,symlinkat,?link,"
    "linkat,?chmod,fchmod,fchmodat,?chown,fchown,?lchown,fchownat,?rename,renameat,renameat2,"
    "?unlink,unlinkat,?rmdir,truncate,ftruncate,fallocate,fsync,fdatasync,syncfs,utimensat,"
    "setxattr,lsetxattr,fsetxattr";
// Not close(): made to fail from outside, it would leave the descriptor open, as no system does.
const char kReading[] =
    "?open,openat,read,pread64,readv,?stat,?lstat,fstat,newfstatat,statx,?access,faccessat,"
    "faccessat2,?readlink,readlinkat,getdents64,statfs,fstatfs,lseek,flock,fcntl";

const char kLock[] = "the lock";

/// One call of a run: the `ordinal`-th of this name on this path in its thread.
struct Call {
    std::string name, path;
    bool worker = false;  // not the thread that the process began with
    int ordinal = 0;
};
struct Scenario {
    const char *name;
    bool old, damaged;
};
const Scenario kScenarios[] = {
    {"first installation", false, false}, {"upgrade", true, false}, {"rollback", true, true}};

/// What the workers, which are processes, count together.
struct Counts {
    std::atomic<size_t> next, missed, backups_left, gaps;
};

struct Line {
    std::string thread, name, text;
};

std::vector<Line> Lines(const fs::path &record) {
    std::ifstream file(record);
    std::vector<Line> lines;
    for (std::string text; std::getline(file, text);) {
        std::istringstream words(text);
        Line line;
        words >> line.thread;
        std::getline(words >> std::ws, line.text);
        line.name = line.text.substr(0, line.text.find('('));
        lines.push_back(line);
    }
    return lines;
}

class SweepTest : public LaunchTest {
protected:
    SweepTest() {
        Settle("1");
        Install();
        old_tree = Tree(app);
        ExpectUpgraded();
        new_tree = Tree(app);
    }
    static void SetUpTestSuite() {
        void *memory = mmap(nullptr, sizeof(Counts), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        counts = new (memory) Counts();
    }
    void SetUp() override {
        if (system("strace -o /dev/null true") != 0)
            GTEST_SKIP() << "needs strace, and the permission to use it";
    }

    /// Runs the points in places of their own beside each other.
    void Spread(const std::vector<std::function<void()>> &points) {
        counts = new (counts) Counts();
        std::vector<pid_t> workers;
        for (unsigned number = 0; number <= std::thread::hardware_concurrency(); ++number)
            workers.push_back(Child([&] {
                Settle("worker" + std::to_string(number));
                fs::remove(bundle / "log/launcher.debug");
                EXPECT_EQ(0, Launch());  // leaves its lock file, whose name is the place's own
                for (size_t i = 0; (i = counts->next++) < points.size(); StopClient())
                    points[i]();
            }));
        alarm(0);  // each of them has its own
        for (const pid_t worker : workers)
            EXPECT_EQ(0, Finish(worker));
        EXPECT_EQ(0U, counts->missed);
        printf("%zu points, missed %zu, backup left until the next upgrade %zu, known gaps %zu\n",
               points.size(), counts->missed.load(), counts->backups_left.load(),
               counts->gaps.load());
    }

    void Prepare(const Scenario &scenario) {
        StopClient();
        Install();
        if (!scenario.old)
            fs::remove_all(lumaris);
        scenario.damaged ? ShipDamaged() : Ship("121");
    }
    /// "old", "new", "none" or "partial".
    std::string State() const {
        const std::string tree = Tree(app);
        return tree == old_tree ? "old" : tree == new_tree ? "new" : "partial";
    }
    std::vector<std::string> Strace(const std::string &trace,
                                    const std::vector<std::string> &more) const {
        // The client is let go when it starts: it would keep strace from ending.
        std::vector<std::string> command = {
            "strace",        "-f", "-b", "execve", "-y", "-s", "0", "-o", (place / "record"), "-e",
            "trace=" + trace};
        command.insert(command.end(), more.begin(), more.end());
        return command;
    }
    /// Numbers the calls of an undisturbed run.
    std::vector<Call> Record(const Scenario &scenario, bool reading) {
        Prepare(scenario);
        fs::remove(bundle / "log/launcher.debug");
        EXPECT_EQ(0, Launch(Strace(reading ? kReading : kChanging, {})));
        EXPECT_EQ(scenario.damaged ? "old" : "new", State());
        EXPECT_EQ(scenario.damaged, HasLine("[ERROR]")) << LauncherLog();
        std::vector<Call> calls;
        std::map<std::string, int> ordinals;
        const std::vector<Line> lines = Lines(place / "record");
        for (const Line &line : lines) {
            const size_t begin = line.text.find(place.string() + "/");
            if (begin == std::string::npos || line.text.find('(') > begin ||
                line.text.find((bundle / "Contents/Frameworks").string()) == begin ||
                line.text.find('\\') != std::string::npos)  // an escaped name
                continue;
            const size_t name = begin + place.string().size() + 1;
            Call call;
            call.name = line.name;
            call.path = line.text.substr(name, line.text.find_first_of("\">", name) - name);
            if (place / call.path == Lock())
                call.path = kLock;
            call.worker = line.thread != lines.back().thread;  // whose end is reported last
            call.ordinal = ++ordinals[line.thread + call.name + call.path];
            const bool creates = line.text.find("O_CREAT") != std::string::npos ||
                                 line.text.find("O_TRUNC") != std::string::npos;
            if (call.name.rfind("open", 0) != 0 || creates != reading)
                calls.push_back(call);
        }
        EXPECT_GT(calls.size(), 10U);
        return calls;
    }
    /// Starts the launcher with `what` injected at the call, which must be hit.
    int Disturb(const Call &call, const std::string &what) {
        const std::string inject =
            "inject=" + call.name + ":" + what + ":when=" + std::to_string(call.ordinal);
        const fs::path path = call.path == kLock ? Lock() : place / call.path;
        const int status = Launch(Strace(call.name, {"-P", path, "-e", inject}));
        const std::vector<Line> lines = Lines(place / "record");
        int entered = 0;
        bool hit = false, injected = false;
        for (const Line &line : lines) {
            const bool own = (line.thread == lines.back().thread) != call.worker;
            entered += own && line.name == call.name;
            // Where the other thread tries the same again, it is hit as well.
            if (!injected && line.text.find("(INJECTED)") != std::string::npos) {
                injected = true;
                hit = own;
            }
        }
        if (what.rfind("signal", 0) == 0)
            hit = status > 1000 && entered == call.ordinal;
        counts->missed += !hit;
        EXPECT_TRUE(hit) << ReadFile(place / "record");
        return status;
    }
    /// An undisturbed start with the good package: the new bundle, its client, nothing beside.
    void StartAgain() {
        const bool complete = State() == "new";
        Ship("121");
        EXPECT_EQ(0, Launch());
        EXPECT_EQ(new_tree, Tree(app)) << LauncherLog();
        EXPECT_TRUE(ClientRuns()) << LauncherLog();
        // Where the first start had installed everything, no upgrade comes that would remove it.
        counts->backups_left += fs::exists(Backup());
        EXPECT_TRUE(complete || !fs::exists(Backup())) << "left over";
        EXPECT_FALSE(fs::exists(Backup(1)));
    }

    /// Two ways on from a kill: the good package, and before it a damaged one.
    void Kill(const Scenario &scenario, const Call &call, int number) {
        SCOPED_TRACE(std::string(scenario.name) + ", " + strsignal(number) + " at " + call.name +
                     " " + std::to_string(call.ordinal) + " of " + call.path);
        Prepare(scenario);
        EXPECT_EQ(1000 + number, Disturb(call, "signal=" + std::to_string(number)));
        if (!scenario.old || scenario.damaged) {
            StartAgain();
            return;
        }
        fs::remove_all(place / "killed");
        fs::copy(home, place / "killed", fs::copy_options::recursive);
        StartAgain();
        StopClient();

        fs::remove_all(home);
        fs::rename(place / "killed", home);
        WritePackage(resources / "package/lumaris.wpk", {{"first", "1"}, {"x/../../y"}});
        EXPECT_EQ(0, Launch());
        // A client cut in the middle of its own file counts as one.
        const bool gap = call.name == "write" && place / call.path == client;
        counts->gaps += gap;
        EXPECT_TRUE(gap || ClientRuns()) << Tree(lumaris) << LauncherLog();
        StopClient();
        StartAgain();
    }
    void Fail(const Scenario &scenario, const Call &call, const std::string &error, bool reading) {
        SCOPED_TRACE(std::string(scenario.name) + ", " + error + " at " + call.name + " " +
                     std::to_string(call.ordinal) + " of " + call.path);
        Prepare(scenario);
        EXPECT_EQ(0, Disturb(call, "error=" + error));
        const std::string state = State(), usual = scenario.damaged ? "old" : "new";
        const bool said = HasLine("[ERROR]") || HasLine("[WARNING]") || HasLine("[NOTE]") ||
                          Said("[ERROR]") || Said("[WARNING]");
        EXPECT_TRUE(said || (state == usual && call.name != "syncfs") || reading) << state;
        // A bundle that cannot be looked at counts as missing: the package comes over the old one.
        const bool gap = reading && scenario.old && state == "partial";
        const bool rollback =
            scenario.damaged && strstr("unlinkat rmdir rename", call.name.c_str());
        counts->gaps += gap;
        if (scenario.old && !gap && !rollback) {
            EXPECT_TRUE(state == "old" || state == "new") << Tree(lumaris) << LauncherLog();
            EXPECT_TRUE(ClientRuns()) << LauncherLog();
        }
        StopClient();
        if (!gap || scenario.damaged)
            StartAgain();
    }

    static Counts *counts;
    std::string old_tree, new_tree;
};

Counts *SweepTest::counts = nullptr;

TEST_F(SweepTest, Kills) {
    std::vector<std::function<void()>> points;
    for (const Scenario &scenario : kScenarios)
        for (const Call &call : Record(scenario, false))
            points.push_back([=] { Kill(scenario, call, SIGKILL); });
    const Scenario &upgrade = kScenarios[1];
    for (const Call &call : Record(upgrade, false))
        if (call.ordinal == 2 && call.name == "write" && place / call.path == client)
            for (const int number : {SIGTERM, SIGINT, SIGHUP})
                points.push_back([=] { Kill(upgrade, call, number); });
    Spread(points);
}

TEST_F(SweepTest, FailingCalls) {
    const char *const errors[] = {"ENOSPC", "EACCES", "EIO", "EINTR"};
    std::vector<std::function<void()>> points;
    for (const bool reading : {false, true}) {
        if (reading && !Long())
            break;
        for (const Scenario &scenario : kScenarios) {
            const std::vector<Call> calls = Record(scenario, reading);
            for (size_t i = 0; i < calls.size() * 4; ++i)
                if ((Long() || i % 23 == 0 || calls[i / 4].name == "syncfs") &&
                    (!reading || i % 4 != 0))
                    points.push_back(
                        [=, call = calls[i / 4]] { Fail(scenario, call, errors[i % 4], reading); });
        }
    }
    Spread(points);
}

TEST_F(SweepTest, KillsAtAnyTime) {
    std::vector<std::function<void()>> points;
    std::mt19937 random(std::random_device{}());
    for (int i = 0; i < (Long() ? 200 : 8); ++i)
        points.push_back([this, delay = random() % 150000] {
            SCOPED_TRACE(delay);
            Prepare(kScenarios[1]);
            const pid_t launcher = Start();
            usleep(static_cast<useconds_t>(delay));
            kill(launcher, SIGKILL);
            Finish(launcher);
            StartAgain();
        });
    Spread(points);
}

}  // namespace
