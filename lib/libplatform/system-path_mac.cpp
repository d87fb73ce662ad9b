// SPDX-License-Identifier: MIT
#include "system-path.h"

#include <cerrno>

// The file system compares names by canonical equivalence, so every spelling finds the entry.

ustring SystemPath(const ustring &path) {
    return path;
}

int StatEntry(ustring &path, struct stat &st) {
    return lstat(path.c_str(), &st) == 0 ? 0 : errno;
}
