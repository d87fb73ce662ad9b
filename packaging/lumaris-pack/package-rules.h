// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <map>
#include <string>
#include <system_error>
#include <vector>

#include "client-layout.h"

/// The version file inside the client bundle. It comes last in a package, and the executable
/// before it: the launcher starts an upgrade when the executable is missing or the build in INFO is
/// old, so that an interrupted extraction is seen and repeated at the next start.
inline const std::string kClientInfo = std::string(kResources) + "/" + kInfoFile;

/// `name` in quotes, with control bytes and malformed UTF-8 escaped: one readable line.
std::string Quoted(const std::string &name);

/// What stops packing, with the reason from errno, told in one line for the user.
std::system_error SystemError(const std::string &action);

/// Examines the entries of one bundle in their order, without touching the disk.
class EntryRules {
public:
    /// `problems` gets a line for each thing that may not be packaged.
    explicit EntryRules(std::vector<std::string> &problems) : m_problems(problems) {}

    /// `target` counts for symbolic links; null when the locale cannot express it.
    void Add(const std::string &name, mode_t mode, const char *target);
    /// Follows each link step by step.
    void CheckLinks();
    /// Looks for the client executable and INFO.
    void CheckClientFiles();

private:
    void Refuse(const std::string &name, const std::string &problem);

    std::vector<std::string> &m_problems;
    std::map<std::string, mode_t> m_modes;
    std::map<std::string, std::string> m_targets;
};
