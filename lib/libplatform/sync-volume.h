// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Writes all cached data of the volume that holds `path` to the disk, the disk's own cache
/// included, and waits until it is there. Returns 0, or -1 with errno set.
int SyncVolume(const ustring &path);
