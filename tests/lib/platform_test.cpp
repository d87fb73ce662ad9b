#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "real-path.h"
#include "system-path.h"

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

TEST_F(PlatformTest, SystemPathRespellsWhatExists) {
    const char *const cases[][2] = {
        {"d\u00E9//\u00FC.txt", "de\u0301//u\u0308.txt"},
        {"de\u0301/\u00FC.txt/", "de\u0301/u\u0308.txt/"},
        {"d\u00E9/n\u00E9w/\u00FC", "de\u0301/n\u00E9w/\u00FC"},  // the rest as asked for
        {"both/\u00E9/new", "both/\u00E9/new"},                   // a match of the bytes wins
        {"both/e\u0301/new", "both/e\u0301/new"},
        {"Kelvin", "\u212Aelvin"},  // ASCII that is stored outside it
        {"d\u00E9/\xFF", "de\u0301/\xFF"},
    };
    for (const auto &[asked, stored] : cases)
        EXPECT_EQ(SystemPath(Path(asked)), Path(stored)) << asked;
    fs::current_path(m_root);
    EXPECT_EQ(SystemPath("d\u00E9"), "de\u0301");
}

TEST_F(PlatformTest, RealPath) {
    const struct {
        ustring asked;
        Leaf leaf;
        int status;
        ustring real;
    } cases[] = {{Path("./de\u0301/..//plain"), Leaf::kTarget, 0, Path("plain")},
                 {Path("de\u0301/"), Leaf::kItself, 0, Path("de\u0301")},
                 {Path("link"), Leaf::kItself, 0, Path("link")},
                 {Path("link"), Leaf::kTarget, 0, Path("plain")},
                 {Path("gone (deleted)"), Leaf::kItself, 0, Path("gone (deleted)")},
                 {Path("missing"), Leaf::kItself, -43, ""},
                 {std::string(4096, '/'), Leaf::kItself, -2110, ""}};
    for (const auto &c : cases) {
        ustring real("before");
        EXPECT_EQ(RealPath(c.asked, c.leaf, real), c.status) << c.asked;
        EXPECT_EQ(real, c.real) << c.asked;
    }
}
