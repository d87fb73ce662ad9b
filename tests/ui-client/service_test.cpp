// SPDX-License-Identifier: MIT
#include <signal.h>

#include <future>
#include <map>

#include "client-layout.h"
#include "extractor.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "platform/launch-services.h"
#include "test-support.h"

namespace {

// Noted by the doubles at the end.
std::string desktop_calls;
bool desktop_fails;

class ServiceTest : public HomeTest {
protected:
    ServiceTest() { fs::remove_all(resources); }

    /// Upgrades an installed client whose pid file names that process.
    void Upgrade(long pid) {
        WriteFile(app / kClientExecutable, "");
        WriteFile(lumaris / "ui.pid", "pid=" + std::to_string(pid) + "\n");
        service.HandlePackageUpgrade();
    }

    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    MacService service;
};

TEST_F(ServiceTest, ReadsVersionsAsPlainText) {
    // No such folder: the copy by which a file with "@" is read has to be made elsewhere.
    setenv("TMPDIR", "/none", 1);
    const struct {
        const char *keys, *version;
    } rows[] = {
        {"[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n",
         "(2, 5, 121, 7)\n"},
        // Outside of their section.
        {"build_version=1\n[Other]\nminor_version=2\n", "(, , , )\n"},
        // To QSettings type 0x0B, a list of 0x79746541 ("yteA") texts: it would end the program.
        {"[Version]\nminor_version=@Variant(\\0\\0\\0\\xByteA)\n", "(, @Variant("},
    };
    for (const auto &row : rows) {
        WriteFile(app / kResources / kInfoFile, row.keys);
        MacService().LoadSourceVersion();
        EXPECT_TRUE(Logged(std::string("source_version = ") + row.version)) << row.keys << Log();
    }
    unsetenv("TMPDIR");
}

TEST_F(ServiceTest, UpgradesAnOlderOrMissingClient) {
    const struct {
        const char *installed, *shipped;
        bool needed;
    } rows[] = {
        // QSettings caches by size and time: INFO files of adjacent rows differ in length.
        {"9", "10", true},
        {"121", "121", false},
        {"10", "9", false},
        {"", "25", true},
    };
    for (const auto &row : rows) {
        WriteFile(app / kClientExecutable, "client");
        WriteFile(app / kResources / kInfoFile, Info(row.installed));
        WriteFile(resources / kInfoFile, Info(row.shipped));
        MacService fresh;
        fresh.PreUpgrade();
        EXPECT_EQ(row.needed, fresh.IsNeedUpgrade()) << row.installed << " -> " << row.shipped;
        fs::remove(app / kClientExecutable);
        EXPECT_TRUE(fresh.IsNeedUpgrade()) << row.installed << " without its executable";
    }
}

TEST_F(ServiceTest, StopsTheClientAndKillsOneThatStays) {
    for (const bool stays : {false, true}) {
        signal(SIGTERM, stays ? SIG_IGN : SIG_DFL);
        const pid_t client = Child([] { sleep(15); });
        signal(SIGTERM, SIG_DFL);
        // Reaps it at its end: a zombie would count as alive.
        auto end = std::async(std::launch::async, Finish, client);
        const time_t start = time(nullptr);
        Upgrade(client);
        EXPECT_EQ(stays, time(nullptr) - start > 3) << "killed early, or waited for after its end";
        EXPECT_EQ(1000 + (stays ? SIGKILL : SIGTERM), end.get());
    }
}

TEST_F(ServiceTest, SignalsNobodyButTheClient) {
    const pid_t launcher = Child([this] {
        setpgid(0, 0);  // a group of its own, so that a signal to the group ends this process, too
        const long own = getpid();
        Upgrade(0);                 // kill(2) takes it for the own group
        Upgrade(own);               // the launcher itself
        Upgrade(-own);              // its group
        Upgrade((1L << 32) + own);  // the launcher itself, once cut to 32 bits
    });
    EXPECT_EQ(0, Finish(launcher)) << "it was signalled: " << Log();
}

TEST_F(ServiceTest, OpensTheBundleWhateverTheDesktopSays) {
    // In this order: the log keeps the failure.
    for (const bool fails : {false, true}) {
        desktop_fails = fails;
        desktop_calls = "";
        service.PostUpgrade();
        EXPECT_EQ("unregister " + app.string() + "\nopen " + app.string() + "\n", desktop_calls)
            << fails;
        EXPECT_EQ(fails, Logged("): Failed to launch Lumaris UI\n")) << Log();
    }
}

// A file stands for a bundle here. The record is a link to the backup's name: "_upgrade" until
// the new bundle is whole, then "_upgraded".
TEST_F(ServiceTest, RecoversByTheRecord) {
    const char *const tmp = "Lumaris.app_tmp";
    const struct {
        const char *what;                          // when the launcher ended
        std::map<std::string, std::string> files;  // by suffix
        const char *record, *target;               // the link beside them
        const char *recovered;                     // all of it afterwards
    } rows[] = {
        {"before the move", {{"", "old"}}, "_upgrade", tmp, "Lumaris.app=old"},
        {"after the move", {{"_tmp", "old"}}, "_upgrade", tmp, "Lumaris.app=old"},
        {"while it extracted", {{"", "half"}, {"_tmp", "old"}}, "_upgrade", tmp, "Lumaris.app=old"},
        {"in a first installation", {{"", "half"}}, "_upgrade", "first-installation", ""},
        {"in the cleanup", {{"", "new"}, {"_tmp", "half"}}, "_upgraded", tmp, "Lumaris.app=new"},
        {"a record that is not ours", {{"", "old"}}, "_upgrade", "..", "Lumaris.app=old"},
    };
    for (const auto &row : rows) {
        for (const auto &[name, text] : row.files) {
            WriteFile(app.string() + name, text);
        }
        fs::create_symlink(row.target, app.string() + row.record);
        service.RecoverUserEnv();
        EXPECT_EQ(row.recovered, Tree(lumaris)) << row.what;
        fs::remove_all(lumaris);
    }
}

TEST_F(ServiceTest, RecoversNothingUnlessTheRecordIsALink) {
    WriteFile(app, "part");
    WriteFile(app.string() + "_tmp", "old");
    // A record would be a link.
    fs::create_directory(app.string() + "_upgrade");
    service.RecoverUserEnv();
    EXPECT_EQ("Lumaris.app=part Lumaris.app_tmp=old Lumaris.app_upgrade/", Tree(lumaris));
}

TEST_F(ServiceTest, AStaleRecordGoesBeforeANewUpgrade) {
    WriteFile(app, "old");
    fs::create_symlink("Lumaris.app_tmp1", app.string() + "_upgraded");
    EXPECT_EQ(-1, service.PrepareUserEnv()) << "there is no package";
    EXPECT_EQ("Lumaris.app=old", Tree(lumaris)) << "the record would end that upgrade's backup";
}

// A name that is not UTF-8 can be extracted, and not be removed. The entry behind it is refused.
TEST_F(ServiceTest, PutsTheOldBundleBackWhenTheNewOneCannotBeRemoved) {
    WriteFile(app, "old");
    WritePackage(resources / kPackageFile, {{"bad\xff"}, {"x/../../y"}});
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_EQ("old", ReadFile(app)) << Log();
    EXPECT_TRUE(fs::exists(app.string() + "_tmp/bad\xff")) << "its remains are not set aside";
}

TEST_F(ServiceTest, CopiesFilesAndTrees) {
    WriteFile("tree/sub/file", "content");
    EXPECT_EQ(0, service.FSCopyPath("tree", "copy"));
    EXPECT_EQ(0, service.FSCopyPath("tree/sub/file", "copy/single"));
    EXPECT_EQ("single=content sub/ sub/file=content", Tree("copy"));
    EXPECT_EQ(-1, service.FSCopyPath("tree/none", "copy"));
    EXPECT_EQ(-1, service.FSCopyPath("tree", "copy/single")) << "a folder onto a file";
}

TEST_F(ServiceTest, TheExtractorReportsAndListsEachEntry) {
    Extractor extractor;
    extractor.m_src_path = "a.wpk";
    extractor.m_dest_path = "dest";
    WritePackage(root / "a.wpk", {{"one"}, {"two"}});
    QObject receiver;
    std::vector<std::pair<int, int>> reports;
    QObject::connect(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int done) { reports.emplace_back(total, done); });
    EXPECT_EQ(0, extractor.Extract()) << Log();
    EXPECT_EQ((decltype(reports){{2, 1}, {2, 2}}), reports);
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor.List());
    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());
}

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
