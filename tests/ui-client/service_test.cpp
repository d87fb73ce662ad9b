#include <QCoreApplication>
#include <set>

#include "plain-service.h"
#include "test-support.h"

namespace {

class ServiceTest : public HomeTest {
protected:
    ServiceTest() { fs::remove_all(resources); }
    std::string Installed() const { return ReadFile(source_info) + ReadFile(app / "old file"); }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto &entry : fs::directory_iterator(lumaris))
            names.insert(entry.path().filename().string());
        return names;
    }
    void Install(const char *build) {
        WriteFile(source_info, build);
        WriteFile(app / "old file", " old");
    }

    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    const fs::path package = resources / "package/lumaris.wpk";
    const fs::path source_info = app / "Contents/Resources/INFO";
    PlainService service;
};

using Names_t = std::set<std::string>;

TEST_F(ServiceTest, PathsComeFromHomeAndTheExecutable) {
    EXPECT_EQ(lumaris / "data", Service::GetUserLumarisDataInstallPath().c_str());
    const std::string bundle = Service::GetRootLumarisInstallPath().c_str();
    EXPECT_EQ(home / ".Lumaris_log", PackageInfo().log.c_str());
    EXPECT_EQ(bundle + "/Contents/MacOS/package/lumaris.wpk", PackageInfo().package.c_str());
}

TEST_F(ServiceTest, Versions) {
    service.LoadSourceVersion();
    EXPECT_TRUE(Logged("): source does not exist\n") && !Logged("source_version")) << Log();

    const std::string full =
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n";
    const struct {
        std::string info, versions;
    } cases[] = {
        {full, "2, 5, 121, 7"},
        {"[Version]\nbuild_version=12a\n", ", , 12a, "},
        {"major_version=2\n[Other]\nbuild_version=3\n", ", , , "},
        {"[Version\nbuild_version=4", ", , 4, "},  // the settings reader is lenient
        {"[Version]\nbuild_version=5@b\n", ", , 5@b, "},
        // Objects, the last of them broken, are not for the settings reader to rebuild.
        {"[Version]\nbuild_version=1\nx=\"@\" Variant(\n", ", , , "},
        {"[Version]\nbuild_version=1\nx=@\\qDateTime(\n", ", , , "},
        {"[Version]\nbuild_version=1\nx=\\x10040Variant(\n", ", , , "},
        {"[Version]\nbuild_version=1\nx=\\0100\"Variant(\n", ", , , "},
        {"[Version]\nbuild_version=1 , @Variant(\\0\\0\\0\\xByteA)\n", ", , , "},
    };
    int number = 0;
    for (const auto &row : cases) {
        // The settings reader caches files by name, size and time.
        UseHome(std::to_string(++number));
        WriteFile(app / "Contents/Resources/INFO", row.info);
        PlainService fresh;
        fresh.LoadSourceVersion();
        EXPECT_TRUE(Logged("): source_version = (" + row.versions + ")\n")) << row.info << Log();
        fs::resize_file(root / "log", 0);
    }
    fs::create_directories(resources / "INFO");
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("): target_version = (, , , )\n")) << "a folder has no keys";
    fs::remove_all(resources / "INFO");
    WriteFile(resources / "INFO", full);
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("): target_version = (2, 5, 121, 7)\n")) << Log();
}

TEST_F(ServiceTest, FirstInstallation) {
    WriteFile(lumaris / "Lumaris.app_tmp/stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(0, service.PrepareUserEnv()) << Log();
    EXPECT_EQ(Names_t{"Lumaris.app"}, Names());
    EXPECT_EQ(Info("121"), Installed());

    fs::remove_all(app);
    WriteFile(package, "no package");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("Failed to extract package, and no old installation to rollback\n"));
    EXPECT_TRUE(fs::is_directory(app));
}

TEST_F(ServiceTest, UpgradeUsesTheFirstFreeBackupName) {
    Install("120");
    for (const char *taken : {"_tmp", "_tmp1", "_tmp3"})
        WriteFile(lumaris / ("Lumaris.app" + std::string(taken)) / "stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(0, service.PrepareUserEnv()) << Log();
    EXPECT_EQ((Names_t{"Lumaris.app", "Lumaris.app_tmp3"}), Names());
    EXPECT_EQ(Info("121"), Installed());
    EXPECT_TRUE(Logged("'" + app.string() + "_tmp1'\n")) << Log();
    EXPECT_FALSE(Logged("'" + app.string() + "_tmp2'\n")) << "this one was free";
}

TEST_F(ServiceTest, FailedExtractionRollsBack) {
    std::vector<PackageEntry> entries = ClientPackage("121");
    entries.push_back({"a/../../x", "refused, when everything else is in place"});
    WritePackage(package, entries);
    WriteFile(lumaris / "Lumaris.app_tmp/stale", "x");
    Install("120");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_EQ("120 old", Installed());
    EXPECT_EQ((Names_t{"Lumaris.app", "Lumaris.app_tmp"}), Names());
    EXPECT_TRUE(Logged("Failed to extract package, rollback to old installation\n")) << Log();
}

TEST_F(ServiceTest, NoPlaceForBackupOrBundle) {
    Install("120");
    for (int i = 0; i < 10; ++i)
        WriteFile(lumaris / ("Lumaris.app_tmp" + (i ? std::to_string(i) : "")) / "stale", "x");
    WritePackage(package, ClientPackage("121"));
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_EQ("120 old", Installed());
    EXPECT_TRUE(Logged("_tmp8'\n") && Logged("_tmp9' at max retries, exiting\n")) << Log();
    EXPECT_FALSE(Logged("_tmp10"));

    fs::remove_all(lumaris);
    WriteFile(lumaris, "not a folder");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("failed to create folder: '" + app.string() + "'\n")) << Log();
    EXPECT_EQ("not a folder", ReadFile(lumaris));
}

TEST_F(ServiceTest, CopiesFilesAndTrees) {
    WriteFile(root / "tree/sub/file", "content");
    fs::create_directories(root / "tree/empty");
    WriteFile(root / "blocked/sub", "a file where the tree has a folder");
    const auto copy = [this](const char *from, const char *to) {
        return service.FSCopyPath((root / from).c_str(), (root / to).c_str());
    };
    EXPECT_TRUE(copy("tree", "copy") == 0 && copy("tree/sub/file", "copy/single") == 0);
    EXPECT_EQ("content", ReadFile(root / "copy/sub/file"));
    EXPECT_EQ("content", ReadFile(root / "copy/single"));
    EXPECT_TRUE(fs::is_directory(root / "copy/empty"));
    EXPECT_TRUE(copy("tree/none", "copy") == -1 && copy("tree", "copy/single") == -1);
    EXPECT_EQ(-1, copy("tree", "blocked"));
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
