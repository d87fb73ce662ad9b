// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The size up to which the small text files of the home folder are read, in bytes.
constexpr long kMaxTextFile = 1024L * 1024;

/// Opens a regular file with the flags of open(2), mode 0666 for O_CREAT. Child processes do not
/// inherit the descriptor. The name may belong to a pipe or a device: that is refused at once,
/// where open(2) alone would wait for the other end. Returns the descriptor, which the caller
/// closes, or -1.
int OpenRegularFile(const ustring &path, int flags);
/// The same for a file that is read whole: one above `kMaxTextFile` is refused, too.
int OpenTextFile(const ustring &path);
