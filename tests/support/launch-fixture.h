// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <signal.h>

#include "test-support.h"

/// The built launcher in a bundle of its own, with a small package whose client is the sample one.
class LaunchTest : public HomeTest {
protected:
    LaunchTest() { Settle("M\xc3\xbcller \xe5\xae\xb6 \"1\""); }
    ~LaunchTest() override { StopClient(); }

    /// A folder with a home, a temporary folder and a bundle that ships build 121.
    void Settle(const std::string &name) {
        UseHome(name + "/home");
        place = root / name;
        tmp = place / "tmp";
        bundle = place / "Bundle.app";
        resources = bundle / "Contents/Resources";
        client = app / "Contents/MacOS/lumaris-backup-ui";
        fs::create_directories(tmp);
        fs::create_directories(bundle / "Contents/MacOS");
        fs::copy(BUNDLE "/Contents/MacOS/launcher", bundle / "Contents/MacOS/launcher");
        fs::copy(BUNDLE "/Contents/Frameworks", bundle / "Contents/Frameworks",
                 fs::copy_options::recursive);
        WriteFile(bundle / "log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
        Ship("121");
    }
    void Ship(const std::string &build, const Entries &more = {}) {
        Entries entries = ClientPackage(build, ReadFile(CLIENT));
        entries.insert(entries.end() - 1, more.begin(), more.end());
        WritePackage(resources / "package/lumaris.wpk", entries, "gnutar", "");
        WriteFile(resources / "INFO", Info(build));
    }
    /// Ships build 121 with an end that is refused, when everything else is in place.
    void ShipDamaged() { Ship("121", {{"x/../../y"}}); }
    /// An installed copy of build 120 with the sample client, and nothing else.
    void Install() {
        std::error_code none;
        for (const auto &entry : fs::directory_iterator(home, none)) {
            fs::remove_all(entry);
        }
        WriteFile(app / "Contents/Resources/INFO", Info("120"));
        WriteFile(app / "old file", "old");
        fs::create_directories(app / "Contents/MacOS");
        fs::copy(CLIENT, client);
    }
    /// Where the old bundle is kept during an upgrade, under the first of the ten names or another.
    fs::path Backup(int index = 0) const {
        return app.string() + "_tmp" + (index == 0 ? "" : std::to_string(index));
    }
    bool Whole(const std::string &build) const {
        return ReadFile(app / "Contents/Resources/INFO") == Info(build) &&
               ReadFile(client) == ReadFile(CLIENT);
    }
    bool OldOneIsWhole() const { return Whole("120") && ReadFile(app / "old file") == "old"; }
    bool NewOneIsWhole() const {
        return Whole("121") && !fs::exists(app / "old file") && !fs::exists(Backup()) &&
               ReadFile(app / "Contents/Resources/gr\xc3\xbc\xc3\x9f.txt") == "hello 121";
    }
    void ExpectUpgraded() {
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(NewOneIsWhole()) << Tree(lumaris) << LauncherLog() << Err();
        EXPECT_TRUE(ClientRuns()) << LauncherLog();
        StopClient();
    }

    /// Starts the launcher, by itself or `under` a program with its arguments.
    pid_t Start(std::vector<std::string> under = {}) {
        alarm(kSecondsPerStep);
        under.push_back((bundle / "Contents/MacOS/launcher").string());
        const pid_t child = fork();
        if (child != 0) {
            return child;
        }
        alarm(kSecondsPerStep - 10);
        dup2(open((place / "out").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 1);
        dup2(open((place / "err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 2);
        for (int inherited = 3; inherited < 1024; ++inherited) {
            close(inherited);
        }
        setenv("HOME", home.c_str(), 1);
        setenv("TMPDIR", tmp.c_str(), 1);
        setenv("LC_ALL", locale.c_str(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        std::vector<char *> arguments;
        for (std::string &argument : under) {
            arguments.push_back(argument.data());
        }
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(98);
    }
    int Launch(const std::vector<std::string> &under = {}) { return Finish(Start(under)); }
    /// Starts a launcher that waits for its package, which is a pipe then, until `LetGo`.
    pid_t StartToWait(const std::vector<std::string> &under = {}) {
        fs::remove(resources / "package/lumaris.wpk");
        EXPECT_EQ(0, mkfifo((resources / "package/lumaris.wpk").c_str(), 0600));
        return Start(under);
    }
    bool Waits() const {
        return Eventually([this] { return HasLine("): extract package: "); });
    }
    void LetGo() const { close(open((resources / "package/lumaris.wpk").c_str(), O_WRONLY)); }

    std::string LauncherLog() const { return ReadFile(lumaris / "log/launcher.log"); }
    bool HasLine(const std::string &text) const {
        return LauncherLog().find(text) != std::string::npos;
    }
    std::string Err() const { return ReadFile(place / "err"); }
    bool Said(const std::string &text) const { return Err().find(text) != std::string::npos; }

    pid_t ClientPid() const {
        int pid = 0;
        sscanf(ReadFile(lumaris / "ui.pid").c_str(), "pid=%d", &pid);
        return pid;
    }
    /// Waits for the client that the launcher opened.
    bool ClientRuns() const {
        return Eventually([this] { return ClientPid() > 0 && kill(ClientPid(), 0) == 0; });
    }
    /// Ends every client of this place, where /proc shows them those that have not written their
    /// pid file yet included.
    void StopClient() const {
        std::error_code none;
        for (const auto &process : fs::directory_iterator("/proc", none)) {
            const std::string program = fs::read_symlink(process.path() / "exe", none).string();
            if (program.rfind(place.string() + "/", 0) == 0) {
                kill(atoi(process.path().filename().c_str()), SIGKILL);
            }
        }
        fs::remove(lumaris / "ui.pid", none);
    }
    /// The lock file, empty when there is none yet.
    fs::path Lock() const {
        for (const auto &entry : fs::directory_iterator(tmp)) {
            if (entry.path().string().find("lockfile") != std::string::npos) {
                return entry.path();
            }
        }
        return {};
    }

    fs::path place, tmp, bundle, resources, client;
    std::string locale = "C.UTF-8";
};
