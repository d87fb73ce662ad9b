// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The size up to which the small text files of the home folder are read, in bytes.
constexpr long kMaxTextFile = 1024 * 1024;

/// Opens a regular file with the flags of open(2), mode 0666 for O_CREAT; programs that this one
/// starts do not inherit it. Anybody can put a pipe or a device under a name in the home folder:
/// such an entry is refused at once, where an ordinary open would wait for its other end. Returns
/// the descriptor, which the caller closes, or -1.
int OpenRegularFile(const ustring &path, int flags);
/// The same for a file that is read whole: one above `kMaxTextFile` is refused, too.
int OpenTextFile(const ustring &path);
