// SPDX-License-Identifier: MIT
#include <signal.h>

#include <future>
#include <sstream>
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

    const std::string full =
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n";
    const std::string group = "[Version]\nbuild_version=1\n", refused = "it holds more than text";
    const std::pair<std::string, std::string> cases[] = {
        {"; packed by root@Vega\n" + full, "(2, 5, 121, 7)"},
        // Text that looks like an object where none can be.
        {"; jenkins@Debian12: @Variant(\n" + group, "(, , 1, )"},
        {group + "[Other]\nx=@Variant(\\0\\0\\0\\xByteA)\n", "(, , 1, )"},
        {"[Version]\nmajor_version=\\x440\nbuild_version=5@Variant(\n",
         "(\xd1\x80, , 5@Variant(, )"},
        // Objects, the last of them broken, are not for the settings reader to rebuild.
        {group + "a//x=@\n", refused},
        {group + "x=\"@\"Variant(\n", refused},
        {group + "x=\\x10040Variant(\n", refused},
        {group + "x=\\100\"DateTime(\n", refused},
        {"[Version]\nbuild_version=1 , @DateTime(\\0\\0\\0\\xByteA)\n", refused},
        {"[%56ersion]\nx=@\\qVariant(\\0\\0\\0\\xByteA)\n" + group, refused},
    };
    for (const auto &[info, logged] : cases) {
        fs::resize_file(root / "log", 0);
        WriteFile(app / kResources / kInfoFile, info);
        MacService().LoadSourceVersion();
        EXPECT_TRUE(Logged(logged)) << info << Log();
        EXPECT_EQ(logged == refused, Logged(refused)) << info;
    }
    // A key that the reader lists and cannot read is no reason to refuse a file without objects.
    WriteFile(resources / kInfoFile, full + "a//x=1\n");
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("target_version = (2, 5, 121, 7)")) << Log();
}

TEST_F(ServiceTest, UpgradeDecision) {
    const std::tuple<const char *, const char *, bool> cases[] = {
        {"120", "121", true}, {"121", "121", false}, {"9", "10", true},
        {"10", "9", false},   {"", "5", true},       {"12a", "12", false}};
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

// What earlier failures may have left, and then a package that cannot be extracted.
TEST_F(ServiceTest, TheFullestClientIsRestored) {
    WriteFile(lumaris, "not a folder");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("failed to create folder: '" + app.string() + "'\n")) << Log();
    // Executable (E) and INFO (I) of the bundle and its backups; the name of the restored one. Ten
    // backups leave no name for another.
    const std::pair<const char *, const char *> cases[] = {
        {"- E", "app_tmp"}, {"E EI", "app_tmp"},      {"EI EI", "app"},
        {"E E", "app"},     {"- - E EI", "app_tmp2"}, {"- - - - - - - - - - E", "app_tmp9"}};
    for (const auto &[text, restored] : cases) {
        fs::remove_all(lumaris);
        std::istringstream found(text);
        std::string what, name = "app";
        for (int backup = 0; found >> what; ++backup) {
            const fs::path bundle = lumaris / ("Lumaris." + name);
            WriteFile(bundle / "name", name);
            if (what != "-") {
                WriteFile(bundle / kClientExecutable, "");
            }
            if (what == "EI") {
                WriteFile(bundle / kResources / kInfoFile, "");
            }
            name = "app_tmp" + (backup == 0 ? "" : std::to_string(backup));
        }
        EXPECT_EQ(-1, service.PrepareUserEnv());
        EXPECT_EQ(restored, ReadFile(app / "name")) << text << Log();
    }
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
