// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <string>

#include "client-folder.h"

/// A format or filter by its name on the command line. Where nothing is compressed, all three
/// levels are 0.
struct PackageCoding {
    const char *name;
    int code;  ///< of the archive library
    int lowest_level;
    int default_level;
    int highest_level;

    bool Compresses() const { return highest_level > 0; }
};

/// Null when there is none of that name.
const PackageCoding *FindFormat(const std::string &name);
const PackageCoding *FindFilter(const std::string &name);

struct PackageOptions {
    const PackageCoding *format;
    const PackageCoding *filter;
    int level;          ///< of the format when it compresses, else of the filter
    std::time_t mtime;  ///< of every entry
};

/// Told after each block how many bytes of the files are packed; false stops packing.
using PackageProgress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// Writes the package to `fd`, which stays open. The same folder and options give the same bytes.
/// Throws PackageError for a file that cannot be read or changes meanwhile, for a name that the
/// format cannot hold, when writing fails and when `progress` stops it.
void WritePackage(const ClientFolder &client, const PackageOptions &options, int fd,
                  const PackageProgress &progress);
