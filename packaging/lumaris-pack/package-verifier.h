// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

struct PackageReport {
    /// How many entries there are, and how much of the package lies under a checksum that its
    /// reader looks at.
    std::string summary;
    /// One line for each reason against the package; empty when the launcher can install it.
    std::vector<std::string> problems;
};

/// Reads the package as the launcher does, and further than the launcher where that helps: an entry
/// that it would stop at is reported, and the next one is examined. What follows the last entry is
/// read too.
PackageReport VerifyPackage(const std::string &path);
