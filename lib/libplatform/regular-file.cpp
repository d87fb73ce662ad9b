// SPDX-License-Identifier: MIT
#include "regular-file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <limits>

namespace {

int OpenUpTo(const ustring &path, int flags, off_t max_size) {
    const int file = open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    struct stat info;
    if (file >= 0 &&
        (fstat(file, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > max_size)) {
        close(file);
        return -1;
    }
    return file;
}

}  // namespace

int OpenRegularFile(const ustring &path, int flags) {
    return OpenUpTo(path, flags, std::numeric_limits<off_t>::max());
}

int OpenTextFile(const ustring &path) {
    return OpenUpTo(path, O_RDONLY, kMaxTextFile);
}
