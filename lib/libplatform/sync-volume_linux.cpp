// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "sync-volume.h"

int SyncVolume(const ustring &path) {
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return -1;
    }
    const int result = syncfs(file);
    const int error = errno;  // close() may change it
    close(file);
    errno = error;
    return result;
}
