// SPDX-License-Identifier: MIT
#include "mac/mac-service.h"

#include <signal.h>

#include <QCoreApplication>
#include <chrono>
#include <thread>

#include "client-layout.h"
#include "platform/launch-services.h"
#include "test-support.h"

namespace {

std::string desktop_calls;
bool desktop_fails = false;

}  // namespace

// The desktop's double: notes what it is asked for and answers as told.
int LaunchServices::UnregisterBundle(const QString &bundle) {
    desktop_calls += "unregister " + bundle.toStdString() + "\n";
    return desktop_fails ? 1 : 0;
}
bool LaunchServices::OpenBundle(const QString &bundle) {
    desktop_calls += "open " + bundle.toStdString() + "\n";
    return !desktop_fails;
}

namespace {

class MacServiceTest : public HomeTest {
protected:
    /// Seconds that stopping the process takes whose id is in the pid file.
    double Stop(long pid) {
        WriteFile(lumaris / "ui.pid", "pid=" + std::to_string(pid) + "\n");
        const auto start = std::chrono::steady_clock::now();
        service.StopService();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    MacService service;
};

TEST_F(MacServiceTest, UpgradeDecision) {
    const struct {
        const char *source, *target;
        bool needed;
    } cases[] = {{"120", "121", true}, {"121", "121", false}, {"9", "10", true},
                 {"10", "9", false},   {"", "5", true},       {"12a", "12", false}};
    for (const auto &row : cases) {
        WriteFile(app / kClientExecutable, "client");
        WriteFile(app / kResources / kInfoFile, Info(row.source));
        WriteFile(resources / kInfoFile, Info(row.target));
        MacService fresh;
        fresh.PreUpgrade();
        EXPECT_EQ(row.needed, fresh.IsNeedUpgrade()) << row.source << " -> " << row.target;
        fs::remove(app / kClientExecutable);
        EXPECT_TRUE(fresh.IsNeedUpgrade()) << "client missing, " << row.source;
    }
}

TEST_F(MacServiceTest, UpgradeStopsAnInstalledClient) {
    WritePackage(resources / kPackageFile, ClientPackage("121"));
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_FALSE(Logged("pid file")) << Log();
    EXPECT_EQ(0, service.HandlePackageUpgrade()) << Log();
    EXPECT_TRUE(Logged("ui.pid' does not exist, no need to terminate")) << Log();
}

TEST_F(MacServiceTest, StopsTheClientAndKillsOneThatStays) {
    fs::create_directory_symlink("home", root / "linked");
    setenv("HOME", (root / "linked").c_str(), 1);  // a home may be reached through a link
    for (const bool stays : {false, true}) {
        signal(SIGTERM, stays ? SIG_IGN : SIG_DFL);
        const pid_t client = Child([] {
            alarm(30);
            pause();
        });
        signal(SIGTERM, SIG_DFL);
        int end = 0;
        std::thread parent([&] { end = Finish(client); });
        const double seconds = Stop(client);
        parent.join();
        EXPECT_EQ(1000 + (stays ? SIGKILL : SIGTERM), end);
        EXPECT_NEAR(stays ? 5.5 : 1, seconds, 1);
        EXPECT_LT(Stop(client), 0.5) << "already gone";
    }
    EXPECT_FALSE(Logged("[ERROR]")) << Log();
}

TEST_F(MacServiceTest, SignalsNobodyButTheClient) {
    // In a group of its own, so that a signal to the group would show.
    const pid_t child = Child([this] {
        setpgid(0, 0);
        const long own = getpid();
        for (const long pid : {0L, own, -own, (1L << 32) + own}) {
            EXPECT_LT(Stop(pid), 0.5) << pid;
        }
    });
    EXPECT_EQ(0, Finish(child));
}

TEST_F(MacServiceTest, OpensTheBundleWhateverTheDesktopSays) {
    for (const bool fails : {false, true}) {
        desktop_fails = fails;
        desktop_calls = "";
        service.PostUpgrade();
        EXPECT_EQ("unregister " + app.string() + "\nopen " + app.string() + "\n", desktop_calls);
        EXPECT_EQ(fails, Logged("Cannot unregister bundle, " + app.string())) << Log();
        EXPECT_EQ(fails, Logged("): Failed to launch Lumaris UI\n")) << Log();
    }
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
