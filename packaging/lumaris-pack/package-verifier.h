// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// How much of a package lies under a checksum that its reader looks at.
enum class Protection { kNone, kContents, kEverything };

struct PackageReport {
    std::uint64_t entries = 0;
    Protection protection = Protection::kNone;
    /// One line for each reason against the package; empty when the launcher can install it.
    std::vector<std::string> problems;
};

/// Reads the package as the launcher does, and further than the launcher where that helps: an entry
/// that it would stop at is reported, and the next one is examined. What follows the last entry is
/// read too.
PackageReport VerifyPackage(const std::string &path);
