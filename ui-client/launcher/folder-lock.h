// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Holds the kernel's lock on a folder (flock(2)), which ends with the process at the latest. Makes
/// one upgrade wait for another: launchers of different bundles share the per-user folder.
class FolderLock {
public:
    /// Waits while another process holds the lock, at most a minute; then says so and goes on
    /// without it. A folder that cannot be opened or a volume without locks changes nothing.
    explicit FolderLock(const ustring &folder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

private:
    const int m_folder;  // descriptor, or -1
};
