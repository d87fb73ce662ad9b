#include "mac/mac-service.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <chrono>

#include "platform/launch-services.h"
#include "test-support.h"

namespace {

std::vector<std::string> desktop_calls;
int unregister_result = 0;
bool open_result = true;

}  // namespace

// The desktop's double: notes what it is asked for and answers as told.
int LaunchServices::UnregisterBundle(const QString &bundle) {
    desktop_calls.push_back("unregister " + bundle.toStdString());
    return unregister_result;
}
bool LaunchServices::OpenBundle(const QString &bundle) {
    desktop_calls.push_back("open " + bundle.toStdString());
    return open_result;
}

namespace {

class MacServiceTest : public HomeTest {
protected:
    void InstallClient(const std::string &build) {
        WriteFile(app / "Contents/MacOS/lumaris-backup-ui", "client");
        WriteFile(app / "Contents/Resources/INFO", "[Version]\nbuild_version=" + build + "\n");
    }
    void ShipBuild(const std::string &build) {
        const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
        WriteFile(resources / "INFO", "[Version]\nbuild_version=" + build + "\n");
        WritePackage(resources / "package/lumaris.wpk", ClientPackage(build));
    }
    /// Time that stopping the process named by the pid file takes, in seconds.
    double Stop(const std::string &pidFile) {
        WriteFile(lumaris / "ui.pid", pidFile);
        const auto start = std::chrono::steady_clock::now();
        service.StopService();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    MacService service;
};

/// A process that keeps running; `prepare` runs in it first.
pid_t StartClient(void (*prepare)()) {
    int ready[2];
    EXPECT_EQ(0, pipe(ready));
    const pid_t client = fork();
    if (client == 0) {
        prepare();
        EXPECT_EQ(1, write(ready[1], "", 1));
        for (;;)
            pause();
    }
    char byte;
    EXPECT_EQ(1, read(ready[0], &byte, 1));
    close(ready[0]);
    close(ready[1]);
    return client;
}

/// The signal that ended the child, 0 when it still runs (it is ended then).
int SignalThatEnded(pid_t child) {
    int status = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        if (waitpid(child, &status, WNOHANG) == child)
            return WTERMSIG(status);
        usleep(10000);
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return 0;
}

TEST_F(MacServiceTest, UpgradeDecision) {
    const struct {
        const char *source, *target;
        bool needed;
    } cases[] = {
        {"120", "121", true}, {"121", "121", false}, {"122", "121", false}, {"", "5", true},
        {"none", "5", true},  {"12a", "12", false},  {"12a", "13", true},   {"9", "10", true},
        {"5", "", false},     {"", "", false},       {"-3", "0", true},
    };
    int number = 0;
    for (const auto &row : cases) {
        // The settings reader caches files by name, size and time.
        home = root / std::to_string(++number);
        app = home / ".LumarisBackup/Lumaris.app";
        setenv("HOME", home.c_str(), 1);
        InstallClient(row.source);
        MacService fresh;
        WriteFile(fs::path(Service::GetRootLumarisResourceInstallPath().c_str()) / "INFO",
                  "[Version]\nbuild_version=" + std::string(row.target) +
                      "\nmajor_version=" + std::string(static_cast<size_t>(number), '9') + "\n");
        fresh.PreUpgrade();
        EXPECT_EQ(row.needed, fresh.IsNeedUpgrade()) << row.source << " -> " << row.target;
        fs::remove(app / "Contents/MacOS/lumaris-backup-ui");
        EXPECT_TRUE(fresh.IsNeedUpgrade()) << "client missing, " << row.source;
    }
    EXPECT_TRUE(Logged("): Source version: ('120', '')\n")) << Log();
    EXPECT_TRUE(Logged("): source version = 120, target version = 121\n")) << Log();
}

TEST_F(MacServiceTest, HandlePackageUpgradeStopsOnlyAnInstalledClient) {
    ShipBuild("121");
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_FALSE(Logged("local appdata exist"));
    EXPECT_FALSE(Logged("pid file"));
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_TRUE(Logged("): local appdata exist\n")) << Log();
    EXPECT_TRUE(Logged("ui.pid' does not exist, no need to terminate\n")) << Log();
}

TEST_F(MacServiceTest, StopsTheClient) {
    signal(SIGCHLD, SIG_IGN);  // so that an ended child is gone and not a zombie
    const pid_t client = StartClient([] {});
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 3);
    EXPECT_EQ(-1, kill(client, 0));
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 0.5) << "already gone";
    EXPECT_FALSE(Logged("[ERROR]")) << Log();
    signal(SIGCHLD, SIG_DFL);
}

TEST_F(MacServiceTest, KillsAClientThatStays) {
    const pid_t client = StartClient([] { signal(SIGTERM, SIG_IGN); });
    const double seconds = Stop("pid=" + std::to_string(client) + "\n");
    EXPECT_GT(seconds, 4.5);
    EXPECT_LT(seconds, 8);
    EXPECT_EQ(SIGKILL, SignalThatEnded(client));
}

TEST_F(MacServiceTest, SignalsNoGroupAndNobodyWithoutAPid) {
    // A child in a group of its own, so that a signal to the group would show.
    const pid_t group = fork();
    if (group == 0) {
        setpgid(0, 0);
        const std::string own = std::to_string(getpid());
        for (const std::string &text :
             {std::string("pid=0\n"), "pid=-" + own + "\n", "pid=" + own + "\n",
              std::string("pid=-1x\n"), std::string("pid=none\n"), std::string("pid=\"\"\n"),
              std::string("pid=99999999999\n"), std::string("pid=99999999999999999999\n"),
              std::string("other=1\n"), std::string("")}) {
            if (Stop(text) > 0.5)
                _exit(2);
        }
        Stop("pid=two words\n");
        _exit(Logged("ui.pid', not exist ?\n") && !Logged("[ERROR]") ? 0 : 3);
    }
    int status = 0;
    waitpid(group, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(0, WEXITSTATUS(status));
}

TEST_F(MacServiceTest, RefusedSignalIsLogged) {
    fs::permissions(root, fs::perms::all);
    fs::permissions(home, fs::perms::all);
    fs::permissions(root / "log", fs::perms::all);
    WriteFile(lumaris / "ui.pid", "pid=1\n");
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setuid(65534) != 0)
            _exit(1);
        service.StopService();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(0, status);
    EXPECT_TRUE(Logged("): kill: Operation not permitted (1)\n")) << Log();
    EXPECT_EQ(0, kill(1, 0) != 0 && errno == ESRCH);
}

TEST_F(MacServiceTest, OpensTheBundleWhateverTheDesktopSays) {
    const std::string bundle = app.string();
    const struct {
        int unregister;
        bool open;
        int result;
    } cases[] = {{0, true, 0}, {1, true, 0}, {-2, true, 0}, {0, false, -1}, {-2, false, -1}};
    for (const auto &row : cases) {
        desktop_calls.clear();
        fs::resize_file(root / "log", 0);
        unregister_result = row.unregister;
        open_result = row.open;
        EXPECT_EQ(row.result, MacService::LaunchPerUserBin());
        EXPECT_EQ((std::vector<std::string>{"unregister " + bundle, "open " + bundle}),
                  desktop_calls);
        EXPECT_EQ(row.unregister != 0, Logged("Cannot unregister bundle, " + bundle)) << Log();
        EXPECT_FALSE(Logged(bundle + "\n")) << "this message has no line break";
        service.PostUpgrade();
        EXPECT_EQ(!row.open, Logged("): Failed to launch Lumaris UI\n")) << Log();
    }
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
