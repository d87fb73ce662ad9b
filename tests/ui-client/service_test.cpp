// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <sstream>

#include "client-layout.h"
#include "extractor.h"
#include "notify-adapter.h"
#include "plain-service.h"
#include "str-table.h"
#include "test-support.h"

namespace {

class ServiceTest : public HomeTest {
protected:
    ServiceTest() {
        fs::remove_all(resources);
        extractor.m_src_path = (root / "a.wpk").c_str();
        extractor.m_dest_path = (root / "dest").c_str();
    }
    const fs::path resources = Service::GetRootLumarisResourceInstallPath().c_str();
    PlainService service;
    Extractor extractor;
};

TEST_F(ServiceTest, Versions) {
    service.LoadSourceVersion();
    EXPECT_FALSE(Logged("source_version")) << "there is none";

    const std::string full =
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=7\n";
    const std::string group = "[Version]\nbuild_version=1\n", refused = "refused";
    const struct {
        std::string info, versions;
    } cases[] = {
        {"; packed by root@Vega\n" + full, "2, 5, 121, 7"},
        {"major_version=2\n[Other]\nbuild_version=3\n", ", , , "},
        // Text that looks like an object where none can be.
        {"; jenkins@Debian12: @Variant(\n" + group, ", , 1, "},
        {group + "[Other]\nx=@Variant(\\0\\0\\0\\xByteA)\n", ", , 1, "},
        {"[Version]\nmajor_version=\\x440\nbuild_version=5@Variant(\n", "\xd1\x80, , 5@Variant(, "},
        // Objects, the last of them broken, are not for the settings reader to rebuild.
        {group + "x=\"@\"Variant(\n", refused},
        {group + "x=\\x10040Variant(\n", refused},
        {group + "x=\\100\"DateTime(\n", refused},
        {"[Version]\nbuild_version=1 , @DateTime(\\0\\0\\0\\xByteA)\n", refused},
        {"[%56ersion]\nx=@\\qVariant(\\0\\0\\0\\xByteA)\n" + group, refused},
    };
    for (const auto &row : cases) {
        fs::resize_file(root / "log", 0);
        WriteFile(app / kResources / kInfoFile, row.info);
        PlainService().LoadSourceVersion();
        const bool ignored = row.versions == refused;
        EXPECT_EQ(ignored, Logged("INFO': it holds more than text")) << row.info << Log();
        EXPECT_TRUE(Logged("source_version = (" + (ignored ? ", , , " : row.versions) + ")"))
            << row.info << Log();
    }
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("target_version = (, , , )")) << Log();
    WriteFile(resources / kInfoFile, full);
    service.LoadTargetVersion();
    EXPECT_TRUE(Logged("target_version = (2, 5, 121, 7)")) << Log();
}

// What earlier failures may have left, and then a package that cannot be extracted.
TEST_F(ServiceTest, TheFullestClientIsRestored) {
    const struct {
        const char *found;     // executable (E) and INFO (I) of the bundle and its backups
        std::string restored;  // the name under which the restored one was found
    } cases[] = {{"- E", "_tmp"},
                 {"E EI", "_tmp"},
                 {"EI EI", ""},
                 {"E E", ""},
                 {"- - E EI", "_tmp2"},
                 {"- - - - - - - - - - E", "_tmp9"}};  // no name is left for another backup
    for (const auto &row : cases) {
        fs::remove_all(lumaris);
        std::istringstream found(row.found);
        std::string what, name;
        for (int backup = 0; found >> what; ++backup) {
            WriteFile(lumaris / ("Lumaris.app" + name) / "name", name);
            for (const char part : what) {
                WriteFile(lumaris / ("Lumaris.app" + name) /
                              (part == 'E'   ? kClientExecutable
                               : part == 'I' ? "Contents/Resources/INFO"
                                             : "none"),
                          "");
            }
            name = "_tmp" + (backup == 0 ? "" : std::to_string(backup));
        }
        EXPECT_EQ(-1, service.PrepareUserEnv());
        EXPECT_EQ(row.restored, ReadFile(app / "name")) << row.found << Log();
        EXPECT_EQ(row.restored.empty(), !Logged("no whole client in")) << row.found;
        fs::resize_file(root / "log", 0);
    }
    fs::remove_all(lumaris);
    WriteFile(lumaris, "not a folder");
    EXPECT_EQ(-1, service.PrepareUserEnv());
    EXPECT_TRUE(Logged("failed to create folder: '" + app.string() + "'\n")) << Log();
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

TEST_F(ServiceTest, ExtractionIsReported) {
    std::string reports;
    QObject receiver;
    const auto *relay = &Notify_Adapter::GetInstance();
    QObject::connect(relay, &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int current) {
                         reports += " " + std::to_string(current) + "/" + std::to_string(total);
                     });
    QObject::connect(relay, &Notify_Adapter::sigUpdateDialogText, &receiver,
                     [&](const QString &text) { reports += text.toStdString(); });
    const std::string decomposed = "Contents/Gru\xcc\x88\xc3\x9f.txt";
    WriteFile(root / "dest/Contents/tool", "old content");
    WritePackage(root / "a.wpk", {{"Contents/"},
                                  {"Contents/tool", "new", 0755},
                                  {decomposed, "x"},
                                  {"Contents/link", "", 0777, "tool"}});
    EXPECT_EQ(0, extractor.Extract()) << Log();
    EXPECT_EQ("Lumaris Backup is initializing... 1/4 2/4 3/4 4/4", reports);
    EXPECT_EQ("Contents/ " + decomposed + "=x Contents/link->tool Contents/tool=new:755",
              Tree(root / "dest"));
}

TEST_F(ServiceTest, ExtractorListsAndCopies) {
    EXPECT_EQ(-1, extractor.List()) << "there is no package";
    const std::string data(100000, 'z');
    WritePackage(root / "a.wpk", {{"one", data}, {"two", "2"}});
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor.List());
    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());

    struct archive *in = archive_read_new(), *out = archive_write_disk_new();
    struct archive_entry *entry = nullptr;
    archive_read_support_filter_all(in);
    archive_read_support_format_all(in);
    archive_read_open_filename(in, extractor.m_src_path.c_str(), 10240);
    ASSERT_EQ(ARCHIVE_OK, archive_read_next_header(in, &entry));
    archive_entry_set_pathname(entry, (root / "copy").c_str());
    EXPECT_EQ(ARCHIVE_OK, archive_write_header(out, entry));
    EXPECT_EQ(0, extractor.copy_data(in, out));
    archive_read_next_header(in, &entry);
    archive_write_close(out);
    EXPECT_EQ(-1, extractor.copy_data(in, out)) << "nothing to write to";
    archive_read_close(in);
    EXPECT_EQ(-1, extractor.copy_data(in, out)) << "nothing to read";
    EXPECT_EQ(-1, extractor.copy_data(in, nullptr));
    archive_write_free(out);
    archive_read_free(in);
    EXPECT_EQ(data, ReadFile(root / "copy"));

    extractor.m_dest_path = "";
    EXPECT_EQ(-1, extractor.Extract());
    EXPECT_FALSE(Logged("total file numbers")) << "it should not have begun";
    EXPECT_EQ(-1, extractor.Count());
    EXPECT_EQ(-1, extractor.List());
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
