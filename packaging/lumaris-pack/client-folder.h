// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

/// One file, folder or symbolic link as it goes into the package.
struct ClientEntry {
    std::string name;  ///< relative to the bundle, raw bytes
    mode_t mode;       ///< type and permissions as stored in the package
    std::uint64_t size;
    std::time_t mtime;   ///< when listed; not stored
    std::string target;  ///< of a symbolic link
};

/// The client bundle, listed but not read.
struct ClientFolder {
    std::string path;
    /// In package order: parents first, bytes of the names ascending, the client executable and
    /// INFO last.
    std::vector<ClientEntry> entries;
    /// One line for each thing that may not be packaged.
    std::vector<std::string> problems;
    std::uint64_t total_size = 0;
};

/// Throws std::runtime_error when the folder, or one inside it, cannot be listed.
ClientFolder ListClientFolder(const std::string &path);
