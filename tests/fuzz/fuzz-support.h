// SPDX-License-Identifier: MIT
#pragma once

// What the fuzz targets share. `scripts/fuzz.sh` runs them, each in a sandbox in which nothing but
// its own temporary folder can be written.

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

/// Ends the run when a promise is broken, so that the input is kept as a finding.
#define MUST(condition)                                                             \
    do {                                                                            \
        if (!(condition)) {                                                         \
            fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
            abort();                                                                \
        }                                                                           \
    } while (false)

/// A folder for this process.
inline const fs::path &OwnFolder() {
    static const fs::path folder = [] {
        std::string name = (fs::temp_directory_path() / "fuzz-XXXXXX").string();
        MUST(mkdtemp(name.data()) != nullptr);
        return name;
    }();
    return folder;
}

inline void WriteFile(const fs::path &path, const std::string &bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    MUST(file.flush());
}

inline std::string Bytes(const uint8_t *data, size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}
