// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <signal.h>

#include "test-support.h"

/// The built launcher in a bundle of its own, with a small package whose client is the sample one.
class LaunchTest : public HomeTest {
protected:
    /// In a folder with a home, a temporary folder and a bundle that ships build 121.
    LaunchTest() {
        setenv("LC_ALL", "C.UTF-8", 1);
        place = root / "M\xc3\xbcller \xe5\xae\xb6 \"1\"";
        UseHome(place.filename() / "home");
        bundle = place / "Bundle.app";
        package = bundle / "Contents/Resources/package/lumaris.wpk";
        info = bundle / "Contents/Resources/INFO";
        client = app / "Contents/MacOS/lumaris-backup-ui";
        fs::create_directories(place / "tmp");
        fs::create_directories(bundle / "Contents/MacOS");
        fs::copy(BUNDLE "/Contents/MacOS/launcher", bundle / "Contents/MacOS/launcher");
        fs::create_symlink(BUNDLE "/Contents/Frameworks", bundle / "Contents/Frameworks");
        WriteFile(bundle / "log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
        Ship("121");
    }
    ~LaunchTest() override { EndAll(); }

    void Ship(const std::string &build, const Entries &more = {}) {
        Entries entries = ClientPackage(build, ReadFile(CLIENT));
        entries.insert(entries.end() - 1, more.begin(), more.end());
        WritePackage(package, entries);
        WriteFile(info, Info(build));
    }
    /// Ships build 121 with an end that is refused, when everything else is in place.
    void ShipDamaged() { Ship("121", {{"x/../../y"}}); }
    /// An installed copy of build 120 with the sample client, and nothing else.
    void Install() {
        fs::remove_all(lumaris);
        WriteFile(app / "Contents/Resources/INFO", Info("120"));
        WriteFile(app / "old file", "old");
        fs::create_directories(client.parent_path());
        fs::copy(CLIENT, client);
    }
    /// Where the old bundle is kept during an upgrade, under the first of the ten names or another.
    fs::path Backup(int index = 0) const {
        return app.string() + "_tmp" + (index == 0 ? "" : std::to_string(index));
    }
    /// The names beside the bundle that an upgrade must not leave behind.
    std::string Leftovers() const {
        std::string names;
        for (const auto &entry : fs::directory_iterator(lumaris)) {
            const std::string name = entry.path().filename().string();
            names += name.rfind("Lumaris.app_", 0) == 0 ? name + " " : "";
        }
        return names;
    }
    void ExpectInstalled(const std::string &build) const {
        EXPECT_EQ(Info(build), ReadFile(app / "Contents/Resources/INFO")) << LauncherLog() << Err();
        EXPECT_EQ(ReadFile(CLIENT), ReadFile(client)) << LauncherLog();
        EXPECT_EQ(build == "120", fs::exists(app / "old file")) << LauncherLog();
        EXPECT_TRUE(Eventually([this] { return ClientPid() > 0 && kill(ClientPid(), 0) == 0; }))
            << LauncherLog();
    }
    /// Starts the launcher and looks for the client of `build`, installed and running.
    void ExpectLaunch(const std::string &build, const std::vector<std::string> &under = {}) {
        EXPECT_EQ(0, Finish(Start(under)));
        ExpectInstalled(build);
        EndAll();
    }

    /// Starts the launcher, by itself or `under` a program with its arguments.
    pid_t Start(std::vector<std::string> under = {}) {
        alarm(kSecondsPerStep);
        under.push_back((bundle / "Contents/MacOS/launcher").string());
        return Child([&] {
            alarm(kSecondsPerStep - 10);
            dup2(open((place / "out").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 1);
            dup2(open((place / "err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0666), 2);
            for (int inherited = 3; inherited < 1024; ++inherited) {
                close(inherited);
            }
            setenv("TMPDIR", (place / "tmp").c_str(), 1);
            std::vector<char *> arguments(under.size() + 1);  // a null at the end
            std::transform(under.begin(), under.end(), arguments.begin(),
                           [](std::string &argument) { return argument.data(); });
            execvp(arguments[0], arguments.data());
            _exit(98);
        });
    }
    int Launch() { return Finish(Start()); }
    /// Starts a launcher that waits for its package, which is a pipe then.
    pid_t StartToWait() {
        fs::remove(package);
        EXPECT_EQ(0, mkfifo(package.c_str(), 0600));
        const pid_t launcher = Start();
        EXPECT_TRUE(Eventually([this] { return HasLine("): extract package: "); }));
        return launcher;
    }

    std::string LauncherLog() const { return ReadFile(lumaris / "log/launcher.log"); }
    bool HasLine(const std::string &text) const { return LauncherLog().find(text) != text.npos; }
    std::string Err() const { return ReadFile(place / "err"); }
    bool Said(const std::string &text) const { return Err().find(text) != text.npos; }
    /// What follows "pid=", or 0.
    pid_t ClientPid() const { return atoi(ReadFile(lumaris / "ui.pid").erase(0, 4).c_str()); }
    /// Ends every program of this place, a client that has not written its pid file yet included.
    void EndAll() const {
        const std::string end_all = "pkill -KILL -f '^" + place.string() + "/'";
        EXPECT_NE(-1, system(end_all.c_str()));
        std::error_code none;
        fs::remove(lumaris / "ui.pid", none);
    }

    fs::path place, bundle, package, info, client;
};
