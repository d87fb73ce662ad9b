// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "package-writer.h"
#include "version-info.h"

struct BuildRequest {
    std::string client;  ///< bundle to package
    std::string output;  ///< folder to make
    VersionInfo version;
    PackageOptions options;
};

/// Makes the output folder with package/lumaris.wpk and INFO. Returns one line for each thing in
/// the bundle that may not be packaged; there is an output folder only when there is none. Throws
/// PackageError for all other failures.
std::vector<std::string> BuildPackage(const BuildRequest &request, const PackageProgress &progress);
