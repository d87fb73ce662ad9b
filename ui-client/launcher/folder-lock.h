// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Locks a folder with flock(2). Launchers in different bundles share the per-user folder, so one
/// upgrade has to wait for another. The kernel drops the lock when the process ends.
class FolderLock {
public:
    /// Waits up to a minute while another process holds the lock, then logs a warning and goes on
    /// without it. If the folder cannot be opened or its volume has no locks, goes on at once.
    explicit FolderLock(const ustring &folder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

private:
    const int m_folder;  // descriptor, or -1
};
