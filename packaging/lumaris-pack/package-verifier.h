#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct PackageReport {
    std::uint64_t entries = 0;
    /// One line for each reason against the package; empty when the launcher can install it.
    std::vector<std::string> problems;
};

/// Reads the package as the launcher does, and further than the launcher where that helps: an entry
/// that it would stop at is reported, and the next one is examined.
PackageReport VerifyPackage(const std::string &path);
