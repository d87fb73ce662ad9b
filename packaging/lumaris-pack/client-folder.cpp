// SPDX-License-Identifier: MIT
#include "client-folder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <numeric>
#include <tuple>

#include "package-error.h"
#include "package-rules.h"

namespace fs = std::filesystem;

namespace {

// Permissions of a link mean nothing and differ between systems.
constexpr mode_t kLinkMode = S_IFLNK | 0777;

mode_t StoredMode(mode_t mode) {
    if (S_ISLNK(mode)) {
        return kLinkMode;
    }
    // The launcher writes into each folder after creating it, and removes it at the next upgrade.
    const mode_t owner = S_ISDIR(mode) ? S_IRWXU : 0;
    return (mode & S_IFMT) | (mode & 0777) | owner;
}

class Lister {
public:
    explicit Lister(ClientFolder &folder) : m_folder(folder) {}

    void List(const std::string &parent) {
        const std::string path = parent.empty() ? m_folder.path : m_folder.Locate(parent);
        try {
            for (const fs::directory_entry &item : fs::directory_iterator(path)) {
                const std::string leaf = item.path().filename().native();
                Add((fs::path(parent) / leaf).native());
            }
        } catch (const fs::filesystem_error &error) {
            throw PackageError("cannot list " + Quoted(path), error.code().value());
        }
    }

    void CheckLinks() { m_links.Check(m_folder.problems); }

private:
    void Add(const std::string &name) {
        struct stat info = {};
        if (lstat(m_folder.Locate(name).c_str(), &info) != 0) {
            throw PackageError("cannot read " + Quoted(m_folder.Locate(name)), errno);
        }
        Refuse(name, NameProblem(name));
        Refuse(name, ModeProblem(info.st_mode));

        const std::uint64_t size =
            S_ISREG(info.st_mode) ? static_cast<std::uint64_t>(info.st_size) : 0;
        ClientEntry entry{name, StoredMode(info.st_mode), size, info.st_mtime, {}};
        if (S_ISLNK(info.st_mode)) {
            entry.target = fs::read_symlink(m_folder.Locate(name)).native();
            m_links.Add(name, entry.target);
        }
        m_folder.entries.push_back(std::move(entry));
        if (S_ISDIR(info.st_mode)) {
            List(name);
        }
    }

    void Refuse(const std::string &name, const std::string &problem) {
        if (!problem.empty()) {
            m_folder.problems.push_back(Quoted(name) + " " + problem);
        }
    }

    ClientFolder &m_folder;
    LinkTable m_links;
};

int Rank(const std::string &name) {
    return name == kClientInfo ? 2 : name == kClientExecutable ? 1 : 0;
}

void CheckClientFiles(ClientFolder &folder) {
    for (const std::string &name : {std::string(kClientExecutable), kClientInfo}) {
        const auto entry =
            std::find_if(folder.entries.begin(), folder.entries.end(),
                         [&name](const ClientEntry &candidate) { return candidate.name == name; });
        const std::string problem =
            entry == folder.entries.end() ? "is missing" : ClientFileProblem(name, entry->mode);
        if (!problem.empty()) {
            folder.problems.push_back(Quoted(name) + " " + problem);
        }
    }
}

}  // namespace

std::uint64_t ClientFolder::TotalSize() const {
    return std::accumulate(
        entries.begin(), entries.end(), std::uint64_t{0},
        [](std::uint64_t sum, const ClientEntry &entry) { return sum + entry.size; });
}

ClientFolder ListClientFolder(const std::string &path) {
    ClientFolder folder{path, {}, {}};
    Lister lister(folder);
    lister.List({});
    lister.CheckLinks();
    CheckClientFiles(folder);
    std::sort(folder.problems.begin(), folder.problems.end());
    std::sort(folder.entries.begin(), folder.entries.end(),
              [](const ClientEntry &a, const ClientEntry &b) {
                  return std::make_tuple(Rank(a.name), std::cref(a.name)) <
                         std::make_tuple(Rank(b.name), std::cref(b.name));
              });
    return folder;
}
