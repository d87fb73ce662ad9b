// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The type of the file system that holds `path`: "nfs", "smbfs" or "afpfs" for a network volume,
/// "msdos" for FAT. Other types have another name or an empty one. Returns 0, or -1 with errno set.
int FileSystemType(const ustring &path, ustring &name);
