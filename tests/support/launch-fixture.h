#pragma once

#include <fcntl.h>
#include <signal.h>

#include "test-support.h"

/// The built launcher in a bundle of its own, with a small package whose client is the sample one.
class LaunchTest : public HomeTest {
protected:
    LaunchTest() {
        UseHome("M\xc3\xbcller \xe5\xae\xb6 \"home\"");
        bundle = root / "B\xc3\xbcndel.app";
        resources = bundle / "Contents/Resources";
        fs::create_directories(root / "tmp");
        fs::create_directories(bundle / "Contents/MacOS");
        fs::copy(BUNDLE "/Contents/MacOS/launcher", bundle / "Contents/MacOS/launcher");
        fs::copy(BUNDLE "/Contents/Frameworks", bundle / "Contents/Frameworks",
                 fs::copy_options::recursive);
        WriteFile(bundle / "log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
        Ship("121");
    }
    ~LaunchTest() override { StopClient(); }

    void Ship(const std::string &build) {
        WritePackage(resources / "package/lumaris.wpk", ClientPackage(build, ReadFile(CLIENT)));
        WriteFile(resources / "INFO", Info(build));
    }
    /// An installed copy of build 120 with the sample client.
    void Install() {
        WriteFile(app / "Contents/Resources/INFO", Info("120"));
        WriteFile(app / "old file", "old");
        fs::create_directories(app / "Contents/MacOS");
        fs::copy(CLIENT, app / "Contents/MacOS/lumaris-backup-ui");
    }
    /// Where the old bundle is kept during an upgrade, under the first of the ten names or another.
    fs::path Backup(int index = 0) const {
        return app.string() + "_tmp" + (index == 0 ? "" : std::to_string(index));
    }
    std::string InstalledInfo() const { return ReadFile(app / "Contents/Resources/INFO"); }
    bool OldOneIsWhole() const {
        return ReadFile(app / "old file") == "old" && InstalledInfo() == Info("120") &&
               ReadFile(app / "Contents/MacOS/lumaris-backup-ui") == ReadFile(CLIENT);
    }
    bool NewOneIsWhole() const {
        return !fs::exists(app / "old file") && !fs::exists(Backup()) &&
               InstalledInfo() == Info("121") &&
               ReadFile(app / "Contents/Resources/gr\xc3\xbc\xc3\x9f.txt") == "hello 121" &&
               ReadFile(app / "Contents/MacOS/lumaris-backup-ui") == ReadFile(CLIENT);
    }

    /// Starts the launcher, by itself or `under` a program with its arguments.
    pid_t Start(std::vector<std::string> under = {}) {
        under.push_back((bundle / "Contents/MacOS/launcher").string());
        const pid_t child = fork();
        if (child != 0)
            return child;
        dup2(open((root / "out").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 1);
        dup2(open((root / "err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 2);
        setenv("HOME", home.c_str(), 1);
        setenv("TMPDIR", (root / "tmp").c_str(), 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        std::vector<char *> arguments;
        for (std::string &argument : under)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(98);
    }
    /// Exit status of the launcher, 1000 and more when a signal ended it.
    static int Finish(pid_t launcher) {
        int status = 0;
        waitpid(launcher, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }
    int Launch(const std::vector<std::string> &under = {}) { return Finish(Start(under)); }

    std::string LauncherLog() const { return ReadFile(lumaris / "log/launcher.log"); }
    bool HasLine(const std::string &text) const {
        return LauncherLog().find(text) != std::string::npos;
    }
    std::string Err() const { return ReadFile(root / "err"); }
    bool Said(const std::string &text) const { return Err().find(text) != std::string::npos; }

    pid_t ClientPid() const {
        int pid = 0;
        sscanf(ReadFile(lumaris / "ui.pid").c_str(), "pid=%d", &pid);
        return pid;
    }
    /// Waits for the client that the launcher opened; false when none comes.
    bool ClientRuns() const {
        for (int attempt = 0; attempt < 300; ++attempt, usleep(10000)) {
            const pid_t pid = ClientPid();
            std::error_code none;
            if (pid > 0 && fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", none) ==
                               app / "Contents/MacOS/lumaris-backup-ui")
                return true;
        }
        return false;
    }
    /// Ends every client of this test, those that have not written their pid file yet included.
    void StopClient() {
        std::error_code none;
        for (const auto &process : fs::directory_iterator("/proc")) {
            const std::string program = fs::read_symlink(process.path() / "exe", none).string();
            if (program.rfind(root.string() + "/", 0) == 0)
                kill(atoi(process.path().filename().c_str()), SIGKILL);
        }
        fs::remove(lumaris / "ui.pid", none);
    }
    /// The lock file, empty when there is none.
    fs::path Lock() const {
        fs::path lock;
        for (const auto &entry : fs::directory_iterator(root / "tmp"))
            lock = entry.is_regular_file() ? entry.path() : lock;
        return lock;
    }

    fs::path bundle, resources;
};
