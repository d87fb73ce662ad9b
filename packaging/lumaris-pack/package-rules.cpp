// SPDX-License-Identifier: MIT
#include "package-rules.h"

#include <QString>
#include <algorithm>
#include <deque>

namespace {

// As many as the kernel follows.
constexpr int kMaxLinks = 40;

bool IsUtf8(const std::string &text) {
    // Malformed bytes come back as others. A byte order mark would be dropped at the very
    // beginning.
    const std::string bytes = "/" + text;
    return QString::fromStdString(bytes).toStdString() == bytes;
}

using Steps = std::deque<std::string>;

// At least one part, which may be empty; the first one is for an absolute path.
Steps Split(const std::string &path) {
    Steps parts;
    std::size_t begin = 0;
    while (begin <= path.size()) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        parts.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

std::string Join(const Steps &parts) {
    std::string path;
    for (const std::string &part : parts) {
        path += path.empty() ? part : "/" + part;
    }
    return path;
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

std::string ParentName(const std::string &name) {
    const std::size_t slash = name.rfind('/');
    return slash == std::string::npos ? std::string() : name.substr(0, slash);
}

std::string NameProblem(const std::string &name) {
    if (name.empty() || name.front() == '/') {
        return "is not a relative name";
    }
    const Steps parts = Split(name);
    for (const std::string &part : parts) {
        if (part.empty() || part == "." || part == "..") {
            return "has an empty, '.' or '..' part";
        }
    }
    if (!IsUtf8(name)) {
        return "is not valid UTF-8";
    }
    // The archive library on macOS takes such a file for attributes of whatever entry follows it.
    if (parts.back().compare(0, 2, "._") == 0) {
        return "is an AppleDouble file";
    }
    return {};
}

std::string ModeProblem(mode_t mode) {
    if (!S_ISREG(mode) && !S_ISDIR(mode) && !S_ISLNK(mode)) {
        return "is neither a file, a folder nor a symbolic link";
    }
    if (!S_ISLNK(mode) && (mode & (S_ISUID | S_ISGID | S_ISVTX)) != 0) {
        return "is set-uid, set-gid or sticky";
    }
    return {};
}

std::string ClientFileProblem(const std::string &name, mode_t mode) {
    if (!S_ISREG(mode)) {
        return "is not a plain file";
    }
    return name == kClientExecutable && (mode & S_IXUSR) == 0 ? "is not executable" : "";
}

void LinkTable::Add(const std::string &name, const std::string &target) {
    m_targets[name] = target;
}

void LinkTable::Check(std::vector<std::string> &problems) const {
    for (const auto &[name, target] : m_targets) {
        const std::string problem = Problem(name, target);
        if (!problem.empty()) {
            problems.push_back(Quoted(name) + " " + problem);
        }
    }
}

std::string LinkTable::Problem(const std::string &name, const std::string &target) const {
    if (!IsUtf8(target)) {
        return "points to a name that is not valid UTF-8";
    }
    Steps folder = Split(name);
    folder.pop_back();
    Steps steps = Split(target);
    if (steps.front().empty()) {
        return "points to an absolute or empty name";
    }
    for (int followed = 0; !steps.empty();) {
        const std::string step = steps.front();
        steps.pop_front();
        if (step == ".." && folder.empty()) {
            return "points out of the bundle: " + Quoted(target);
        }
        if (step == "..") {
            folder.pop_back();
        } else if (!step.empty() && step != ".") {
            folder.push_back(step);
        }
        const auto link = m_targets.find(Join(folder));
        if (link == m_targets.end()) {
            continue;
        }
        if (++followed > kMaxLinks) {
            return "never arrives: " + Quoted(target);
        }
        const Steps further = Split(link->second);
        if (further.front().empty()) {
            return "points out of the bundle through " + Quoted(link->first);
        }
        folder.pop_back();
        steps.insert(steps.begin(), further.begin(), further.end());
    }
    return {};
}
