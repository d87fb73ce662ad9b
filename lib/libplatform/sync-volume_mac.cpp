// SPDX-License-Identifier: MIT
#include <unistd.h>

#include "sync-volume.h"

int SyncVolume(const ustring &path) {
    // fsync() handles one file only and leaves its data in the drive's cache.
    return sync_volume_np(path.c_str(), SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}
