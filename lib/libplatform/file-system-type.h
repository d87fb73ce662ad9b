// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The type name of the file system under `path`: "nfs", "smbfs" or "afpfs" for a network volume,
/// "msdos" for FAT, another name or none for the rest. Returns 0, or -1 with errno set.
int FileSystemType(const ustring &path, ustring &name);
