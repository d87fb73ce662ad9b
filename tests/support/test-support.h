// SPDX-License-Identifier: MIT
#pragma once

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "logger.h"

namespace fs = std::filesystem;

/// Seconds that one step may take. SIGALRM then ends the program, so that a hang is a failure.
const unsigned kSecondsPerStep = 60;

/// True in the long run, which looks at every place where the quick one takes a sample.
const bool kLong = getenv("LUMARIS_LONG") != nullptr;

inline void WriteFile(const fs::path &path, const std::string &text) {
    fs::create_directories(fs::absolute(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string ReadFile(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Waits for what another process is about to do; false when it has not come after 10 seconds.
inline bool Eventually(const std::function<bool()> &holds) {
    for (const time_t end = time(nullptr) + 10; time(nullptr) < end; usleep(2000)) {
        if (holds()) {
            return true;
        }
    }
    return false;
}

/// Exit status of a child, 1000 and more when a signal ended it.
inline int Finish(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

/// Runs `checks` in a child process, which exits with 1 if one of them failed.
inline pid_t Child(const std::function<void()> &checks) {
    const pid_t child = fork();
    if (child != 0) {
        return child;
    }
    alarm(kSecondsPerStep);
    checks();
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

/// What lies below `folder`, sorted: "name/", "name=content" (its hash when it is long),
/// "name->target" or "name!", with a mode that is not the usual one.
inline std::string Tree(const fs::path &folder) {
    std::set<std::string> lines;
    std::error_code none;
    for (const auto &entry : fs::recursive_directory_iterator(folder, none)) {
        const bool link = entry.is_symlink(), directory = !link && entry.is_directory();
        std::string what = directory ? "/" : link ? "->" + fs::read_symlink(entry).string() : "!";
        if (!link && entry.is_regular_file()) {
            const std::string content = ReadFile(entry);
            const std::string hash = "#" + std::to_string(std::hash<std::string>()(content));
            what = "=" + (content.size() < 100 ? content : hash);
        }
        char mode[16] = "";
        const auto bits = static_cast<unsigned>(entry.symlink_status().permissions());
        if (!link && bits != (directory ? 0755 : 0644)) {
            snprintf(mode, sizeof(mode), ":%o", bits);
        }
        lines.insert(entry.path().lexically_relative(folder).string() + what + mode);
    }
    std::string tree;
    for (const std::string &line : lines) {
        tree += (tree.empty() ? "" : " ") + line;
    }
    return tree;
}

/// A current folder and a home folder of the test's own, and a log at level DEBUG.
class HomeTest : public testing::Test {
protected:
    HomeTest() {
        alarm(kSecondsPerStep);
        umask(022);
        std::string name = (fs::temp_directory_path() / "lumaris-test-XXXXXX").string();
        root = fs::canonical(mkdtemp(name.data()));  // the temporary folder may lie behind a link
        fs::current_path(root);
        UseHome("home");
        WriteFile("levels",
                  "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, "log", "levels", 50);
    }
    ~HomeTest() override {
        Logger::Destroy();
        fs::remove_all(root);
        alarm(0);
    }

    void UseHome(const std::string &name) {
        home = root / name;
        lumaris = home / ".LumarisBackup";
        app = lumaris / "Lumaris.app";
        fs::create_directories(home);
        setenv("HOME", home.c_str(), 1);
    }
    std::string Log() const { return ReadFile(root / "log"); }
    bool Logged(const std::string &text) const { return Log().find(text) != text.npos; }

    fs::path root, home, lumaris, app;
};

/// One entry of a package: a folder when its name ends in "/", otherwise what the mode says, or a
/// file. With a `link` it is a hard link, or the symbolic one that the mode says.
struct PackageEntry {
    std::string name;
    std::string data = {};
    mode_t mode = 0644;
    std::string link = {};
};
using Entries = std::vector<PackageEntry>;

inline void WritePackage(const fs::path &path, const Entries &entries,
                         const char *format = "gnutar") {
    fs::create_directories(path.parent_path());
    struct archive *writer = archive_write_new();
    ASSERT_EQ(ARCHIVE_OK, archive_write_set_format_by_name(writer, format)) << format;
    ASSERT_EQ(ARCHIVE_OK, archive_write_open_filename(writer, path.c_str()));
    for (const PackageEntry &item : entries) {
        struct archive_entry *entry = archive_entry_new();
        archive_entry_set_pathname(entry, item.name.c_str());
        const bool folder = !item.name.empty() && item.name.back() == '/';
        const bool plain = (item.mode & AE_IFMT) == 0;
        const mode_t type = folder ? AE_IFDIR | 0111 : plain ? AE_IFREG : 0;
        archive_entry_set_mode(entry, item.mode | type);
        if (!item.link.empty()) {
            archive_entry_set_hardlink(entry, plain ? item.link.c_str() : nullptr);
            archive_entry_set_symlink(entry, plain ? nullptr : item.link.c_str());
        }
        archive_entry_set_size(entry, static_cast<la_int64_t>(item.data.size()));
        EXPECT_EQ(ARCHIVE_OK, archive_write_header(writer, entry)) << archive_error_string(writer);
        archive_write_data(writer, item.data.data(), item.data.size());
        archive_entry_free(entry);
    }
    EXPECT_EQ(ARCHIVE_OK, archive_write_free(writer));
}

inline std::string Info(const std::string &build) {
    return "[Version]\nbuild_version=" + build + "\n";
}

/// A client bundle of that build; its executable comes from `client` or is a few bytes.
inline Entries ClientPackage(const std::string &build, const std::string &client = "client") {
    return {{"Contents/"},
            {"Contents/MacOS/"},
            {"Contents/Resources/"},
            {"Contents/Resources/gr\xc3\xbc\xc3\x9f.txt", "hello " + build},
            {"Contents/MacOS/lumaris-backup-ui", client, 0755},
            {"Contents/Resources/INFO", Info(build)}};
}
