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
/// What macOS asks of every bundle before it opens it.
inline const std::string kClientPropertyList = "Contents/Info.plist";

/// Text from a package on one readable line: control bytes and malformed UTF-8 escaped, not too
/// long.
std::string Printable(const std::string &text);
/// A name in quotes, printable.
std::string Quoted(const std::string &name);

/// Judges the bundle that the entries of a package make on a Mac, without touching the disk.
///
/// A Mac takes names for one that differ in letter case or in their canonical form: so names and
/// the steps of links are compared folded and decomposed.
class BundleRules {
public:
    /// One entry in the order of the package. `target` counts for symbolic links; null when the
    /// locale cannot express it. Returns where the entry lands, below the bundle; empty for the
    /// bundle itself and for a name that is refused.
    std::string Add(const std::string &stored_name, mode_t mode, const char *target);
    /// To be called after the last entry: looks for the files that a client must have, for the
    /// order of the last two, and where links lead.
    void Finish();

    void Refuse(const std::string &problem) { m_problems.insert(problem); }
    void Refuse(const std::string &name, const std::string &problem);
    /// One line for each reason against the package.
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
    // The steps of links by the links' names, all folded; none of a link that is refused by itself.
    std::map<std::string, std::vector<std::string>> m_targets;
    std::string m_last;
    std::string m_before_last;
};
