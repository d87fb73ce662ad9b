// SPDX-License-Identifier: MIT
#include "folder-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "log-macros.h"

#define LOG_MODULE "lumaris-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const int kAttempts = 600;
const useconds_t kPause = 100000;  // microseconds; all attempts together take a minute

/// Takes the lock if it is free.
bool IsHeldByOther(int folder) {
    return flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

FolderLock::FolderLock(const ustring &folder)
    : m_folder(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_folder < 0 || !IsHeldByOther(m_folder)) {
        return;
    }
    MSG_DEBUG("waiting for the launcher that works in '%s'\n", folder.c_str());
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        usleep(kPause);
        if (!IsHeldByOther(m_folder)) {
            return;
        }
    }
    MSG_WARNING("another launcher works in '%s' for a minute, going on\n", folder.c_str());
}

FolderLock::~FolderLock() {
    if (m_folder >= 0) {
        close(m_folder);
    }
}
