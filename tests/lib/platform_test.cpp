#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core-services.h"
#include "stored-path.h"

namespace fs = std::filesystem;

class PlatformTest : public testing::Test {
protected:
    PlatformTest() {
        std::string name = (fs::canonical(fs::temp_directory_path()) / "platform-XXXXXX").string();
        m_root = mkdtemp(name.data());
        for (const char *file : {"de\u0301/u\u0308.txt", "plain", "both/e\u0301/f", "both/\u00E9/f",
                                 "\u212Aelvin", "gone (deleted)"}) {
            fs::create_directories((m_root / file).parent_path());
            std::ofstream(m_root / file) << file;
        }
        fs::create_symlink("plain", m_root / "link");
    }
    ~PlatformTest() override {
        fs::current_path("/");
        fs::remove_all(m_root);
    }
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
    for (const auto &[asked, stored] : cases)
        EXPECT_EQ(StoredPath(Path(asked)), Path(stored)) << asked;
    fs::current_path(m_root);
    EXPECT_EQ(StoredPath("d\u00E9"), "de\u0301");
}

TEST_F(PlatformTest, RefFindsTheStoredForm) {
    const struct {
        ustring asked;
        OptionBits options;
        OSStatus status;
        const char *stored;
    } cases[] = {{Path("./de\u0301/..//plain"), 0, noErr, "plain"},
                 {Path("d\u00E9/"), kFSPathMakeRefDoNotFollowLeafSymlink, noErr, "de\u0301"},
                 {Path("link"), kFSPathMakeRefDoNotFollowLeafSymlink, noErr, "link"},
                 {Path("link"), kFSPathMakeRefDefaultOptions, noErr, "plain"},
                 {Path("gone (deleted)"), 0, noErr, "gone (deleted)"},
                 {Path("missing"), 0, -43, ""},
                 {Path("plain/x"), 0, -120, ""},
                 {Path(std::string(256, 'n')), 0, -37, ""},
                 {std::string(4096, '/'), 0, -2110, ""}};
    for (const auto &c : cases) {
        FSRef ref;
        Boolean folder = 2;
        const UInt8 *const asked = reinterpret_cast<const UInt8 *>(c.asked.c_str());
        ASSERT_EQ(FSPathMakeRefWithOptions(asked, c.options, &ref, &folder), c.status) << c.asked;
        if (c.status != noErr)
            continue;
        const ustring stored = Path(c.stored);
        EXPECT_EQ(folder, stored == Path("de\u0301"));
        UInt8 buffer[4096] = "......";  // a path is never cut
        EXPECT_EQ(FSRefMakePath(&ref, buffer, static_cast<UInt32>(stored.length())), -2110);
        EXPECT_STREQ(reinterpret_cast<char *>(buffer), "......");
        EXPECT_EQ(FSRefMakePath(&ref, buffer, static_cast<UInt32>(stored.length() + 1)), noErr);
        EXPECT_EQ(stored, reinterpret_cast<const char *>(buffer)) << c.asked;
    }
}
