// SPDX-License-Identifier: MIT
#include <unistd.h>

#include "sync-volume.h"

int SyncVolume(const ustring &path) {
    // fsync() would leave the data in the drive's cache, and serves one file at a time.
    return sync_volume_np(path.c_str(), SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}
