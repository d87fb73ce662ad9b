#include "extractor.h"

#include <QObject>

#include "notify-adapter.h"
#include "str-table.h"
#include "test-support.h"

namespace {

class ExtractorTest : public HomeTest {
protected:
    ExtractorTest() {
        StrTable::InitStrTable();
        extractor.m_src_path = (root / "a.wpk").c_str();
        extractor.m_dest_path = (root / "dest").c_str();
        Notify_Adapter *relay = &Notify_Adapter::GetInstance();
        QObject::connect(relay, &Notify_Adapter::sigUpdateProgress, &receiver,
                         [this](int total, int current) {
                             reports += std::to_string(total) + "," + std::to_string(current) + " ";
                         });
        QObject::connect(
            relay, &Notify_Adapter::sigUpdateDialogText, &receiver,
            [this](const QString &text) { reports += "'" + text.toStdString() + "' "; });
    }

    Extractor extractor;
    QObject receiver;
    std::string reports;
};

TEST_F(ExtractorTest, WritesEveryEntryAndReportsIt) {
    WriteFile(root / "dest/Contents/tool", "old content");
    WritePackage(root / "a.wpk", {{"Contents/"},
                                  {"Contents/tool", "new", 0755},
                                  {"Contents/Gru\xcc\x88\xc3\x9f"
                                   "e",
                                   "decomposed"},
                                  {"Contents/link", "", 0777, "tool"}});
    ASSERT_EQ(0, extractor.Extract()) << Log();
    EXPECT_EQ("'Lumaris Backup is initializing...' 4,1 4,2 4,3 4,4 ", reports);
    EXPECT_EQ("new", ReadFile(root / "dest/Contents/tool"));
    EXPECT_EQ("decomposed", ReadFile(root / "dest/Contents/Gru\xcc\x88\xc3\x9f"
                                            "e"));
    EXPECT_EQ("tool", fs::read_symlink(root / "dest/Contents/link"));
    const fs::perms any_exec =
        fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    EXPECT_NE(fs::perms::none, fs::status(root / "dest/Contents/tool").permissions() & any_exec);
}

TEST_F(ExtractorTest, RefusesWhatIsNoPackage) {
    WritePackage(root / "good", {{"a", std::string(300000, 'x')}, {"b", "2"}, {"c", "3"}});
    const std::string good = ReadFile(root / "good");
    WritePackage(root / "dotdot", {{"first", "1"}, {"a/../../x", "2"}});
    WritePackage(root / "none", {});
    const struct {
        const char *what;
        std::string content;
        const char *message;
        int count;
    } cases[] = {
        {"no entries", ReadFile(root / "none"), "total file numbers, ret: 0\n", 0},
        {"empty file", "", "total file numbers, ret: 0\n", 0},
        {"foreign", "just text", "archive_read_open_filename failed: '", -1},
        {"cut in half", good.substr(0, good.size() / 2), "archive_read_extract2 failed: '", 1},
        {"cut at the end", good.substr(0, good.size() - 40), "failed: '", 1},
        {"..", ReadFile(root / "dotdot"), "archive_read_extract2 failed: '", 2},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        fs::remove_all(root / "dest");
        WriteFile(root / "a.wpk", row.content);
        fs::resize_file(root / "log", 0);
        EXPECT_EQ(-1, extractor.Extract());
        EXPECT_TRUE(Logged(row.message)) << Log();
        EXPECT_FALSE(fs::exists(root / "x"));
        EXPECT_EQ(row.count, extractor.Count());
    }
}

TEST_F(ExtractorTest, MissingFileAndArguments) {
    EXPECT_EQ(-1, extractor.Extract());
    EXPECT_TRUE(Logged("Failed to calculate total file numbers, ret: -1\n")) << Log();
    EXPECT_EQ(-1, extractor.List());
    Extractor empty;
    EXPECT_EQ(-1, empty.Extract());
    EXPECT_TRUE(Logged("[ERROR] extractor(")) << Log();
    EXPECT_TRUE(Logged("): Invalid Argument\n")) << Log();
    EXPECT_FALSE(Logged("): Invalid argument\n"));
    empty.m_src_path = "a";
    EXPECT_EQ(-1, empty.Count());
    EXPECT_EQ(-1, empty.List());
    EXPECT_TRUE(Logged("): Invalid argument\n")) << Log();
    EXPECT_EQ(-1, extractor.copy_data(nullptr, nullptr));
}

TEST_F(ExtractorTest, ListsAndCopiesBlocks) {
    const std::string data(100000, 'z');
    WritePackage(root / "a.wpk", {{"one", data}, {"two", "2"}});
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor.List());
    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());

    struct archive *in = archive_read_new();
    struct archive *out = archive_write_disk_new();
    struct archive_entry *entry = nullptr;
    archive_read_support_filter_all(in);
    archive_read_support_format_all(in);
    ASSERT_EQ(ARCHIVE_OK, archive_read_open_filename(in, (root / "a.wpk").c_str(), 10240));
    ASSERT_EQ(ARCHIVE_OK, archive_read_next_header(in, &entry));
    archive_entry_set_pathname(entry, (root / "copy").c_str());
    ASSERT_EQ(ARCHIVE_OK, archive_write_header(out, entry));
    EXPECT_EQ(0, extractor.copy_data(in, out));
    ASSERT_EQ(ARCHIVE_OK, archive_write_finish_entry(out));
    EXPECT_EQ(data, ReadFile(root / "copy"));
    archive_write_free(out);
    archive_read_free(in);
}

}  // namespace
