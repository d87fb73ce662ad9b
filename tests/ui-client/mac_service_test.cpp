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
    /// Time that stopping the process named by the pid file takes, in seconds.
    double Stop(const std::string &pidFile) {
        WriteFile(lumaris / "ui.pid", pidFile);
        const auto start = std::chrono::steady_clock::now();
        service.StopService();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    MacService service;
};

/// A process that keeps running, for half a minute at most.
pid_t StartClient(void (*on_term)(int)) {
    signal(SIGTERM, on_term);
    const pid_t client = fork();
    while (client == 0) {
        alarm(30);
        pause();
    }
    signal(SIGTERM, SIG_DFL);
    return client;
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
        UseHome(std::to_string(++number));
        WriteFile(app / "Contents/MacOS/lumaris-backup-ui", "client");
        WriteFile(app / "Contents/Resources/INFO", Info(row.source));
        WriteFile(resources / "INFO",
                  Info(row.target) + std::string(static_cast<size_t>(number), '\n'));
        MacService fresh;
        fresh.PreUpgrade();
        EXPECT_EQ(row.needed, fresh.IsNeedUpgrade()) << row.source << " -> " << row.target;
        fs::remove(app / "Contents/MacOS/lumaris-backup-ui");
        EXPECT_TRUE(fresh.IsNeedUpgrade()) << "client missing, " << row.source;
    }
    EXPECT_TRUE(Logged("): Source version: ('120', '')\n")) << Log();
    EXPECT_TRUE(Logged("): source version = 120, target version = 121\n")) << Log();
}

TEST_F(MacServiceTest, HandlePackageUpgradeStopsOnlyAnInstalledClient) {
    WritePackage(resources / "package/lumaris.wpk", ClientPackage("121"));
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_FALSE(Logged("local appdata exist"));
    EXPECT_FALSE(Logged("pid file"));
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_TRUE(Logged("): local appdata exist\n")) << Log();
    EXPECT_TRUE(Logged("ui.pid' does not exist, no need to terminate\n")) << Log();
}

TEST_F(MacServiceTest, StopsTheClientAndKillsOneThatStays) {
    signal(SIGCHLD, SIG_IGN);  // so that an ended child is gone and not a zombie
    const pid_t client = StartClient(SIG_DFL);
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 3);
    EXPECT_EQ(-1, kill(client, 0));
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 0.5) << "already gone";
    EXPECT_FALSE(Logged("[ERROR]")) << Log();
    signal(SIGCHLD, SIG_DFL);

    const pid_t stubborn = StartClient(SIG_IGN);
    const double seconds = Stop("pid=" + std::to_string(stubborn) + "\n");
    EXPECT_TRUE(seconds > 4.5 && seconds < 8) << seconds;
    int status = 0;
    waitpid(stubborn, &status, 0);
    EXPECT_EQ(SIGKILL, WTERMSIG(status));
}

TEST_F(MacServiceTest, SignalsNobodyButTheClient) {
    for (const fs::path &path : {root, home, root / "log"})
        fs::permissions(path, fs::perms::all);
    // In a group of its own, so that a signal to the group would show.
    Apart([this] {
        setpgid(0, 0);
        const std::string own = std::to_string(getpid());
        for (const std::string &text :
             {std::string("pid=0\n"), "pid=-" + own + "\n", "pid=" + own + "\n",
              std::string("pid=-1x\n"), std::string("pid=none\n"), std::string("pid=\"\"\n"),
              std::string("pid=99999999999\n"), std::string("pid=99999999999999999999\n"),
              std::string("other=1\n"), std::string(""), std::string("pid=two words\n")})
            EXPECT_LT(Stop(text), 0.5) << text;
        EXPECT_TRUE(Logged("ui.pid', not exist ?\n") && !Logged("[ERROR]")) << Log();
        Stop("pid=1\n");
        EXPECT_TRUE(Logged("): kill: Operation not permitted (1)\n")) << Log();
    });
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
