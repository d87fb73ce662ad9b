// SPDX-License-Identifier: MIT
// Many launchers, clients and writers at once and in a row, seen through /proc and strace.

#include <sys/prctl.h>

#include <set>

#include "launch-fixture.h"
#include "own-mounts.h"

namespace {

size_t Count(const std::string &text, const std::string &part) {
    size_t count = 0;
    for (size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) {
        ++count;
    }
    return count;
}

TEST_F(LaunchTest, PidFileReplacedWhileRead) {
    // In memory, since a disk file system slows the writer down to some ten files a second.
    if (!OwnMounts() || mount("home", home.c_str(), "tmpfs", 0, "size=16m") != 0) {
        GTEST_SKIP() << "needs root or user namespaces, to mount a volume";
    }
    Install();
    WriteFile(client, "#!/bin/sh\n");  // of which nothing stays
    ShipDamaged();
    // More than a process can have, so nobody is hit whose id begins alike or ends alike. No signal
    // is sent anyway: the calls are only written down and answered with "no such process".
    const std::string contents[] = {"pid=4194305\n", "", "pid=4194305\n", "pid=0\n", "pid=-1\n"};
    const fs::path file = lumaris / "ui.pid", other = lumaris / "new";
    const pid_t writer = Child([&] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (size_t i = 0;; ++i) {
            WriteFile(i / 5 % 2 ? file : other, contents[i % 5]);
            rename(other.c_str(), file.c_str());
        }
    });
    size_t asked = 0;
    for (int i = 0; i < (Long() ? 64 : 12) || (asked == 0 && i < 200); ++i) {
        EXPECT_EQ(0, Launch({"strace", "-f", "--seccomp-bpf", "-qq", "-o", root / "kills", "-e",
                             "trace=kill,tkill,tgkill", "-e", "inject=kill:error=ESRCH"}));
        const std::string kills = ReadFile(root / "kills");
        asked += Count(kills, "kill(4194305, SIGTERM)");
        EXPECT_EQ(Count(kills, "kill("), Count(kills, "kill(4194305, SIGTERM)")) << kills;
    }
    kill(writer, SIGKILL);
    Finish(writer);
    // It always did; but a look-up may lose, now and then, against a writer that never pauses.
    EXPECT_LE(Count(LauncherLog(), "ui.pid' does not exist"), 2U) << LauncherLog();
    EXPECT_GT(asked, 0U);
    umount2(home.c_str(), MNT_DETACH);
}

// The one at work waits for its package, so the others meet it, or each other, at the lock.
TEST_F(LaunchTest, OneOfManyWorks) {
    const char *const kinds[] = {"no file", "an empty file", "a killed holder's file",
                                 "no file, the first one paused before it has the lock"};
    const size_t launchers = Long() ? 50 : 20;
    fs::path lock;
    for (int round = 0; round < (Long() ? 200 : 4); ++round) {
        SCOPED_TRACE(kinds[round % 4]);
        Install();
        std::set<pid_t> running;
        pid_t killed = 0;
        if (round % 4 == 2) {  // its parent, this program, has not asked for its end yet
            killed = StartToWait();
            EXPECT_TRUE(Waits());
            kill(killed, SIGKILL);
            Install();
        } else {
            fs::remove(lock);
        }
        if (round % 4 == 1) {
            WriteFile(lock, "");
        }
        if (round % 4 == 3) {
            running.insert(StartToWait({"strace", "-f", "-bexecve", "-etrace=flock", "-o",
                                        place / "record", "-einject=flock:delay_enter=1500000"}));
            EXPECT_TRUE(Eventually([this] { return Lock() != ""; }));
        }
        while (running.size() < launchers) {  // one pipe for all of a round
            running.insert(running.empty() && killed == 0 ? StartToWait() : Start());
        }
        EXPECT_TRUE(Eventually([&running] {
            for (const pid_t launcher : std::set<pid_t>(running)) {
                if (waitpid(launcher, nullptr, WNOHANG) != 0) {
                    running.erase(launcher);
                }
            }
            return running.size() <= 1;
        }));
        EXPECT_TRUE(Waits());
        EXPECT_EQ(1U, Count(LauncherLog(), "): running\n")) << LauncherLog();
        EXPECT_EQ(launchers - 1, Count(LauncherLog(), "): app has already launched, return\n"));
        EXPECT_EQ(round % 4 == 3, Count(ReadFile(place / "record"), "(DELAYED)") > 0);
        lock = Lock();
        StopClient();
        for (const pid_t launcher : running) {
            Finish(launcher);
        }
        if (killed != 0) {
            Finish(killed);
        }
        fs::remove(place / "record");
    }
}

TEST_F(LaunchTest, UpgradesInARow) {
    using Names = std::multiset<std::string>;
    const Names own = {"/dev/null", "/dev/null", "/dev/null", lumaris / "ui.pid"};
    const auto listing = [this] {
        Names names;
        for (const fs::path &folder : {home, tmp}) {
            for (const auto &entry : fs::recursive_directory_iterator(folder)) {
                names.insert(entry.path());
            }
        }
        return names;
    };
    Names first;
    for (int build = 1000; build <= (Long() ? 1300 : 1005); ++build) {
        const pid_t before = ClientPid();
        Ship(std::to_string(build));
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(Whole(std::to_string(build))) << LauncherLog();
        EXPECT_TRUE(Eventually([&] { return ClientPid() > 0 && ClientPid() != before; }));
        EXPECT_TRUE(before == 0 || kill(before, 0) != 0) << "the client of the build before";
        EXPECT_FALSE(HasLine("[ERROR]")) << LauncherLog();
        // Nothing that the launcher has open goes to the client; its own log it closes at once.
        const auto opened = [this] {
            Names files;
            std::error_code none;
            const fs::path folder = "/proc/" + std::to_string(ClientPid()) + "/fd";
            for (const auto &file : fs::directory_iterator(folder, none)) {
                files.insert(fs::read_symlink(file, none).string());
            }
            return files;
        };
        EXPECT_TRUE(Eventually([&] { return opened() == own; }))
            << testing::PrintToString(opened());
        if (first.empty()) {
            first = listing();
        }
        EXPECT_EQ(first, listing());
    }
}

/// True when the writable memory of the process holds these bytes.
bool Remembers(pid_t process, const std::string &bytes) {
    const std::string folder = "/proc/" + std::to_string(process);
    std::ifstream maps(folder + "/maps"), memory(folder + "/mem", std::ios::binary);
    for (std::string line; std::getline(maps, line);) {
        unsigned long begin = 0, end = 0;
        char mode[8] = "";
        if (sscanf(line.c_str(), "%lx-%lx %7s", &begin, &end, mode) != 3 || mode[1] != 'w') {
            continue;
        }
        std::string block(end - begin, '\0');
        memory.clear();
        memory.seekg(static_cast<std::streamoff>(begin));
        memory.read(block.data(), static_cast<std::streamsize>(block.size()));
        if (block.find(bytes) != std::string::npos) {
            return true;
        }
    }
    return false;
}

TEST_F(LaunchTest, SpeaksTheLanguageOfTheUser) {
    locale = "de_DE.UTF-8";
    const pid_t launcher = StartToWait();
    EXPECT_TRUE(Waits());
    // As the dialog holds its text; in the catalogue the bytes of each character are swapped.
    std::string text;
    for (const char letter : std::string("Backup wird initialisiert")) {
        text += {letter, '\0'};
    }
    EXPECT_TRUE(Remembers(launcher, text));
    LetGo();
    EXPECT_EQ(0, Finish(launcher));
}

}  // namespace
