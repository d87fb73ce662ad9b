// SPDX-License-Identifier: MIT
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
        extractor.m_src_path = package.c_str();
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

    const fs::path package = root / "a.wpk";
    Extractor extractor;
    QObject receiver;
    std::string reports;
};

TEST_F(ExtractorTest, WritesEveryEntryAndReportsIt) {
    const std::string decomposed = "Contents/Gru\xcc\x88\xc3\x9f.txt";
    WriteFile(root / "dest/Contents/tool", "old content");
    WritePackage(package, {{"Contents/"},
                           {"Contents/tool", "new", 0755},
                           {decomposed, "x"},
                           {"Contents/link", "", 0777, "tool"}});
    ASSERT_EQ(0, extractor.Extract()) << Log();
    EXPECT_EQ("'Lumaris Backup is initializing...' 4,1 4,2 4,3 4,4 ", reports);
    EXPECT_EQ("Contents/ " + decomposed + "=x Contents/link->tool Contents/tool=new:755",
              Tree(root / "dest"));
}

TEST_F(ExtractorTest, MissingFileAndArguments) {
    EXPECT_EQ(-1, extractor.Extract());
    EXPECT_TRUE(Logged("Failed to calculate total file numbers, ret: -1\n")) << Log();
    EXPECT_EQ(-1, extractor.List());
    WritePackage(package, {{"a", "1"}});
    extractor.m_dest_path = "";
    EXPECT_EQ(-1, extractor.Extract());
    EXPECT_TRUE(Logged("): Invalid Argument\n")) << Log();
    EXPECT_FALSE(Logged("): Invalid argument\n"));
    EXPECT_EQ(-1, extractor.Count());
    EXPECT_EQ(-1, extractor.List());
    EXPECT_TRUE(Logged("): Invalid argument\n")) << Log();
    EXPECT_EQ(-1, extractor.copy_data(nullptr, nullptr));
}

TEST_F(ExtractorTest, ListsAndCopiesBlocks) {
    const std::string data(100000, 'z');
    WritePackage(package, {{"one", data}, {"two", "2"}});
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor.List());
    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());

    struct archive *in = archive_read_new();
    struct archive *out = archive_write_disk_new();
    struct archive_entry *entry = nullptr;
    archive_read_support_filter_all(in);
    archive_read_support_format_all(in);
    ASSERT_EQ(ARCHIVE_OK, archive_read_open_filename(in, package.c_str(), 10240));
    ASSERT_EQ(ARCHIVE_OK, archive_read_next_header(in, &entry));
    archive_entry_set_pathname(entry, (root / "copy").c_str());
    ASSERT_EQ(ARCHIVE_OK, archive_write_header(out, entry));
    EXPECT_EQ(0, extractor.copy_data(in, out));
    archive_write_free(out);
    archive_read_free(in);
    EXPECT_EQ(data, ReadFile(root / "copy"));
}

}  // namespace
