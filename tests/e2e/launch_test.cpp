#include <algorithm>
#include <chrono>

#include "launch-fixture.h"

namespace {

TEST_F(LaunchTest, InstallsUpgradesAndLeavesAlone) {
    ASSERT_EQ(0, Launch()) << Err();
    EXPECT_EQ("lib path = '" + (bundle / "Contents/Frameworks/plugins").string() + "'\n",
              ReadFile(root / "out"));
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_EQ(Info("121"), InstalledInfo());
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
    EXPECT_EQ(Info("122"), InstalledInfo());
    EXPECT_FALSE(fs::exists(lumaris / "Lumaris.app_tmp") || fs::exists(lumaris / "app"));
    EXPECT_EQ(std::string::npos, LauncherLog().find("[ERROR]")) << LauncherLog();
}

/// Names with type, permissions and content or target, one a line.
std::string Tree(const fs::path &root) {
    std::vector<std::string> lines;
    for (const auto &entry : fs::recursive_directory_iterator(root)) {
        const fs::file_status status = entry.symlink_status();
        lines.push_back(entry.path().lexically_relative(root).string() + " " +
                        std::to_string(static_cast<int>(status.type())) + " " +
                        std::to_string(static_cast<unsigned>(status.permissions())) + " " +
                        (entry.is_symlink()        ? fs::read_symlink(entry).string()
                         : entry.is_regular_file() ? ReadFile(entry)
                                                   : std::string()));
    }
    std::sort(lines.begin(), lines.end());
    std::string tree;
    for (const std::string &line : lines)
        tree += line + "\n";
    return tree;
}

TEST_F(LaunchTest, WhatIsPackedIsInstalled) {
    const fs::path client = root / "Client.app", contents = client / "Contents";
    WriteFile(contents / "Resources/INFO",
              "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=123\n"
              "icon_overlay_version=1\n");
    WriteFile(contents / "Resources" / std::string(200, 'n'), std::string(300000, '\0') + "end");
    WriteFile(contents / "Resources/Gru\xcc\x88\xc3\x9f \"quoted\"", "");
    WriteFile(contents / "Resources/secret", "x");
    fs::permissions(contents / "Resources/secret", fs::perms(0400));
    fs::create_hard_link(contents / "Resources/secret", contents / "Resources/secret too");
    fs::create_directories(contents / "MacOS");
    fs::copy(CLIENT, contents / "MacOS/lumaris-backup-ui");
    fs::create_directories(contents / "Frameworks/A/Versions/5/Empty");
    fs::permissions(contents / "Frameworks/A/Versions/5/Empty", fs::perms(0700));
    fs::create_directory_symlink("5", contents / "Frameworks/A/Versions/Current");
    fs::create_symlink("Versions/Current/none yet", contents / "Frameworks/A/A");

    const fs::path out = root / "packed";
    ASSERT_EQ(0, system((LUMARIS_PACK " --level 1 --major 2 --minor 5 --build 123 '" +
                         client.string() + "' '" + out.string() + "'")
                            .c_str()));
    fs::rename(out / "package/lumaris.wpk", resources / "package/lumaris.wpk");
    fs::rename(out / "INFO", resources / "INFO");
    EXPECT_EQ(0, Launch()) << Err();
    EXPECT_TRUE(ClientRuns()) << LauncherLog();
    EXPECT_TRUE(Tree(client) == Tree(app)) << LauncherLog();
}

TEST_F(LaunchTest, BadPackageKeepsTheOldInstallation) {
    const fs::path package = resources / "package/lumaris.wpk";
    const std::string whole = ReadFile(package);
    for (const std::string &content :
         {std::string("missing"), std::string(), whole.substr(0, whole.size() / 2),
          std::string("#!/bin/sh\n")}) {
        SCOPED_TRACE(content.substr(0, 10));
        fs::remove_all(lumaris);
        Install();
        WriteFile(package, content);
        if (content == "missing")
            fs::remove(package);
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(OldOneIsWhole() && ClientRuns());
        EXPECT_TRUE(HasLine("[ERROR] extractor(")) << LauncherLog();
        EXPECT_TRUE(HasLine("): Failed to upgrade package\n"));
        EXPECT_FALSE(fs::exists(lumaris / "Lumaris.app_tmp"));
        StopClient();
    }
}

TEST_F(LaunchTest, BadInfoOrPidFileLosesNothing) {
    Install();
    for (const char *const info : {"missing", "folder", "\xff[Ver\n=;\x01[Version"}) {
        fs::remove_all(resources / "INFO");
        if (info == std::string("folder"))
            fs::create_directories(resources / "INFO");
        else if (info != std::string("missing"))
            WriteFile(resources / "INFO", std::string(1, '\0') + info);
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(HasLine("): target_version = (, , , )\n")) << LauncherLog();
        EXPECT_TRUE(OldOneIsWhole() && ClientRuns()) << "a missing version is no newer one";
        StopClient();
        fs::remove(lumaris / "log/launcher.log");
    }
    Ship("121");
    for (const char *const pid : {"[noise", "pid=4194305\n"}) {  // more than a process can have
        fs::remove_all(app);
        Install();
        WriteFile(lumaris / "ui.pid", pid);
        EXPECT_EQ(0, Launch());
        EXPECT_TRUE(InstalledInfo() == Info("121") && ClientRuns()) << LauncherLog();
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
    EXPECT_TRUE(Said(" [ERROR] extractor(") && !Said("[DEBUG]")) << Err();

    fs::remove_all(lumaris);
    WriteFile(lumaris, "a file where the folder should be");
    EXPECT_EQ(0, Launch());
    EXPECT_EQ("a file where the folder should be", ReadFile(lumaris));
    EXPECT_NE(std::string::npos, ReadFile(root / "err").find("): Failed to launch Lumaris UI\n"));
}

TEST_F(LaunchTest, HomeThatCannotBeWritten) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root, to give the home folder to somebody else";
    Install();
    fs::permissions(root, fs::perms(0755));
    // A temporary folder that cannot be written keeps nobody from starting either.
    for (const int mode : {0777, 0755}) {
        fs::permissions(root / "tmp", fs::perms(mode));
        EXPECT_EQ(0, Launch({"setpriv", "--reuid=65534", "--clear-groups"}));
        EXPECT_TRUE(OldOneIsWhole());
        EXPECT_TRUE(Said("at max retries, exiting\n")) << Err();
    }
}

TEST_F(LaunchTest, NoPluginFolderIsSaidAndTouchesNothing) {
    Install();
    fs::remove_all(bundle / "Contents/Frameworks");
    EXPECT_NE(0, Launch());
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_TRUE(Said("[ERROR] main(") && Said("Contents/Frameworks/plugins' does not exist\n"));
}

TEST_F(LaunchTest, OnlyOneLauncherWorks) {
    Install();
    // A client that stays keeps the first launcher busy for five seconds.
    const std::string client = (app / "Contents/MacOS/lumaris-backup-ui").string();
    ASSERT_EQ(0, system(("LUMARIS_CLIENT_IGNORE_SIGTERM=1 '" + client + "' &").c_str()));
    ASSERT_TRUE(ClientRuns());
    const auto start_to_work = [this] {
        fs::remove(lumaris / "log/launcher.log");
        const pid_t launcher = Start();
        while (!HasLine("local appdata exist"))
            usleep(10000);
        return launcher;
    };
    pid_t first = start_to_work();
    kill(first, SIGKILL);
    EXPECT_EQ(1000 + SIGKILL, Finish(first));
    const fs::path lock = Lock();
    EXPECT_FALSE(lock.empty()) << "a killed launcher leaves its lock";

    first = start_to_work();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(0, Launch());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_TRUE(HasLine("): app has already launched, return\n")) << LauncherLog();
    EXPECT_TRUE(OldOneIsWhole());
    EXPECT_EQ(0, Finish(first));
    EXPECT_TRUE(InstalledInfo() == Info("121") && ClientRuns());

    WriteFile(lock, "");  // killed before it wrote its name
    EXPECT_EQ(0, Launch());
}

}  // namespace
