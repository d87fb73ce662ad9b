// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <map>
#include <string>
#include <vector>

#include "client-layout.h"

/// The version file inside the client bundle. It comes last in a package, and the executable
/// before it: the launcher starts an upgrade when the executable is missing or the build in INFO is
/// old, so that an interrupted extraction is seen and repeated at the next start.
inline const std::string kClientInfo = std::string(kResources) + "/" + kInfoFile;

/// `name` in quotes, with control bytes and malformed UTF-8 escaped: one readable line.
std::string Quoted(const std::string &name);

/// The name of the folder that holds `name`; empty at the top.
std::string ParentName(const std::string &name);

/// Why an entry may not have this name; empty when it may.
std::string NameProblem(const std::string &name);

/// Why an entry may not have this type and these permissions; empty when it may.
std::string ModeProblem(mode_t mode);

/// Why the client executable or INFO may not look like this; empty when it may.
std::string ClientFileProblem(const std::string &name, mode_t mode);

/// The symbolic links of one bundle, each followed step by step without touching the disk.
class LinkTable {
public:
    void Add(const std::string &name, const std::string &target);
    /// Adds "`name` problem" lines to `problems` for each link that may not be packaged.
    void Check(std::vector<std::string> &problems) const;

private:
    std::string Problem(const std::string &name, const std::string &target) const;

    std::map<std::string, std::string> m_targets;
};
