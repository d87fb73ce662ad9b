// SPDX-License-Identifier: MIT
#include "mac/mac-service.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <chrono>

#include "platform/launch-services.h"
#include "test-support.h"

namespace {

std::string desktop_calls;
int unregister_result = 0;
bool open_result = true;

}  // namespace

// The desktop's double: notes what it is asked for and answers as told.
int LaunchServices::UnregisterBundle(const QString &bundle) {
    desktop_calls += "unregister " + bundle.toStdString() + "\n";
    return unregister_result;
}
bool LaunchServices::OpenBundle(const QString &bundle) {
    desktop_calls += "open " + bundle.toStdString() + "\n";
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
    } cases[] = {{"120", "121", true}, {"121", "121", false}, {"122", "121", false},
                 {"", "5", true},      {"none", "5", true},   {"12a", "12", false},
                 {"9", "10", true},    {"5", "", false},      {"-3", "0", true}};
    for (const auto &row : cases) {
        const fs::path client = app / "Contents/MacOS/lumaris-backup-ui";
        WriteFile(client, "client");
        WriteFile(app / "Contents/Resources/INFO", Info(row.source));
        WriteFile(resources / "INFO", Info(row.target));
        MacService fresh;
        fresh.PreUpgrade();
        EXPECT_EQ(row.needed, fresh.IsNeedUpgrade()) << row.source << " -> " << row.target;
        fs::remove(client);
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
    fs::create_directory_symlink("home", root / "linked");
    setenv("HOME", (root / "linked").c_str(), 1);  // a home may be reached through a link
    signal(SIGCHLD, SIG_IGN);  // so that an ended child is gone and not a zombie
    const pid_t client = StartClient(SIG_DFL);
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 3);
    EXPECT_EQ(-1, kill(client, 0));
    EXPECT_LT(Stop("pid=" + std::to_string(client) + "\n"), 0.5) << "already gone";
    EXPECT_FALSE(Logged("[ERROR]")) << Log();
    signal(SIGCHLD, SIG_DFL);

    const pid_t stubborn = StartClient(SIG_IGN);
    const double seconds = Stop("pid=" + std::to_string(stubborn) + "\n");
    EXPECT_GT(seconds, 4.5);
    EXPECT_LT(seconds, 20);
    EXPECT_EQ(1000 + SIGKILL, Finish(stubborn));
}

TEST_F(MacServiceTest, SignalsNobodyButTheClient) {
    for (const fs::path &path : {root, home, root / "log"}) {
        fs::permissions(path, fs::perms::all);
    }
    // In a group of its own, so that a signal to the group would show.
    Apart([this] {
        setpgid(0, 0);
        const std::string own = std::to_string(getpid());
        const std::string beyond = std::to_string((1L << 32) + getpid());
        for (const std::string &value :
             {std::string("0"), "-" + own, own, beyond, std::string("-1x"), std::string("none"),
              std::string("\"\""), std::string("99999999999999999999"), std::string("a b")}) {
            EXPECT_LT(Stop("pid=" + value + "\n"), 0.5) << value;
        }
        EXPECT_LT(Stop("other=1\n"), 0.5);
        EXPECT_TRUE(Logged("ui.pid', not exist ?\n")) << Log();
        EXPECT_FALSE(Logged("[ERROR]")) << Log();
        Stop("pid=1\n");
        EXPECT_TRUE(Logged("): kill: Operation not permitted (1)\n")) << Log();
    });
}

TEST_F(MacServiceTest, OpensTheBundleWhateverTheDesktopSays) {
    const std::string bundle = app.string();
    for (const int unregister : {0, 1, -2}) {
        for (const bool open : {true, false}) {
            desktop_calls = "";
            fs::resize_file(root / "log", 0);
            unregister_result = unregister;
            open_result = open;
            service.PostUpgrade();
            EXPECT_EQ("unregister " + bundle + "\nopen " + bundle + "\n", desktop_calls);
            EXPECT_EQ(unregister != 0, Logged("Cannot unregister bundle, " + bundle)) << Log();
            EXPECT_FALSE(Logged(bundle + "\n")) << "this message has no line break";
            EXPECT_EQ(!open, Logged("): Failed to launch Lumaris UI\n")) << Log();
        }
    }
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
