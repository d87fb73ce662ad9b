// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "client-layout.h"

/// The version file inside the client bundle.
inline const std::string kClientInfo = std::string(kResources) + "/" + kInfoFile;
/// The file that macOS requires in every bundle that it opens.
inline const std::string kClientPropertyList = "Contents/Info.plist";

/// Text from a package as one readable line, with control bytes and malformed UTF-8 escaped. Long
/// texts are cut.
std::string Printable(const std::string &text);
/// A name in quotes, printable.
std::string Quoted(const std::string &name);

/// Checks the bundle that the entries of a package would make on a Mac, without touching the disk.
///
/// To macOS, names that differ only in letter case or canonical form are the same. So names and the
/// targets of links are compared folded and decomposed.
class BundleRules {
public:
    /// Adds the next entry of the package. `target` is that of a symbolic link, null when the
    /// locale cannot express it. Returns the path of the entry inside the bundle, empty for the
    /// bundle itself and for a name that is refused.
    std::string Add(const std::string &stored_name, mode_t mode, const char *target);
    /// Call this after the last entry. Checks that the required files are there, that the right two
    /// come last, and where links lead.
    void Finish();

    void Refuse(const std::string &problem) { m_problems.insert(problem); }
    void Refuse(const std::string &name, const std::string &problem);
    /// One line for each reason to refuse the package.
    const std::set<std::string> &Problems() const { return m_problems; }

private:
    struct Placed {
        std::string name;
        mode_t mode;
    };

    bool PlaceFolder(const std::string &name);
    bool Place(const std::string &name, mode_t mode);
    void RequireFile(const std::string &name, mode_t permission, const std::string &lack);

    std::set<std::string> m_problems;
    std::map<std::string, Placed> m_placed;  // by folded name
    // The split targets of links by the names of the links, all folded; without refused links.
    std::map<std::string, std::vector<std::string>> m_targets;
    std::string m_last;
    std::string m_before_last;
};
