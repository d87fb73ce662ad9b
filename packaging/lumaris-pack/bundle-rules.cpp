// SPDX-License-Identifier: MIT
#include "bundle-rules.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <utility>

#include "ustring.h"

namespace {

// The limits of macOS in bytes. That of a path includes the NUL at its end.
constexpr std::size_t kMaxPart = 255;
constexpr std::size_t kMaxPath = 1024;
constexpr std::size_t kMaxTarget = 1023;
constexpr int kMaxLinks = 32;
// The longest path before a name, that of a bundle which was moved aside. 64 bytes are for the home
// folder.
constexpr std::size_t kRoomForPlace = 64 + sizeof("/.LumarisBackup/Lumaris.app_tmp9/");

// The launcher creates a missing folder with these permissions for an entry inside it. An entry for
// the folder itself that comes later does not change them.
constexpr mode_t kFolderMode = S_IFDIR | 0755;
constexpr mode_t kUsualUmask = 022;

// The form in which macOS compares names.
std::string Folded(const std::string &name) {
    UErrorCode status = U_ZERO_ERROR;  // cannot fail: the data is built in
    const icu::Normalizer2 *const form = icu::Normalizer2::getNFDInstance(status);
    icu::UnicodeString text = form->normalize(icu::UnicodeString::fromUTF8(name), status);
    text = form->normalize(text.foldCase(), status);
    std::string folded;
    return text.toUTF8String(folded);
}

// The parts of a name, without empty ones and ".": they mean nothing, neither to the launcher nor
// in the target of a link.
std::vector<std::string> Parts(const std::string &name) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0, end = 0; begin <= name.size(); begin = end + 1) {
        end = std::min(name.find('/', begin), name.size());
        const std::string part = name.substr(begin, end - begin);
        if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
    }
    return parts;
}

std::string Joined(const std::vector<std::string> &parts) {
    std::string name;
    for (const std::string &part : parts) {
        name += (name.empty() ? "" : "/") + part;
    }
    return name;
}

// Why an entry may not have this name; empty when it may.
std::string NameProblem(const std::string &name) {
    if (name.size() + kRoomForPlace > kMaxPath) {
        return "is longer than a path can be on a Mac";
    }
    if (!ustring::is_valid(name)) {
        return "is not valid UTF-8";
    }
    const std::vector<std::string> parts = Parts(name);
    for (const std::string &part : parts) {
        if (part == "..") {
            return "has a '..' part";
        }
        if (part.size() > kMaxPart) {
            return "has a part longer than 255 bytes";
        }
    }
    // On macOS libarchive takes such a file for the attributes of the entry that follows it.
    if (!parts.empty() && parts.back().compare(0, 2, "._") == 0) {
        return "is an AppleDouble file";
    }
    return {};
}

// Why an entry may not have this type or these permissions; empty when it may.
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

std::string Parent(const std::string &name) {
    const std::size_t slash = name.rfind('/');
    return slash == std::string::npos ? "" : name.substr(0, slash);
}

// Walks from `folder` along `steps`, through any links on the way; `folder` becomes where they
// lead. Returns why they lead nowhere; empty when they arrive.
std::string Follow(const std::map<std::string, std::vector<std::string>> &targets,
                   const std::vector<std::string> &steps, std::string &folder, int &followed) {
    for (const std::string &step : steps) {
        if (step == ".." && folder.empty()) {
            return "points out of the bundle";
        }
        if (step == "..") {
            folder = Parent(folder);
            continue;
        }
        std::string next = folder;
        next += (folder.empty() ? "" : "/") + step;
        const auto link = targets.find(next);
        if (link == targets.end()) {
            folder = std::move(next);
            continue;
        }
        if (++followed > kMaxLinks) {
            return "never arrives";
        }
        std::string problem = Follow(targets, link->second, folder, followed);
        if (!problem.empty()) {
            return problem;
        }
    }
    return {};
}

// Why a link may not have this target; empty when it may.
std::string TargetProblem(const char *target) {
    if (target == nullptr) {
        return "points to a name that cannot be read in every locale";
    }
    const std::string text = target;
    if (!ustring::is_valid(text)) {
        return "points to a name that is not valid UTF-8";
    }
    if (text.size() > kMaxTarget) {
        return "points to a name longer than 1023 bytes";
    }
    if (text.empty() || text.front() == '/') {
        return "points to an absolute or empty name";
    }
    return {};
}

}  // namespace

std::string Printable(const std::string &text) {
    constexpr char digits[] = "0123456789abcdef";
    std::size_t end = std::min<std::size_t>(text.size(), 300);
    while (end > 0 && end < text.size() && (text[end] & 0xc0) == 0x80) {
        --end;  // do not cut a character in two
    }
    const std::string shown = text.substr(0, end);
    const bool utf8 = ustring::is_valid(shown);
    std::string line;
    for (const char c : shown) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f || (byte >= 0x80 && !utf8)) {
            line += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
        } else {
            line += c;
        }
    }
    return line + (end < text.size() ? "..." : "");
}

std::string Quoted(const std::string &name) {
    return "'" + Printable(name) + "'";
}

std::string BundleRules::Add(const std::string &stored_name, mode_t mode, const char *target) {
    const std::string problem = NameProblem(stored_name);
    if (!problem.empty()) {
        Refuse(stored_name, problem);
        return {};
    }
    std::string name = Joined(Parts(stored_name));
    if (name.empty() && !S_ISDIR(mode)) {
        Refuse(stored_name, "takes the place of the bundle");
    }
    if (name.empty()) {
        return name;
    }
    Refuse(name, ModeProblem(mode));
    const std::string problem_of_target = S_ISLNK(mode) ? TargetProblem(target) : "";
    Refuse(name, problem_of_target);
    if (PlaceFolder(Parent(name)) && Place(name, mode) && !S_ISDIR(mode)) {
        m_before_last = std::exchange(m_last, name);
        if (S_ISLNK(mode) && problem_of_target.empty()) {
            m_targets[Folded(name)] = Parts(Folded(target));
        }
    }
    return name;
}

/// Places the folder of an entry and the folders above it, since the launcher creates missing ones.
/// False when something else has the name.
bool BundleRules::PlaceFolder(const std::string &name) {
    if (name.empty()) {
        return true;
    }
    if (!PlaceFolder(Parent(name))) {
        return false;
    }
    const auto [place, is_new] = m_placed.try_emplace(Folded(name), Placed{name, kFolderMode});
    const Placed &there = place->second;
    if (is_new || (there.name == name && S_ISDIR(there.mode))) {
        return true;
    }
    Refuse(name, there.name == name ? "is no folder, but entries lie in it"
                                    : "is one name with " + Quoted(there.name) + " on a Mac");
    return false;
}

/// Places an entry. False when its name is taken already.
bool BundleRules::Place(const std::string &name, mode_t mode) {
    const auto [place, is_new] = m_placed.try_emplace(Folded(name), Placed{name, mode});
    const Placed &there = place->second;
    if (is_new) {
        return true;
    }
    if (there.name != name) {
        Refuse(name, "is one name with " + Quoted(there.name) + " on a Mac");
    } else if (!S_ISDIR(mode) || !S_ISDIR(there.mode)) {
        Refuse(name, "is there twice");
    } else if ((mode & ~kUsualUmask) != (there.mode & ~kUsualUmask)) {
        Refuse(name, "is a folder that is there before its permissions");
    }
    return false;
}

void BundleRules::Finish() {
    for (const auto &[name, target] : m_targets) {
        std::string folder = Parent(name);
        int followed = 0;
        Refuse(m_placed.at(name).name, Follow(m_targets, target, folder, followed));
    }
    RequireFile(kClientExecutable, S_IXUSR, "is not executable");
    RequireFile(kClientInfo, S_IRUSR, "cannot be read by its owner");
    RequireFile(kClientPropertyList, S_IRUSR, "cannot be read by its owner");
    // The launcher goes by these two files, so they come last: an interrupted extraction must not
    // look complete. Folders may follow them, since 7-zip stores folders last.
    if (m_before_last != kClientExecutable || m_last != kClientInfo) {
        Refuse("the last files are not " + Quoted(kClientExecutable) + " and " +
               Quoted(kClientInfo));
    }
}

void BundleRules::RequireFile(const std::string &name, mode_t permission, const std::string &lack) {
    const auto found = m_placed.find(Folded(name));
    if (found == m_placed.end() || found->second.name != name) {
        Refuse(name, "is missing");
    } else if (!S_ISREG(found->second.mode)) {
        Refuse(name, "is not a plain file");
    } else if ((found->second.mode & permission) == 0) {
        Refuse(name, lack);
    }
}

void BundleRules::Refuse(const std::string &name, const std::string &problem) {
    if (!problem.empty()) {
        m_problems.insert(Quoted(name) + " " + problem);
    }
}
