#pragma once

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "logger.h"

namespace fs = std::filesystem;

inline void WriteFile(const fs::path &path, const std::string &text) {
    if (path.has_parent_path())
        fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string ReadFile(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs checks in a process of their own, as somebody whom permissions hold.
inline void Apart(const std::function<void()> &checks) {
    const pid_t child = fork();
    if (child == 0) {
        EXPECT_TRUE(geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0));
        checks();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(0, status);
}

/// A home folder and a temporary folder of the test's own, and a log at level DEBUG.
class HomeTest : public testing::Test {
protected:
    HomeTest() {
        std::string name = (fs::temp_directory_path() / "lumaris-test-XXXXXX").string();
        root = mkdtemp(name.data());
        UseHome("home");
        WriteFile(root / "levels",
                  "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, (root / "log").c_str(), (root / "levels").c_str(),
                           50);
    }
    ~HomeTest() override {
        Logger::Destroy();
        fs::remove_all(root);
    }

    void UseHome(const std::string &name) {
        home = root / name;
        lumaris = home / ".LumarisBackup";
        app = lumaris / "Lumaris.app";
        fs::create_directories(home);
        setenv("HOME", home.c_str(), 1);
    }
    std::string Log() const { return ReadFile(root / "log"); }
    bool Logged(const std::string &text) const { return Log().find(text) != std::string::npos; }

    fs::path root, home, lumaris, app;
};

/// One entry of a package: a folder when the name ends in "/", a symbolic or hard link when one is
/// given, otherwise a file or what `type` says.
struct PackageEntry {
    std::string name;
    std::string data = {};
    int mode = 0644;
    std::string symlink = {};
    std::string hardlink = {};
    mode_t type = AE_IFREG;
    int repeat = 1;        // how often the data is written
    la_int64_t size = {};  // larger than the data: ends with a hole (pax only)
};

inline void WriteEntry(struct archive *writer, const PackageEntry &item) {
    struct archive_entry *entry = archive_entry_new();
    archive_entry_set_pathname(entry, item.name.c_str());
    const bool folder = !item.name.empty() && item.name.back() == '/';
    archive_entry_set_filetype(entry, folder ? AE_IFDIR : item.type);
    archive_entry_set_perm(entry, static_cast<mode_t>(folder ? item.mode | 0111 : item.mode));
    if (!item.symlink.empty()) {
        archive_entry_set_filetype(entry, AE_IFLNK);
        archive_entry_set_symlink(entry, item.symlink.c_str());
    }
    if (!item.hardlink.empty())
        archive_entry_set_hardlink(entry, item.hardlink.c_str());
    const auto size = static_cast<la_int64_t>(item.data.size());
    archive_entry_set_size(entry, std::max(item.size, size * item.repeat));
    if (item.size > 0)
        archive_entry_sparse_add_entry(entry, 0, size);
    EXPECT_EQ(ARCHIVE_OK, archive_write_header(writer, entry))
        << item.name << ": " << archive_error_string(writer);
    for (int i = 0; i < item.repeat; ++i)
        archive_write_data(writer, item.data.data(), item.data.size());
    archive_entry_free(entry);
}

inline void WritePackage(const fs::path &path, const std::vector<PackageEntry> &entries,
                         const char *format = "gnutar", const char *filter = "gzip") {
    fs::create_directories(path.parent_path());
    struct archive *writer = archive_write_new();
    ASSERT_EQ(ARCHIVE_OK, archive_write_set_format_by_name(writer, format)) << format;
    if (*filter != '\0') {  // the library warns of filters that are programs
        ASSERT_GE(archive_write_add_filter_by_name(writer, filter), ARCHIVE_WARN) << filter;
    }
    // Otherwise it makes folders that only root can empty; no other format knows the option.
    archive_write_set_format_option(writer, "iso9660", "rockridge", "strict");
    ASSERT_EQ(ARCHIVE_OK, archive_write_open_filename(writer, path.c_str()));
    for (const PackageEntry &item : entries)
        WriteEntry(writer, item);
    EXPECT_EQ(ARCHIVE_OK, archive_write_free(writer));
}

inline std::string Info(const std::string &build) {
    return "[Version]\nbuild_version=" + build + "\n";
}

/// A client bundle of that build; its executable comes from `client` or is a few bytes.
inline std::vector<PackageEntry> ClientPackage(const std::string &build,
                                               const std::string &client = "client") {
    return {{"Contents/"},
            {"Contents/MacOS/"},
            {"Contents/Resources/"},
            {"Contents/Resources/gr\xc3\xbc\xc3\x9f.txt", "hello " + build},
            {"Contents/MacOS/lumaris-backup-ui", client, 0755},
            {"Contents/Resources/INFO", Info(build)}};
}
