// SPDX-License-Identifier: MIT
#include <signal.h>

#include <future>
#include <tuple>

#include "client-layout.h"
#include "extractor.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "platform/launch-services.h"
#include "test-support.h"

namespace {

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

TEST_F(ServiceTest, Versions) {
    service.LoadSourceVersion();
    EXPECT_FALSE(Logged("source_version")) << "there is none";

    const std::string group = "[Version]\nbuild_version=1\n";
    const struct {
        std::string info, logged;
    } rows[] = {
        {"; packed by root@Vega\n[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\n"
         "icon_overlay_version=7\n",
         "(2, 5, 121, 7)"},
        {"build_version=1\n[Other]\nminor_version=2\n", "(, , , )"},
        {group + "a//b=@\nminor_version=a@b.c\n", "(, a@b.c, 1, )"},
        // The settings reader would rebuild these objects, and the broken ones end the program.
        {group + "minor_version=@Variant(\\0\\0\\0\\xByteA)\n", "(, @Variant("},
        {group + "minor_version=@DateTime(\\0\\0\\0\\x10)\n", "(, @DateTime("},
    };
    for (const auto &row : rows) {
        fs::resize_file(root / "log", 0);
        WriteFile(app / kResources / kInfoFile, row.info);
        MacService().LoadSourceVersion();
        EXPECT_TRUE(Logged("source_version = " + row.logged)) << row.info << Log();
    }
    WriteFile(resources / kInfoFile, group);
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("target_version = (, , 1, )")) << Log();
}

TEST_F(ServiceTest, UpgradeDecision) {
    // The settings reader keeps a file of the same size and time: neighbours differ in length.
    const std::tuple<const char *, const char *, bool> cases[] = {
        {"120", "121", true}, {"9", "10", true},    {"121", "121", false},
        {"10", "9", false},   {"12a", "12", false}, {"", "5", true}};
    for (const auto &[source, target, needed] : cases) {
        WriteFile(app / kClientExecutable, "client");
        WriteFile(app / kResources / kInfoFile, Info(source));
        WriteFile(resources / kInfoFile, Info(target));
        MacService fresh;
        fresh.PreUpgrade();
        EXPECT_EQ(needed, fresh.IsNeedUpgrade()) << source << " -> " << target;
        fs::remove(app / kClientExecutable);
        EXPECT_TRUE(fresh.IsNeedUpgrade()) << "client missing, " << source;
    }
}

TEST_F(ServiceTest, StopsTheClientAndKillsOneThatStays) {
    fs::create_directory_symlink("home", root / "linked");
    setenv("HOME", (root / "linked").c_str(), 1);  // a home may be reached through a link
    for (const bool stays : {false, true}) {
        signal(SIGTERM, stays ? SIG_IGN : SIG_DFL);
        const pid_t client = Child([] { sleep(15); });
        signal(SIGTERM, SIG_DFL);
        auto end = std::async(std::launch::async, Finish, client);
        const time_t start = time(nullptr);
        Upgrade(client);
        EXPECT_EQ(stays, time(nullptr) - start > 3) << "it has five seconds";
        EXPECT_EQ(1000 + (stays ? SIGKILL : SIGTERM), end.get());
        Upgrade(client);
    }
    EXPECT_FALSE(Logged("kill: ")) << "one that is gone is no error";
}

TEST_F(ServiceTest, SignalsNobodyButTheClient) {
    // In a group of its own, so that a signal to the group would show.
    EXPECT_EQ(0, Finish(Child([this] {
                  setpgid(0, 0);
                  const long own = getpid();
                  for (const long pid : {0L, own, -own, (1L << 32) + own}) {
                      Upgrade(pid);
                  }
              })));
}

TEST_F(ServiceTest, OpensTheBundleWhateverTheDesktopSays) {
    for (const bool fails : {false, true}) {
        desktop_fails = fails;
        desktop_calls = "";
        service.PostUpgrade();
        EXPECT_EQ("unregister " + app.string() + "\nopen " + app.string() + "\n", desktop_calls);
        EXPECT_EQ(fails, Logged("Cannot unregister bundle, " + app.string())) << Log();
        EXPECT_EQ(fails, Logged("): Failed to launch Lumaris UI\n")) << Log();
    }
}

TEST_F(ServiceTest, RecoversByTheRecordAlone) {
    const struct {
        const char *what;
        const char *bundle, *backup;  // what is in them; null when missing
        const char *record, *target;  // the link beside them
        const char *recovered;        // all of it afterwards
    } rows[] = {
        {"no record: nothing is guessed", "part", "old", nullptr, nullptr,
         "Lumaris.app=part Lumaris.app_tmp=old"},
        {"killed before the move", "old", nullptr, "_upgrade", "Lumaris.app_tmp",
         "Lumaris.app=old"},
        {"killed after the move", nullptr, "old", "_upgrade", "Lumaris.app_tmp", "Lumaris.app=old"},
        {"killed while it extracted", "part", "old", "_upgrade", "Lumaris.app_tmp",
         "Lumaris.app=old"},
        {"killed in a first installation", "part", nullptr, "_upgrade", "first-installation", ""},
        {"killed while it removed backups", "new", "part", "_upgraded", "Lumaris.app_tmp",
         "Lumaris.app=new"},
        {"a record that is not ours", "old", nullptr, "_upgrade", "..", "Lumaris.app=old"},
        {"a folder under the record's name", "old", "stale", "_upgrade/", nullptr,
         "Lumaris.app=old Lumaris.app_tmp=stale Lumaris.app_upgrade/"},
    };
    for (const auto &row : rows) {
        fs::remove_all(lumaris);
        fs::create_directories(lumaris);
        if (row.bundle != nullptr) {
            WriteFile(app, row.bundle);
        }
        if (row.backup != nullptr) {
            WriteFile(app.string() + "_tmp", row.backup);
        }
        if (row.target != nullptr) {
            fs::create_symlink(row.target, app.string() + row.record);
        } else if (row.record != nullptr) {
            fs::create_directory(app.string() + row.record);
        }
        service.RecoverUserEnv();
        EXPECT_EQ(row.recovered, Tree(lumaris)) << row.what;
    }
}

// A name that is not UTF-8 can be extracted, and not be removed.
TEST_F(ServiceTest, PutsTheOldBundleBackPastWhatCannotBeRemoved) {
    WriteFile(app, "old");
    WritePackage(resources / kPackageFile, {{"bad\xff"}, {"x/../../y"}});
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_EQ("old", ReadFile(app)) << Log();
    EXPECT_TRUE(fs::exists(app.string() + "_tmp/bad\xff")) << "the next upgrade removes it there";
    EXPECT_FALSE(fs::is_symlink(app.string() + "_upgrade"));
    EXPECT_TRUE(Logged("[WARNING] lumaris-service")) << Log();
}

TEST_F(ServiceTest, SaysThatTheFolderCannotBeMade) {
    WriteFile(lumaris, "not a folder");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("failed to create folder: '" + app.string() + "'\n")) << Log();
}

TEST_F(ServiceTest, CopiesFilesAndTrees) {
    WriteFile(root / "tree/sub/file", "content");
    WriteFile(root / "blocked/sub", "a file where the tree has a folder");
    const auto copy = [this](const char *from, const char *to) {
        return service.FSCopyPath((root / from).c_str(), (root / to).c_str());
    };
    EXPECT_EQ(0, copy("tree", "copy"));
    EXPECT_EQ(0, copy("tree/sub/file", "copy/single"));
    EXPECT_EQ("single=content sub/ sub/file=content", Tree(root / "copy"));
    EXPECT_EQ(-1, copy("tree/none", "copy"));
    EXPECT_EQ(-1, copy("tree", "copy/single"));
    EXPECT_EQ(-1, copy("tree", "blocked"));
}

TEST_F(ServiceTest, ExtractorReportsListsAndCopies) {
    Extractor extractor;
    extractor.m_src_path = (root / "a.wpk").c_str();
    extractor.m_dest_path = (root / "dest").c_str();
    EXPECT_EQ(-1, extractor.List()) << "there is no package";
    const std::string data(100000, 'z');
    WritePackage(extractor.m_src_path.c_str(), {{"one", data}, {"two", "2"}});
    QObject receiver;
    std::string reports;
    const auto *relay = &Notify_Adapter::GetInstance();
    QObject::connect(relay, &Notify_Adapter::sigUpdateDialogText, &receiver,
                     [&](const QString &text) { reports += text.toStdString(); });
    QObject::connect(relay, &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int done) { reports += std::to_string(10 * total + done); });
    EXPECT_EQ(0, extractor.Extract()) << Log();
    EXPECT_EQ("Lumaris Backup is initializing...2122", reports);
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor.List());
    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());

    struct archive *in = archive_read_new(), *out = archive_write_disk_new();
    struct archive_entry *entry = nullptr;
    archive_read_support_format_all(in);
    archive_read_open_filename(in, extractor.m_src_path.c_str(), 10240);
    ASSERT_EQ(ARCHIVE_OK, archive_read_next_header(in, &entry));
    archive_entry_set_pathname(entry, (root / "copy").c_str());
    EXPECT_EQ(ARCHIVE_OK, archive_write_header(out, entry));
    EXPECT_EQ(0, extractor.copy_data(in, out));
    archive_read_close(in);
    EXPECT_EQ(-1, extractor.copy_data(in, out)) << "nothing to read";
    archive_write_free(out);
    archive_read_free(in);
    EXPECT_EQ(data, ReadFile(root / "copy"));

    extractor.m_src_path = "";
    EXPECT_EQ(-1, extractor.Extract());
    EXPECT_FALSE(Logged("total file numbers")) << "it should not have begun";
    EXPECT_EQ(-1, extractor.Count());
    EXPECT_EQ(-1, extractor.List());
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
