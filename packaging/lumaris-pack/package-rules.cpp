// SPDX-License-Identifier: MIT
#include "package-rules.h"

#include <QString>
#include <cerrno>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// As many as the kernel follows.
constexpr int kMaxLinks = 40;

bool IsUtf8(const std::string &text) {
    // Malformed bytes come back as others. A byte order mark would be dropped at the very
    // beginning.
    const std::string bytes = "/" + text;
    return QString::fromStdString(bytes).toStdString() == bytes;
}

// Why an entry may not have this name; empty when it may.
std::string NameProblem(const std::string &name) {
    if (name.empty() || name.front() == '/') {
        return "is not a relative name";
    }
    const std::string below_root = "/" + name;
    if (fs::path(below_root).lexically_normal().native() != below_root) {
        return "has an empty, '.' or '..' part";
    }
    if (!IsUtf8(name)) {
        return "is not valid UTF-8";
    }
    // The archive library on macOS takes such a file for attributes of whatever entry follows it.
    if (fs::path(name).filename().native().compare(0, 2, "._") == 0) {
        return "is an AppleDouble file";
    }
    return {};
}

// The same for its type and permissions.
std::string ModeProblem(mode_t mode) {
    if (!S_ISREG(mode) && !S_ISDIR(mode) && !S_ISLNK(mode)) {
        return "is neither a file, a folder nor a symbolic link";
    }
    if (!S_ISLNK(mode) && (mode & (S_ISUID | S_ISGID | S_ISVTX)) != 0) {
        return "is set-uid, set-gid or sticky";
    }
    if (S_ISDIR(mode) && (mode & S_IRWXU) != S_IRWXU) {
        return "is a folder that its owner cannot read, write and search";
    }
    return {};
}

using Targets = std::map<std::string, std::string>;

// Goes on from `folder` to `path`, through the links on the way; tells why it does not arrive.
std::string Follow(const Targets &targets, const fs::path &path, fs::path &folder, int &followed) {
    for (const fs::path &step : path) {
        if (step == ".." && folder.empty()) {
            return "points out of the bundle";
        }
        if (step == "..") {
            folder = folder.parent_path();
            continue;
        }
        if (step.empty() || step == ".") {
            continue;
        }
        const auto link = targets.find((folder / step).native());
        if (link == targets.end()) {
            folder /= step;
            continue;
        }
        if (++followed > kMaxLinks) {
            return "never arrives";
        }
        if (link->second.empty() || link->second.front() == '/') {
            return "points out of the bundle through " + Quoted(link->first);
        }
        std::string problem = Follow(targets, link->second, folder, followed);
        if (!problem.empty()) {
            return problem;
        }
    }
    return {};
}

std::string LinkProblem(const Targets &targets, const std::string &name,
                        const std::string &target) {
    if (!IsUtf8(target)) {
        return "points to a name that is not valid UTF-8";
    }
    if (target.empty() || target.front() == '/') {
        return "points to an absolute or empty name";
    }
    fs::path folder = fs::path(name).parent_path();
    int followed = 0;
    const std::string problem = Follow(targets, target, folder, followed);
    return problem.empty() ? "" : problem + ": " + Quoted(target);
}

}  // namespace

std::string Quoted(const std::string &name) {
    const bool utf8 = IsUtf8(name);
    std::string text = "'";
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f || (byte >= 0x80 && !utf8)) {
            constexpr char digits[] = "0123456789abcdef";
            text += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
        } else {
            text += c;
        }
    }
    return text + "'";
}

std::system_error SystemError(const std::string &action) {
    return {errno, std::generic_category(), action};
}

void EntryRules::Add(const std::string &name, mode_t mode, const char *target) {
    const std::string name_problem = NameProblem(name);
    Refuse(name, name_problem);
    Refuse(name, ModeProblem(mode));
    const auto parent = m_modes.find(fs::path(name).parent_path().native());
    if (name_problem.empty() && name.find('/') != std::string::npos &&
        (parent == m_modes.end() || !S_ISDIR(parent->second))) {
        Refuse(name, "does not come after the folder that it lies in");
    }
    if (!m_modes.insert_or_assign(name, mode).second) {
        Refuse(name, "is there twice");
    }
    if (S_ISLNK(mode) && target == nullptr) {
        Refuse(name, "points to a name that cannot be read in every locale");
    } else if (S_ISLNK(mode)) {
        m_targets[name] = target;
    }
}

void EntryRules::CheckLinks() {
    for (const auto &[name, target] : m_targets) {
        Refuse(name, LinkProblem(m_targets, name, target));
    }
}

void EntryRules::CheckClientFiles() {
    for (const std::string &name : {std::string(kClientExecutable), kClientInfo}) {
        const auto found = m_modes.find(name);
        if (found == m_modes.end()) {
            Refuse(name, "is missing");
        } else if (!S_ISREG(found->second)) {
            Refuse(name, "is not a plain file");
        } else if (name == kClientExecutable && (found->second & S_IXUSR) == 0) {
            Refuse(name, "is not executable");
        }
    }
}

void EntryRules::Refuse(const std::string &name, const std::string &problem) {
    if (!problem.empty()) {
        m_problems.push_back(Quoted(name) + " " + problem);
    }
}
