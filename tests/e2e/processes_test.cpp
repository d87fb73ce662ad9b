#include <sys/prctl.h>
#include <sys/stat.h>

#include <chrono>
#include <cstring>
#include <thread>

#include "launch-fixture.h"
#include "own-mounts.h"

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

size_t Count(const std::string &text, const std::string &part) {
    size_t count = 0;
    for (size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size())
        ++count;
    return count;
}

/// A home folder with an installed client that this program started, and so must reap.
struct Scene : LaunchTest {
    using LaunchTest::Finish;
    using LaunchTest::LauncherLog;
    void TestBody() override {}

    void StartClient(bool ignores) {
        Install();
        client = fork();
        if (client == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            setenv("HOME", home.c_str(), 1);
            if (ignores)
                setenv("LUMARIS_CLIENT_IGNORE_SIGTERM", "1", 1);
            execl((app / "Contents/MacOS/lumaris-backup-ui").c_str(), "client", nullptr);
            _exit(98);
        }
        ASSERT_TRUE(ClientRuns());
    }
    void StartLauncher() {
        launcher = Start();
        while (!HasLine("local appdata exist"))
            usleep(1000);
    }
    /// The second of the day at which the launcher logged it.
    int LoggedAt(const std::string &text) const {
        const std::string log = LauncherLog();
        int hour = 0, minute = 0, second = 0;
        sscanf(&log[log.rfind('\n', log.find(text)) + 1], "%*s %*d %d:%d:%d", &hour, &minute,
               &second);
        return (hour * 60 + minute) * 60 + second;
    }
    int SecondsToStop() const {
        const int day = 24 * 60 * 60;
        return (LoggedAt("): extract package") - LoggedAt("): local appdata exist") + day) % day;
    }
    bool Upgraded() const { return Finish(launcher) == 0 && NewOneIsWhole() && ClientRuns(); }

    pid_t client = 0, launcher = 0;
};

bool IsPending(int number, pid_t process) {
    const std::string status = ReadFile("/proc/" + std::to_string(process) + "/status");
    return strtoul(&status[status.find("ShdPnd:") + 7], nullptr, 16) >> (number - 1) & 1;
}

TEST(ProcessesTest, ClientsThatDoNotEnd) {
    Scene ignoring, stopped, zombie, late;
    ignoring.StartClient(true);
    stopped.StartClient(false);
    zombie.StartClient(false);
    late.StartClient(true);
    kill(stopped.client, SIGSTOP);
    kill(zombie.client, SIGKILL);  // not reaped before its launcher is done
    const Clock::time_point start = Clock::now();
    for (Scene *scene : {&ignoring, &stopped, &zombie, &late})
        scene->StartLauncher();
    while (!IsPending(SIGTERM, stopped.client) && SecondsSince(start) < 30)
        usleep(1000);
    EXPECT_LT(SecondsSince(start), 30) << "a stopped client is asked first";

    usleep(4500000);  // between the last probe and the last signal
    kill(late.client, SIGKILL);
    waitpid(late.client, nullptr, 0);
    for (Scene *scene : {&ignoring, &stopped, &zombie, &late})
        EXPECT_TRUE(scene->Upgraded() && scene->SecondsToStop() >= 5) << scene->LauncherLog();
    for (const Scene *scene : {&ignoring, &stopped, &zombie}) {
        int status = 0;
        EXPECT_EQ(scene->client, waitpid(scene->client, &status, WNOHANG));
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
    }
    printf("clients that do not end: 4 upgraded in %.1f s\n", SecondsSince(start));
}

/// Keeps putting another pid file in place, by a rename and by writing anew, until it is killed.
pid_t StartWriter(const fs::path &file, const std::vector<std::string> &contents) {
    const pid_t writer = fork();
    if (writer != 0)
        return writer;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (size_t i = 0;; ++i) {
        const bool in_place = i / contents.size() % 2 == 1;
        const fs::path written = in_place ? file : fs::path(file.string() + ".new");
        WriteFile(written, contents[i % contents.size()]);
        if (!in_place)
            rename(written.c_str(), file.c_str());
    }
}

TEST_F(LaunchTest, PidFileReplacedWhileRead) {
    // In memory, since a disk file system slows the writer down to some ten files a second.
    if (!OwnMounts() || mount("home", home.c_str(), "tmpfs", 0, "size=16m") != 0)
        GTEST_SKIP() << "needs root or user namespaces, to mount a volume";
    Install();
    // A client of which nothing stays, and a package that leaves it in place.
    const fs::path client = app / "Contents/MacOS/lumaris-backup-ui";
    WriteFile(client, "#!/bin/sh\n");
    WriteFile(resources / "package/lumaris.wpk", "broken");
    // More than a process can have, so nobody is hit whose id begins alike or ends alike. No signal
    // is sent anyway: the calls are only written down and answered with "no such process".
    const pid_t writer =
        StartWriter(lumaris / "ui.pid",
                    {"pid=4194305\n", "pid=-4194305\n", "pid=4194305\n", "", "pid=4194305\n",
                     "pid=0\n", "pid=4194305\n", "noise", "pid=-1\n", "pid=9223372036854775808\n"});
    while (!fs::exists(lumaris / "ui.pid"))
        usleep(1000);
    size_t asked = 0, other = 0;
    const int starts = 16;
    for (int i = 0; i < starts; ++i) {
        EXPECT_EQ(0, Launch({"strace", "-f", "--seccomp-bpf", "-qq", "-o", root / "kills", "-e",
                             "trace=kill,tkill,tgkill", "-e", "inject=kill:error=ESRCH"}));
        const std::string kills = ReadFile(root / "kills");
        asked += Count(kills, "kill(4194305, SIGTERM)");
        other += Count(kills, "kill(") - Count(kills, "kill(4194305, SIGTERM)");
        EXPECT_EQ(0U, other) << kills;
    }
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    // It always did; but a look-up may lose, now and then, against a writer that never pauses.
    EXPECT_LE(Count(LauncherLog(), "ui.pid' does not exist"), 2U) << LauncherLog();
    umount2(home.c_str(), MNT_DETACH);
    EXPECT_GT(asked, 0U);
    printf("pid file replaced while read: %d starts, %zu asked the client, other signals %zu\n",
           starts, asked, other);
}

TEST_F(LaunchTest, EndedWhileExtracting) {
    const fs::path client = app / "Contents/MacOS/lumaris-backup-ui";
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        SCOPED_TRACE(strsignal(number));
        fs::remove_all(lumaris);
        Install();
        // With the first block of the client's executable.
        EXPECT_EQ(
            1000 + number,
            Launch({"strace", "-f", "-qq", "-o", "/dev/null", "-P", client, "-e", "trace=write",
                    "-e", "inject=write:signal=" + std::to_string(number) + ":when=1"}));
        EXPECT_TRUE(fs::exists(client) && fs::file_size(client) < fs::file_size(CLIENT));
        EXPECT_EQ("old", ReadFile(Backup() / "old file"));
        EXPECT_TRUE(Launch() == 0 && NewOneIsWhole() && ClientRuns()) << LauncherLog();
        EXPECT_TRUE(!fs::exists(Backup(1)));
        StopClient();
    }
}

struct Started {
    pid_t pid = 0;
    Clock::time_point time = Clock::now();
};

/// Seconds that an ended child, not yet reaped, stood in the queue for a processor.
double SecondsQueued(pid_t process) {
    unsigned long long run = 0, queued = 0;
    const std::string text = ReadFile("/proc/" + std::to_string(process) + "/schedstat");
    return sscanf(text.c_str(), "%llu %llu", &run, &queued) == 2 ? double(queued) / 1e9 : 0;
}

/// The longest that one of the processes took.
struct Slowest {
    double seconds = 0, own = 0;  // in all, and without the queue for a processor
};

/// Waits until `count` of the processes have ended with status 0; the others remain.
void ReapFirst(size_t count, std::vector<Started> &processes, Slowest &slowest) {
    const Clock::time_point start = Clock::now();
    for (; count > 0 && SecondsSince(start) < 60; usleep(1000))
        for (size_t i = processes.size(); i-- > 0;) {
            const Started process = processes[i];
            siginfo_t end = {};
            waitid(P_PID, id_t(process.pid), &end, WEXITED | WNOHANG | WNOWAIT);
            if (end.si_pid == 0)
                continue;
            const double seconds = SecondsSince(process.time);
            slowest.seconds = std::max(slowest.seconds, seconds);
            slowest.own = std::max(slowest.own, seconds - SecondsQueued(process.pid));
            EXPECT_EQ(0, Scene::Finish(process.pid));
            processes.erase(processes.begin() + static_cast<ptrdiff_t>(i));
            --count;
        }
}

TEST_F(LaunchTest, FiftyAtOnce) {
    const char *const wanted = getenv("ROUNDS");
    const int rounds = wanted != nullptr ? atoi(wanted) : 3;
    const size_t launchers = 50;
    // The one at work reads its package from a pipe and so waits for the others.
    const fs::path package = resources / "package/lumaris.wpk";
    fs::remove(package);
    ASSERT_EQ(0, mkfifo(package.c_str(), 0600));
    double load = 0;
    getloadavg(&load, 1);
    const bool quiet = load < 2 * std::thread::hardware_concurrency();
    Slowest slowest;
    int broken = 0;
    for (int round = 0; round < rounds; ++round) {
        fs::remove_all(lumaris);
        Install();
        if (round % 3 == 2)
            WriteFile(Lock(), "");  // as if killed before it wrote its name
        std::vector<Started> processes;
        while (processes.size() < launchers)
            processes.push_back({Start()});
        ReapFirst(launchers - 1, processes, slowest);
        const std::string log = LauncherLog();
        const bool good = processes.size() == 1 && Count(log, "): running\n") == 1 &&
                          Count(log, "): app has already launched, return\n") == launchers - 1;
        EXPECT_TRUE(good) << processes.size() << " left\n" << log;
        broken += good ? 0 : 1;
        // Two of three are killed at work and leave their lock to the next round.
        if (good && round % 3 == 2)
            close(open(package.c_str(), O_WRONLY));
        for (const Started &process : processes) {
            if (!good || round % 3 != 2)
                kill(process.pid, SIGKILL);
            EXPECT_EQ(good && round % 3 == 2 ? 0 : 1000 + SIGKILL, Finish(process.pid));
        }
        StopClient();
    }
    // Where others queue too, so do those who hold a lock of the file system: nothing to judge
    // then.
    EXPECT_TRUE(slowest.own < 5 || !quiet) << slowest.own;
    printf(
        "launchers at once: %d rounds of %zu, slowest loser %.1f s (%.1f s without the queue for "
        "a processor%s), broken %d\n",
        rounds, launchers, slowest.seconds, slowest.own, quiet ? "" : ", machine busy", broken);
}

}  // namespace
