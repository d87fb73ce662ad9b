// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <string>

#include "client-folder.h"

struct PackageOptions {
    std::string format;  ///< gnutar or zip
    std::string filter;  ///< zstd, xz or none; none for zip
    int level;           ///< of the format when it compresses, else of the filter
    std::time_t mtime;   ///< of every entry
};

/// Told after each block how many bytes of the files are packed; false stops packing.
using PackageProgress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// Writes the package to `fd`, which stays open. The same folder and options give the same bytes.
/// Throws std::runtime_error for a file that cannot be read or changes meanwhile, for a name that
/// the format cannot hold, when writing fails and when `progress` stops it.
void WritePackage(const ClientFolder &client, const PackageOptions &options, int fd,
                  const PackageProgress &progress);
