// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "info-file.h"
#include "package-writer.h"

struct BuildRequest {
    std::string client;  ///< bundle to package
    std::string output;  ///< folder to make
    /// The values of the version, in the order of the keys.
    std::array<std::string, kVersionKeys.size()> version;
    PackageOptions options;
};

/// Makes the output folder with package/lumaris.wpk and INFO. Returns one line for each thing in
/// the bundle that may not be packaged; there is an output folder only when there is none. Throws
/// std::runtime_error for all other failures.
std::vector<std::string> BuildPackage(const BuildRequest &request, const PackageProgress &progress);
