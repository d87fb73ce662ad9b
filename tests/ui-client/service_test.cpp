// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QSettings>

#include "plain-service.h"
#include "test-support.h"

namespace {

class ServiceTest : public HomeTest {
protected:
    ServiceTest() { fs::remove_all(resources); }
    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    PlainService service;
};

TEST_F(ServiceTest, PathsComeFromHomeAndTheExecutable) {
    EXPECT_EQ(lumaris / "data", Service::GetUserLumarisDataInstallPath().c_str());
    const std::string bundle = Service::GetRootLumarisInstallPath().c_str();
    EXPECT_EQ(home / ".Lumaris_log", PackageInfo().log.c_str());
    EXPECT_EQ(bundle + "/Contents/MacOS/package/lumaris.wpk", PackageInfo().package.c_str());
}

TEST_F(ServiceTest, Versions) {
    service.LoadSourceVersion();
    EXPECT_TRUE(Logged("): source does not exist\n")) << Log();
    EXPECT_FALSE(Logged("source_version")) << Log();

    const std::string full =
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n";
    {
        QSettings writer(QString::fromStdString(root / "written"), QSettings::IniFormat);
        writer.setValue(QStringLiteral("Version/major_version"), QString(QChar(0x440)));
        writer.setValue(QStringLiteral("Version/x"), QStringLiteral("@Vega"));
    }
    const std::string group = "[Version]\nbuild_version=1\n", refused = "refused";
    const struct {
        std::string info, versions;
    } cases[] = {
        {full, "2, 5, 121, 7"},
        {"[Version]\nbuild_version=12a\n", ", , 12a, "},
        {"major_version=2\n[Other]\nbuild_version=3\n", ", , , "},
        {"[Version\nbuild_version=4", ", , 4, "},  // the settings reader is lenient
        // Text that looks like an object where none can be.
        {"; packed by root@Vega\n" + full, "2, 5, 121, 7"},
        {"; jenkins@Debian12: @Variant(\n" + group, ", , 1, "},
        {group + "[Other]\nx=@Variant(\\0\\0\\0\\xByteA)\n", ", , 1, "},
        {"[Version]\nbuild_version=5@Variant(\n", ", , 5@Variant(, "},
        {ReadFile(root / "written"), "\xd1\x80, , , "},
        // Objects, the last of them broken, are not for the settings reader to rebuild.
        {group + "x=@Variant(\n", refused},
        {group + "x=\"@\"Variant(\n", refused},
        {group + "x=\\x10040Variant(\n", refused},
        {group + "x=\\100\"DateTime(\n", refused},
        {"[Version]\nbuild_version=1 , @DateTime(\\0\\0\\0\\xByteA)\n", refused},
        {"[%56ersion]\nx=@\\qVariant(\\0\\0\\0\\xByteA)\n" + group, refused},
    };
    for (const auto &row : cases) {
        fs::resize_file(root / "log", 0);
        WriteFile(app / "Contents/Resources/INFO", row.info);
        PlainService fresh;
        fresh.LoadSourceVersion();
        const bool ignored = row.versions == refused;
        EXPECT_EQ(ignored, Logged("[WARNING] lumaris-service(")) << row.info << Log();
        EXPECT_TRUE(Logged("): source_version = (" + (ignored ? ", , , " : row.versions) + ")\n"))
            << row.info << Log();
    }
    fs::create_directories(resources / "INFO");
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("): target_version = (, , , )\n")) << "a folder has no keys";
    fs::remove_all(resources / "INFO");
    WriteFile(resources / "INFO", full);
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("): target_version = (2, 5, 121, 7)\n")) << Log();
}

// What a kill in an upgrade leaves, and then a package that cannot be extracted.
TEST_F(ServiceTest, TwoFailuresInARow) {
    const std::string client = "Contents/MacOS/lumaris-backup-ui", info = "Contents/Resources/INFO";
    const struct {
        const char *bundle[2], *backup[2], *restored;  // what executable and INFO hold
    } cases[] = {{{"", ""}, {"old", ""}, "old"},
                 {{"cut", ""}, {"old", "1"}, "old"},
                 {{"own", "1"}, {"old", "1"}, "own"},
                 {{"own", ""}, {"old", ""}, "own"}};
    for (const auto &row : cases) {
        fs::remove_all(lumaris);
        fs::resize_file(root / "log", 0);
        WriteFile(app / "partial", "x");
        for (const auto &[bundle, files] :
             {std::pair(app, row.bundle), std::pair(lumaris / "Lumaris.app_tmp", row.backup)}) {
            for (int i = 0; i < 2; ++i) {
                if (*files[i] != '\0') {
                    WriteFile(bundle / (i == 0 ? client : info), files[i]);
                }
            }
        }
        EXPECT_EQ(-1, service.PrepareUserEnv());
        EXPECT_EQ(row.restored, ReadFile(app / client));
        EXPECT_EQ(row.restored == std::string("own"), fs::exists(app / "partial"));
        EXPECT_EQ(row.restored == std::string("own"), fs::exists(lumaris / "Lumaris.app_tmp"));
        EXPECT_NE(row.restored == std::string("own"), Logged("[WARNING] lumaris-service("));
        EXPECT_TRUE(Logged("Failed to extract package, rollback to old installation\n")) << Log();
    }
}

TEST_F(ServiceTest, NoPlaceForTheBundle) {
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
    EXPECT_EQ(0, copy("tree", "copy"));
    EXPECT_EQ(0, copy("tree/sub/file", "copy/single"));
    EXPECT_EQ("empty/ single=content sub/ sub/file=content", Tree(root / "copy"));
    EXPECT_EQ(-1, copy("tree/none", "copy"));
    EXPECT_EQ(-1, copy("tree", "copy/single"));
    EXPECT_EQ(-1, copy("tree", "blocked"));
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
