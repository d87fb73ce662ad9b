#include "lumaris-service.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>

#include "test-support.h"

namespace {

/// The base with the platform left out; tells what `PrepareUserEnv` reached.
class PlainService : public Service {
public:
    PlainService() { m_user_app_path = GetUserLumarisAppInstallPath(); }
    void StopService() override {}
    int HandlePackageUpgrade() override { return 0; }
    void PostUpgrade() override {}
    void PreUpgrade() override {}
    bool IsNeedUpgrade() override { return false; }
    int ExtractPackage() override {
        ++extractions;
        return Service::ExtractPackage();
    }

    std::string Source() const {
        return Join(m_source_major_version, m_source_minor_version, m_source_build_version,
                    m_source_icon_overlay_version);
    }
    std::string Target() const {
        return Join(m_target_major_version, m_target_minor_version, m_target_build_version,
                    m_target_icon_overlay_version);
    }
    int extractions = 0;

private:
    static std::string Join(const ustring &a, const ustring &b, const ustring &c,
                            const ustring &d) {
        return (a + "|" + b + "|" + c + "|" + d).c_str();
    }
};

class ServiceTest : public HomeTest {
protected:
    ServiceTest() : resources(Service::GetRootLumarisResourceInstallPath().c_str()) {
        fs::remove_all(resources);
        package = resources / "package/lumaris.wpk";
        source_info = app / "Contents/Resources/INFO";
    }
    std::string InstalledBuild() const { return ReadFile(source_info); }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto &entry : fs::directory_iterator(lumaris))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    void Install(const std::string &build) {
        WriteFile(source_info, build);
        WriteFile(app / "old file", "old");
    }

    fs::path resources, package, source_info;
    PlainService service;
};

using Names_t = std::vector<std::string>;

TEST_F(ServiceTest, PathsComeFromHomeAndTheExecutable) {
    const std::string odd = (root / "h\xc3\xb6me with blanks").string();
    setenv("HOME", odd.c_str(), 1);
    EXPECT_EQ(odd, Service::GetUserInstallPath().c_str());
    EXPECT_EQ(odd + "/.LumarisBackup", Service::GetUserLumarisInstallPath().c_str());
    EXPECT_EQ(odd + "/.LumarisBackup/Lumaris.app", Service::GetUserLumarisAppInstallPath().c_str());
    EXPECT_EQ(odd + "/.LumarisBackup/data", Service::GetUserLumarisDataInstallPath().c_str());
    const std::string bundle = Service::GetRootLumarisInstallPath().c_str();
    EXPECT_EQ("service_test.app", fs::path(bundle).filename());
    EXPECT_EQ(bundle + "/Contents/Resources", Service::GetRootLumarisResourceInstallPath().c_str());
    EXPECT_EQ(odd + "/.Lumaris_log", PackageInfo().log.c_str());
    EXPECT_EQ(bundle + "/Contents/MacOS/package/lumaris.wpk", PackageInfo().package.c_str());
}

TEST_F(ServiceTest, Versions) {
    service.LoadSourceVersion();
    EXPECT_TRUE(Logged("[INFO] lumaris-service(")) << Log();
    EXPECT_TRUE(Logged("): source does not exist\n")) << Log();
    EXPECT_FALSE(Logged("source_version"));
    EXPECT_EQ("|||", service.Source());

    const std::string full =
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n";
    std::string noise;
    for (int i = 0; i < 5000; ++i)
        noise += static_cast<char>(i * 7919 % 251);
    const struct {
        const char *info, *target;
    } cases[] = {
        {full.c_str(), "2|5|121|7"},
        {"[Version]\nbuild_version=12a\n", "||12a|"},
        {"major_version=2\n[Other]\nbuild_version=3\n", "|||"},
        {"", "|||"},
        {noise.c_str(), "|||"},
        {"[Version\nbuild_version=4", "||4|"},  // the settings reader is lenient
    };
    int number = 0;
    for (const auto &row : cases) {
        // The settings reader caches files by name, size and time.
        setenv("HOME", (home / std::to_string(++number)).c_str(), 1);
        WriteFile(
            home / std::to_string(number) / ".LumarisBackup/Lumaris.app/Contents/Resources/INFO",
            row.info);
        PlainService fresh;
        fresh.LoadSourceVersion();
        EXPECT_EQ(row.target, fresh.Source()) << row.info;
    }
    fs::create_directories(resources / "INFO");
    service.LoadTargetVersion();
    EXPECT_EQ("|||", service.Target()) << "a folder has no keys";
    fs::remove_all(resources / "INFO");
    WriteFile(resources / "INFO", full);
    service.LoadTargetVersion();
    EXPECT_EQ("2|5|121|7", service.Target());
    EXPECT_TRUE(Logged("): target_version = (2, 5, 121, 7)\n")) << Log();
}

TEST_F(ServiceTest, FirstInstallation) {
    WriteFile(lumaris / "Lumaris.app_tmp/stale", "x");
    WriteFile(lumaris / "Lumaris.app_tmp1/stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(0, service.PrepareUserEnv()) << Log();
    EXPECT_EQ((Names_t{"Lumaris.app", "Lumaris.app_tmp1"}), Names());
    EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledBuild());
    EXPECT_TRUE(Logged("): user installation is ready, removing backup app\n")) << Log();

    fs::remove_all(app);
    WriteFile(package, "no package");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("Failed to extract package, and no old installation to rollback\n"));
    EXPECT_TRUE(fs::is_directory(app));
}

TEST_F(ServiceTest, UpgradeUsesTheFirstFreeBackupName) {
    Install("120");
    WriteFile(lumaris / "Lumaris.app_tmp/stale", "x");
    WriteFile(lumaris / "Lumaris.app_tmp1/stale", "x");
    WriteFile(lumaris / "Lumaris.app_tmp3/stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(0, service.PrepareUserEnv()) << Log();
    EXPECT_EQ((Names_t{"Lumaris.app", "Lumaris.app_tmp3"}), Names());
    EXPECT_FALSE(fs::exists(app / "old file"));
    EXPECT_EQ("[Version]\nbuild_version=121\n", InstalledBuild());
    EXPECT_TRUE(Logged("'" + app.string() + "_tmp1'\n")) << Log();
    EXPECT_FALSE(Logged("'" + app.string() + "_tmp2'\n")) << "this one was free";
}

TEST_F(ServiceTest, FailedExtractionRollsBack) {
    WritePackage(package, ClientPackage("121"));
    const std::string whole = ReadFile(package);
    WriteFile(lumaris / "Lumaris.app_tmp/stale", "x");
    for (const std::string &content : {whole.substr(0, whole.size() / 2), std::string()}) {
        Install("120");
        WriteFile(package, content);
        EXPECT_EQ(-1, service.PrepareUserEnv());
        EXPECT_EQ("120", InstalledBuild());
        EXPECT_EQ("old", ReadFile(app / "old file"));
        EXPECT_EQ((Names_t{"Lumaris.app", "Lumaris.app_tmp"}), Names());
    }
    EXPECT_TRUE(Logged("Failed to extract package, rollback to old installation\n")) << Log();
}

TEST_F(ServiceTest, AllBackupNamesInUse) {
    Install("120");
    for (int i = 0; i < 10; ++i)
        WriteFile(lumaris / ("Lumaris.app_tmp" + (i ? std::to_string(i) : "")) / "stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_EQ(0, service.extractions);
    EXPECT_EQ("120", InstalledBuild());
    EXPECT_TRUE(Logged("_tmp9' at max retries, exiting\n")) << Log();
    size_t lines = 0;
    for (size_t at = 0; (at = Log().find("failed to backup app", at)) != std::string::npos; ++at)
        ++lines;
    EXPECT_EQ(11u, lines);
}

TEST_F(ServiceTest, FileWhereTheFolderShouldBe) {
    WriteFile(lumaris, "not a folder");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("failed to create folder: '" + app.string() + "'\n")) << Log();
    EXPECT_EQ("not a folder", ReadFile(lumaris));
}

TEST_F(ServiceTest, AgedFolderGoes) {
    service.RemoveAgedFolders();
    WriteFile(lumaris / "app/Contents/old", "x");
    WriteFile(lumaris / "data/kept", "x");
    service.RemoveAgedFolders();
    EXPECT_EQ(Names_t{"data"}, Names());
    EXPECT_TRUE(Logged("removing aged app folder " + (lumaris / "app").string() + "\n")) << Log();
}

TEST_F(ServiceTest, CopiesFilesAndTrees) {
    WriteFile(root / "tree/sub/file", "content");
    fs::create_directories(root / "tree/empty");
    const std::string from = (root / "tree").string(), to = (root / "copy").string();
    EXPECT_EQ(0, service.FSCopyPath(from.c_str(), to.c_str()));
    EXPECT_EQ("content", ReadFile(root / "copy/sub/file"));
    EXPECT_TRUE(fs::is_directory(root / "copy/empty"));
    EXPECT_EQ(0, service.FSCopyPath((from + "/sub/file").c_str(), (to + "/single").c_str()));
    EXPECT_EQ("content", ReadFile(root / "copy/single"));
    EXPECT_EQ(-1, service.FSCopyPath((from + "/none").c_str(), to.c_str()));
    EXPECT_TRUE(Logged("/none' does not exist\n")) << Log();
    EXPECT_EQ(-1, service.FSCopyPath(from.c_str(), (to + "/single").c_str()));
    EXPECT_TRUE(Logged("failed to create dest folder '" + to + "/single'\n")) << Log();
    WriteFile(root / "blocked/sub", "a file where the tree has a folder");
    EXPECT_EQ(-1, service.FSCopyPath(from.c_str(), (root / "blocked").c_str()));
    EXPECT_TRUE(Logged("failed to copy from '" + from + "/sub' to '")) << Log();
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
