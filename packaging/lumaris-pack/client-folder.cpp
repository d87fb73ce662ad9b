// SPDX-License-Identifier: MIT
#include "client-folder.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "package-rules.h"

namespace fs = std::filesystem;

namespace {

mode_t StoredMode(mode_t mode) {
    if (S_ISLNK(mode)) {
        return S_IFLNK | 0777;  // they mean nothing and differ between systems
    }
    // The launcher writes into each folder after creating it, and removes it at the next upgrade.
    return S_ISDIR(mode) ? mode | S_IRWXU : mode;
}

ClientEntry Examine(const std::string &path, const std::string &name) {
    struct stat info = {};
    if (lstat(path.c_str(), &info) != 0) {
        throw SystemError("cannot read " + Quoted(path));
    }
    const bool file = S_ISREG(info.st_mode);
    ClientEntry entry{name, StoredMode(info.st_mode), 0, info.st_mtime, {}};
    entry.size = file ? static_cast<std::uint64_t>(info.st_size) : 0;
    if (S_ISLNK(info.st_mode)) {
        entry.target = fs::read_symlink(path).native();
    }
    return entry;
}

int Rank(const std::string &name) {
    return name == kClientInfo ? 2 : name == kClientExecutable ? 1 : 0;
}

bool PackedBefore(const ClientEntry &a, const ClientEntry &b) {
    const int rank_a = Rank(a.name);
    const int rank_b = Rank(b.name);
    return rank_a == rank_b ? a.name < b.name : rank_a < rank_b;
}

}  // namespace

ClientFolder ListClientFolder(const std::string &path) {
    ClientFolder folder{path, {}, {}};
    EntryRules rules(folder.problems);
    std::error_code error;
    fs::path last = path;  // the folder that cannot be listed, when going on fails
    for (fs::recursive_directory_iterator item(path, error), end; !error && item != end;
         item.increment(error)) {
        last = item->path();
        const std::string name = last.lexically_relative(path).native();
        folder.entries.push_back(Examine(last.native(), name));
        const ClientEntry &entry = folder.entries.back();
        folder.total_size += entry.size;
        rules.Add(name, entry.mode, entry.target.c_str());
    }
    if (error) {
        throw std::system_error(error, "cannot list " + Quoted(last.native()));
    }
    rules.CheckLinks();
    rules.CheckClientFiles();
    std::sort(folder.problems.begin(), folder.problems.end());
    std::sort(folder.entries.begin(), folder.entries.end(), PackedBefore);
    return folder;
}
