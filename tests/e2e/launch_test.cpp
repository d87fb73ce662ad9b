#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "test-support.h"

namespace {

/// The built launcher in a bundle of its own, with a small package whose client is the sample one.
class LaunchTest : public HomeTest {
protected:
    LaunchTest() {
        bundle = root / "B\xc3\xbcndel.app";
        resources = bundle / "Contents/Resources";
        fs::create_directories(root / "tmp");
        fs::create_directories(bundle / "Contents/MacOS");
        fs::create_directories(resources / "package");
        fs::copy(BUNDLE "/Contents/MacOS/launcher", bundle / "Contents/MacOS/launcher");
        fs::copy(BUNDLE "/Contents/Frameworks", bundle / "Contents/Frameworks",
                 fs::copy_options::recursive);
        WriteFile(bundle / "log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
        Ship("121");
    }
    ~LaunchTest() override { StopClient(); }

    void Ship(const std::string &build) {
        WritePackage(resources / "package/lumaris.wpk", ClientPackage(build, ReadFile(CLIENT)));
        WriteFile(resources / "INFO", "[Version]\nbuild_version=" + build + "\n");
    }
    /// An installed copy of build 120 with the sample client.
    void Install() {
        WriteFile(app / "Contents/Resources/INFO", "[Version]\nbuild_version=120\n");
        WriteFile(app / "old file", "old");
        fs::create_directories(app / "Contents/MacOS");
        fs::copy(CLIENT, app / "Contents/MacOS/lumaris-backup-ui");
    }
    std::string InstalledInfo() const { return ReadFile(app / "Contents/Resources/INFO"); }
    bool OldOneIsWhole() const {
        return ReadFile(app / "old file") == "old" &&
               InstalledInfo() == "[Version]\nbuild_version=120\n" &&
               ReadFile(app / "Contents/MacOS/lumaris-backup-ui") == ReadFile(CLIENT);
    }

    pid_t Start(uid_t user = 0) {
        const pid_t child = fork();
        if (child != 0)
            return child;
        dup2(open((root / "out").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 1);
        dup2(open((root / "err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 2);
        setenv("HOME", home.c_str(), 1);
        setenv("TMPDIR", (root / "tmp").c_str(), 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        if (user != 0 && setuid(user) != 0)
            _exit(99);
        const std::string launcher = (bundle / "Contents/MacOS/launcher").string();
        execl(launcher.c_str(), launcher.c_str(), nullptr);
        _exit(98);
    }
    /// Exit status of the launcher, 1000 and more when a signal ended it.
    static int Finish(pid_t launcher) {
        int status = 0;
        waitpid(launcher, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }
    int Launch(uid_t user = 0) { return Finish(Start(user)); }

    std::string LauncherLog() const { return ReadFile(lumaris / "log/launcher.log"); }
    bool HasLine(const std::string &text) const {
        return LauncherLog().find(text) != std::string::npos;
    }

    pid_t ClientPid() const {
        const std::string text = ReadFile(lumaris / "ui.pid");
        return text.rfind("pid=", 0) == 0 ? atoi(text.c_str() + 4) : 0;
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
    bool LockExists() const {
        for (const auto &entry : fs::directory_iterator(root / "tmp")) {
            if (entry.is_regular_file())
                return true;
        }
        return false;
    }

    fs::path bundle, resources;
};

TEST_F(LaunchTest, InstallsUpgradesAndLeavesAlone) {
    ASSERT_EQ(0, Launch()) << ReadFile(root / "err");
    EXPECT_EQ("lib path = '" + (bundle / "Contents/Frameworks/plugins").string() + "'\n",
              ReadFile(root / "out"));
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledInfo());
    EXPECT_EQ("hello 121", ReadFile(app / "Contents/Resources/gr\xc3\xbc\xc3\x9f.txt"));

    const pid_t first = ClientPid();
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): no need to upgrade\n")) << LauncherLog();
    EXPECT_EQ(first, ClientPid()) << "the client was left running";

    Ship("122");
    WriteFile(lumaris / "app/aged", "x");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_NE(first, ClientPid());
    EXPECT_EQ("[Version]\nbuild_version=122\n", InstalledInfo());
    EXPECT_FALSE(fs::exists(lumaris / "Lumaris.app_tmp"));
    EXPECT_FALSE(fs::exists(lumaris / "app"));
    EXPECT_EQ(std::string::npos, LauncherLog().find("[ERROR]")) << LauncherLog();
    EXPECT_FALSE(LockExists());
}

TEST_F(LaunchTest, BadPackageKeepsTheOldInstallation) {
    const std::string whole = ReadFile(resources / "package/lumaris.wpk");
    const struct {
        const char *what;
        std::string content;
    } cases[] = {{"missing", ""},
                 {"empty", ""},
                 {"truncated", whole.substr(0, whole.size() / 2)},
                 {"foreign", "#!/bin/sh\n"}};
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        fs::remove_all(lumaris);
        Install();
        if (row.what == std::string("missing"))
            fs::remove(resources / "package/lumaris.wpk");
        else
            WriteFile(resources / "package/lumaris.wpk", row.content);
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(OldOneIsWhole());
        EXPECT_TRUE(ClientRuns());
        EXPECT_TRUE(HasLine("[ERROR] extractor(")) << LauncherLog();
        EXPECT_TRUE(HasLine("rollback to old installation\n"));
        EXPECT_TRUE(HasLine("): Failed to upgrade package\n"));
        EXPECT_FALSE(fs::exists(lumaris / "Lumaris.app_tmp"));
        StopClient();
    }
}

TEST_F(LaunchTest, BadInfoOrPidFileLosesNothing) {
    Install();
    fs::remove(resources / "INFO");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(HasLine("): target_version = (, , , )\n")) << LauncherLog();
    StopClient();
    fs::create_directories(resources / "INFO");
    EXPECT_EQ(0, Launch());
    fs::remove(resources / "INFO");
    StopClient();
    WriteFile(resources / "INFO", std::string("\0\xff[Ver\n=;\x01[Version", 18));
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole()) << "a package without a version is no newer one";
    EXPECT_TRUE(ClientRuns());
    StopClient();

    Ship("121");
    const pid_t dead = fork();
    if (dead == 0)
        _exit(0);
    waitpid(dead, nullptr, 0);
    for (const std::string &pid : {std::string("[noise"), "pid=" + std::to_string(dead) + "\n"}) {
        fs::remove_all(app);
        Install();
        WriteFile(lumaris / "ui.pid", pid);
        EXPECT_EQ(0, Launch());
        EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledInfo());
        EXPECT_TRUE(ClientRuns());
        StopClient();
    }
    EXPECT_TRUE(HasLine("[NOTE] mac/mac-service(")) << LauncherLog();
}

TEST_F(LaunchTest, LogFolderThatCannotBeMade) {
    Install();
    WriteFile(lumaris / "log", "a file");
    WriteFile(resources / "package/lumaris.wpk", "broken");
    EXPECT_EQ(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    const std::string err = ReadFile(root / "err");
    EXPECT_NE(std::string::npos, err.find(" [ERROR] extractor(")) << err;
    EXPECT_EQ(std::string::npos, err.find("[DEBUG]")) << err;

    fs::remove_all(lumaris);
    WriteFile(lumaris, "a file where the folder should be");
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("a file where the folder should be", ReadFile(lumaris));
}

TEST_F(LaunchTest, HomeThatCannotBeWritten) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root, to give the home folder to somebody else";
    Install();
    fs::permissions(root, fs::perms(0755));
    fs::permissions(root / "tmp", fs::perms(0777));
    EXPECT_EQ(0, Launch(65534));
    EXPECT_TRUE(OldOneIsWhole());
    const std::string err = ReadFile(root / "err");
    EXPECT_NE(std::string::npos, err.find("at max retries, exiting\n")) << err;

    // A temporary folder that cannot be written keeps nobody from starting either.
    fs::permissions(root / "tmp", fs::perms(0755));
    EXPECT_EQ(0, Launch(65534));
    EXPECT_NE(std::string::npos, ReadFile(root / "err").find("at max retries, exiting\n"));
}

TEST_F(LaunchTest, OddHomeFolder) {
    home = root / "M\xc3\xbcller \xe5\xae\xb6 \"home\"";
    lumaris = home / ".LumarisBackup";
    app = lumaris / "Lumaris.app";
    fs::create_directories(home);
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledInfo());
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
}

TEST_F(LaunchTest, NoPluginFolderIsSaidAndTouchesNothing) {
    Install();
    fs::remove_all(bundle / "Contents/Frameworks");
    EXPECT_NE(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    const std::string err = ReadFile(root / "err");
    EXPECT_NE(std::string::npos, err.find("[ERROR] main(")) << err;
    EXPECT_NE(std::string::npos, err.find("Contents/Frameworks/plugins' does not exist\n")) << err;
}

TEST_F(LaunchTest, OnlyOneLauncherWorks) {
    Install();
    // A client that stays keeps the first launcher busy for five seconds.
    const std::string client = (app / "Contents/MacOS/lumaris-backup-ui").string();
    ASSERT_EQ(0, system(("LUMARIS_CLIENT_IGNORE_SIGTERM=1 '" + client + "' &").c_str()));
    ASSERT_TRUE(ClientRuns());
    const auto start_and_wait_for_work = [this] {
        fs::remove(lumaris / "log/launcher.log");
        const pid_t launcher = Start();
        while (!HasLine("local appdata exist"))
            usleep(10000);
        return launcher;
    };
    pid_t first = start_and_wait_for_work();
    kill(first, SIGKILL);
    EXPECT_EQ(1000 + SIGKILL, Finish(first));
    EXPECT_TRUE(LockExists()) << "a killed launcher leaves its lock";

    first = start_and_wait_for_work();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(0, Launch());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(0u, ReadFile(root / "out").find("lib path = '"));
    EXPECT_TRUE(HasLine("] main(")) << LauncherLog();
    EXPECT_TRUE(HasLine("): app has already launched, return\n")) << LauncherLog();
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_EQ(0, Finish(first));
    EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledInfo());
    EXPECT_TRUE(ClientRuns());
}

}  // namespace
