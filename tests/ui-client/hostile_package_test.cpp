// SPDX-License-Identifier: MIT
// Packages that nobody should ship. Whatever is in them, an installation ends, and leaves either
// what the package says or the old bundle.

#include <QCoreApplication>

#include "mac/mac-service.h"
#include "test-support.h"

namespace {

const std::string kRefused = "-1 old=1";

class HostilePackageTest : public HomeTest {
protected:
    void PutOldBundle() {
        fs::remove_all(lumaris);
        WriteFile(app / "old", "1");
    }
    /// Installs the package; returns the status and what the bundle holds then.
    std::string Install() const {
        const int status = MacService().PrepareUserEnv();
        EXPECT_EQ(1, std::distance(fs::directory_iterator(lumaris), {})) << Tree(lumaris);
        return std::to_string(status) + " " + Tree(app);
    }

    const fs::path package =
        Service::GetRootLumarisResourceInstallPath().c_str() + std::string("/package/lumaris.wpk");
};

TEST_F(HostilePackageTest, OddEntries) {
    WritePackage(package, ClientPackage("122"));
    const std::string next = ReadFile(package), out = root / "out";
    const struct {
        const char *what;
        Entries entries;
        std::string installed = kRefused, outside = "kept=k";
        // The archive library does not write what it warns of: so bytes are changed.
        const char *format = "gnutar";
        std::string from = "", to = "";
    } cases[] = {
        {"..", {{"a", "1"}, {"../x", "x"}}},
        {"absolute", {{"/none/x", "x"}}, "0 none/ none/x=x"},
        {"'/', '.' and needless slashes", {{"/"}, {"./"}, {"//a//./c", "x"}}, "0 a/ a/c=x"},
        // Links are written as stored, and a later entry may pass through one.
        {"through a link", {{"l", "", AE_IFLNK, out}, {"l/x", "x"}}, "0 l->" + out, "kept=k x=x"},
        {"the bundle a link", {{".", "", AE_IFLNK, out}, {"x", "x"}}, "0 kept=k x=x", "kept=k x=x"},
        {"hard link out", {{"h", "", 0644, out + "/kept"}}, "0 h=k"},
        {"pipe", {{"p", "", AE_IFIFO | 0644}}, "0 p!"},
        {"file twice", {{"a", "1"}, {"a", "2"}}, "0 a=2"},
        {"set-uid", {{"s", "x", 06755}, {"d/", "", 01777}}, "0 d/ s=x:755"},
        {"no name", {{"a", "1"}, {"", "x"}}},
        {"warning", {{"a"}, {"\xc3\xbc"}}, kRefused, "kept=k", "pax", "path=", "path-"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        PutOldBundle();
        fs::remove_all(out);
        WriteFile(out + "/kept", "k");
        WritePackage(package, row.entries, ARCHIVE_FILTER_NONE, row.format);
        std::string bytes = ReadFile(package);
        WriteFile(package, bytes.replace(bytes.find(row.from), row.from.size(), row.to));
        EXPECT_EQ(row.installed, Install()) << Log();
        // Whatever it was, the next package replaces it, and follows no link while it removes it.
        WriteFile(package, next);
        EXPECT_EQ("0 Contents/", Install().substr(0, 11)) << Log();
        EXPECT_EQ(row.outside, Tree(out));
    }
    EXPECT_FALSE(Logged("[WARNING]")) << Log();
}

// As in the default format, the compressed data say where they end.
TEST_F(HostilePackageTest, CutAnywhere) {
    const std::string client = ReadFile(QCoreApplication::applicationFilePath().toStdString());
    WritePackage(package, ClientPackage("121", client.substr(0, 500000)), ARCHIVE_FILTER_ZSTD);
    const std::string bytes = ReadFile(package);
    for (size_t end = 0; end < bytes.size(); end += bytes.size() / 30) {
        PutOldBundle();
        WriteFile(package, bytes.substr(0, end));
        EXPECT_EQ(kRefused, Install()) << end << Log();
    }
    EXPECT_FALSE(Logged("unknown error")) << Log();
}

}  // namespace
