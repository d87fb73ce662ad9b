#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "core-services.h"
#include "file-system-type.h"
#include "stored-path.h"

namespace fs = std::filesystem;

static long g_magic = 0;  // the file system type to report instead of the real one

extern "C" int statfs(const char *path, struct statfs *buf) noexcept {
    const long result = syscall(SYS_statfs, path, buf);
    buf->f_type = g_magic != 0 ? g_magic : buf->f_type;
    return static_cast<int>(result);
}

class PlatformTest : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::canonical(fs::temp_directory_path()) / "platform-XXXXXX").string();
        m_root = mkdtemp(name.data());
        for (const char *file : {"de\u0301/u\u0308.txt", "plain", "both/e\u0301/f", "both/\u00E9/f",
                                 "\u212Aelvin", "gone (deleted)"}) {
            fs::create_directories((m_root / file).parent_path());
            std::ofstream(m_root / file) << file;
        }
        fs::create_symlink("plain", m_root / "link");
    }
    void TearDown() override { fs::remove_all(m_root); }
    ustring Path(const std::string &name) const { return (m_root.string() + "/" + name).c_str(); }

    fs::path m_root;
};

TEST_F(PlatformTest, StoredPathRespellsWhatExists) {
    const char *const cases[][2] = {
        {"plain", "plain"},
        {"d\u00E9//\u00FC.txt", "de\u0301//u\u0308.txt"},
        {"de\u0301/\u00FC.txt/", "de\u0301/u\u0308.txt/"},
        {"d\u00E9/n\u00E9w/\u00FC", "de\u0301/n\u00E9w/\u00FC"},  // the rest as asked for
        {"both/\u00E9/new", "both/\u00E9/new"},                   // a match of the bytes wins
        {"both/e\u0301/new", "both/e\u0301/new"},
        {"Kelvin", "\u212Aelvin"},  // ASCII that is stored outside it
        {"d\u00E9/\xFF", "de\u0301/\xFF"},
    };
    for (const auto &[asked, stored] : cases) {
        EXPECT_EQ(StoredPath(Path(asked)), Path(stored)) << asked;
    }
    const fs::path before = fs::current_path();
    fs::current_path(m_root);
    EXPECT_EQ(StoredPath("d\u00E9"), "de\u0301");
    fs::current_path(before);
}

TEST_F(PlatformTest, RefFindsTheStoredForm) {
    const std::string long_name(256, 'n'), long_path(4096, '/');
    const struct {
        std::string asked;
        OptionBits options;
        OSStatus status;
        const char *stored;
    } cases[] = {
        {Path("./de\u0301/..//plain").c_str(), 0, noErr, "plain"},
        {Path("d\u00E9/").c_str(), kFSPathMakeRefDoNotFollowLeafSymlink, noErr, "de\u0301"},
        {Path("link").c_str(), kFSPathMakeRefDoNotFollowLeafSymlink, noErr, "link"},
        {Path("link").c_str(), kFSPathMakeRefDefaultOptions, noErr, "plain"},
        {Path("gone (deleted)").c_str(), 0, noErr, "gone (deleted)"},
        {Path("missing").c_str(), 0, -43, ""},
        {Path("plain/x").c_str(), 0, -120, ""},
        {Path(long_name).c_str(), 0, -37, ""},
        {long_path, 0, -2110, ""},
    };
    for (const auto &c : cases) {
        FSRef ref;
        UInt8 buffer[4096] = {};
        const UInt8 *const asked = reinterpret_cast<const UInt8 *>(c.asked.c_str());
        ASSERT_EQ(FSPathMakeRefWithOptions(asked, c.options, &ref, nullptr), c.status) << c.asked;
        if (c.status == noErr) {
            EXPECT_EQ(FSRefMakePath(&ref, buffer, sizeof(buffer)), noErr);
            EXPECT_EQ(Path(c.stored), reinterpret_cast<const char *>(buffer)) << c.asked;
        }
    }
}

TEST_F(PlatformTest, RefPathIsNeverCut) {
    FSRef ref;
    Boolean folder = 2;
    ASSERT_EQ(FSPathMakeRef(reinterpret_cast<const UInt8 *>("/usr/"), &ref, &folder), noErr);
    EXPECT_EQ(folder, 1);
    UInt8 buffer[] = "......";
    EXPECT_EQ(FSRefMakePath(&ref, buffer, 4), -2110);
    EXPECT_STREQ(reinterpret_cast<char *>(buffer), "......");
    EXPECT_EQ(FSRefMakePath(&ref, buffer, 5), noErr);
    EXPECT_STREQ(reinterpret_cast<char *>(buffer), "/usr");
}

TEST_F(PlatformTest, FileSystemTypes) {
    const struct {
        long magic;
        const char *name;
    } cases[] = {{0x6969, "nfs"},       {0x517B, "smbfs"}, {0xFF534D42, "smbfs"},
                 {0xFE534D42, "smbfs"}, {0x4d44, "msdos"}, {0xEF53, ""}};
    for (const auto &c : cases) {
        ustring name("old");
        g_magic = c.magic;
        EXPECT_EQ(FileSystemType("/", name), 0);
        EXPECT_EQ(name, c.name) << std::hex << c.magic;
    }
    g_magic = 0;
    ustring name;
    EXPECT_EQ(FileSystemType(Path("missing"), name), -1);
    EXPECT_EQ(errno, ENOENT);
}
