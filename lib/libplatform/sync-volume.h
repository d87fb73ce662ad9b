// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Writes to disk what the system still holds in memory of the volume under `path`, and waits for
/// it, device caches included. Returns 0, or -1 with errno set.
int SyncVolume(const ustring &path);
