// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include "file-op.h"
#include "mac-volume.h"
#include "plain-service.h"

namespace {

/// File operations and the service on volumes that the test mounts.
class VolumeTest : public HomeTest {
protected:
    VolumeTest() : m_folder(fs::canonical(root) / "disk"), m_volume(fs::canonical(root) / "v") {
        fs::create_directory(m_volume);
    }
    ~VolumeTest() override { umount2(m_volume.c_str(), MNT_DETACH); }

    bool MountInMemory(const char *options) {
        return OwnMounts() && mount("tmpfs", m_volume.c_str(), "tmpfs", 0, options) == 0;
    }
    ustring OnVolume(const char *name) const { return (m_volume / name).c_str(); }
    ustring OnDisk(const char *name) const { return (m_folder / name).c_str(); }

    const fs::path m_folder, m_volume;
};

TEST_F(VolumeTest, FullVolume) {
    if (!MountInMemory("size=64k")) {
        GTEST_SKIP() << "this user cannot mount a small volume";
    }
    WriteFile(m_folder / "tree/src", std::string(100000, 'x'));
    EXPECT_EQ(FSCopy(OnDisk("tree/src"), OnVolume("dst"), true), -2);
    EXPECT_TRUE(Logged("CopyFile: write: No space left on device (28)\n"));
    EXPECT_EQ(fs::file_size(m_volume / "dst"), 65536u);  // what fitted stays
    EXPECT_EQ(FSRename(OnDisk("tree"), OnVolume("tree"), false), -3);
    EXPECT_EQ(fs::file_size(m_folder / "tree/src"), 100000u);
}

TEST_F(VolumeTest, RenameToAnotherVolume) {
    if (!MountInMemory("size=1m")) {
        GTEST_SKIP() << "this user cannot mount another volume";
    }
    WriteFile(m_folder / "u\u0308/sub/e\u0301", "one");
    WriteFile(m_folder / "u\u0308/.hidden", "two");
    EXPECT_EQ(FSRename(OnDisk("\u00FC"), OnVolume("dst"), true), 0);
    EXPECT_EQ(ReadFile(m_volume / "dst/sub/e\u0301"), "one");
    EXPECT_EQ(ReadFile(m_volume / "dst/.hidden"), "two");
    EXPECT_FALSE(fs::exists(m_folder / "u\u0308"));

    WriteFile(m_folder / "onto/\u00E9/\u00FC", "new");
    WriteFile(m_volume / "onto/e\u0301/u\u0308", "old");  // the same file, spelt otherwise
    EXPECT_EQ(FSRename(OnDisk("onto"), OnVolume("onto"), false), 0);
    EXPECT_EQ(ReadFile(m_volume / "onto/e\u0301/u\u0308"), "new");

    WriteFile(m_folder / "src/file", "three");
    fs::create_symlink("file", m_folder / "src/link");
    EXPECT_EQ(FSRename(OnDisk("src/link"), OnVolume("link"), false), 0);  // it does not travel
    EXPECT_EQ(FSRename(OnDisk("src"), OnVolume("moved"), false), -3);
    EXPECT_EQ(ReadFile(m_volume / "moved/file"), "three");
    EXPECT_TRUE(fs::is_symlink(m_folder / "src/link"));
    EXPECT_FALSE(fs::exists(m_folder / "src/file"));
    EXPECT_EQ(FSRename(OnDisk("src"), OnVolume("dst/.hidden"), false), -3);  // a file is there
}

TEST_F(VolumeTest, MacRules) {
    const MacVolume mac(m_folder, m_volume);
    if (!mac.mounted()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    WriteFile(m_volume / "Foo", "");
    WriteFile(m_volume / "U\u0308ber/e\u0301", "");
    for (const bool exact : {false, true}) {
        EXPECT_TRUE(IsFileExist(OnVolume("Foo"), exact));
        EXPECT_TRUE(IsFileExist(OnVolume("\u00DCber/\u00E9"), exact));
        EXPECT_NE(IsFileExist(OnVolume("foo"), exact), exact);
        EXPECT_NE(IsFileExist(OnVolume("U\u0308BER/e\u0301"), exact), exact);
    }
    FILE_INFO info;
    EXPECT_EQ(GetFileInfo(OnVolume("u\u0308ber/\u00C9"), info), 0);
    EXPECT_EQ(info.path, OnVolume("\u00DCber/\u00E9"));
    for (const char *twin : {"twin", "TWIN"}) {  // as on a volume of this type that has both
        WriteFile(m_folder / twin, "");
    }
    EXPECT_TRUE(IsFileExist(OnVolume("twin"), true));
    EXPECT_TRUE(IsFileExist(OnVolume("TWIN"), true));
    EXPECT_EQ(FSRename(OnVolume("foo"), OnVolume("bar"), true), -2);
    EXPECT_EQ(FSRename(OnVolume("foo"), OnVolume("bar"), false), 0);
    EXPECT_TRUE(fs::exists(m_folder / "bar"));
    EXPECT_EQ(FSRemove(OnVolume("\u00FCBER"), false), 0);
    EXPECT_FALSE(fs::exists(m_folder / "U\u0308ber"));
}

/// A client with names that differ only in case or spelling, which become one file there.
std::vector<PackageEntry> Client(const std::string &build, const char *letter) {
    std::vector<PackageEntry> entries = ClientPackage(build);
    const std::string folder = "Contents/Resources/" + std::string(letter) + "/";
    entries.insert(entries.end(),
                   {{folder}, {folder + "README", "upper"}, {folder + "readme", build}});
    return entries;
}

TEST_F(VolumeTest, InstallsOnAMac) {
    const MacVolume mac(m_folder, m_volume);
    if (!mac.mounted()) {
        GTEST_SKIP() << "this user cannot mount a volume with FUSE";
    }
    UseHome("v");
    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    PlainService service;
    const auto install = [&](const std::vector<PackageEntry> &entries) {
        WritePackage(resources / "package/lumaris.wpk", entries);
        return service.PrepareUserEnv();
    };
    const auto installed = [&] {
        EXPECT_EQ(std::distance(fs::directory_iterator(lumaris), {}), 1) << "backups stay";
        const fs::path folder = app / "Contents/Resources/E\u0301";
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "two of one name";
        return ReadFile(folder / "ReadMe");
    };
    EXPECT_EQ(install(Client("1", "\u00E9")), 0) << Log();
    EXPECT_EQ(installed(), "1");
    EXPECT_EQ(install(Client("2", "e\u0301")), 0) << Log();
    EXPECT_EQ(installed(), "2");
    std::vector<PackageEntry> bad = Client("3", "\u00C9");
    bad.push_back({"a/../../x", "refused"});
    EXPECT_EQ(install(bad), -1);
    EXPECT_EQ(installed(), "2");
    EXPECT_TRUE(fs::exists(m_folder / ".LumarisBackup/Lumaris.app/Contents/Resources/e\u0301"));
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
