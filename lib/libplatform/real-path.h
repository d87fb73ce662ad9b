// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The longest real path, in bytes with its terminator.
constexpr unsigned int kRealPathSize = 4096;

// Why there is no real path, in the numbers of macOS, which end up in the log.
constexpr int kRealPathMissing = -43;
constexpr int kRealPathTooLong = -2110;

/// What `RealPathOnce` says of an entry that was there and lost its path between two system calls,
/// because it was removed or replaced. No status of macOS is positive.
constexpr int kRealPathVanished = 1;

/// What a final symbolic link in a path stands for: itself or the entry that it points to.
enum class Leaf { kItself, kTarget };

/// Gives the one path by which the file system knows an existing entry: absolute, without "." and
/// "..", through no symbolic link, every name in the spelling and letter case in which it is
/// stored. `path` is in the spelling for system calls. Returns 0, or a negative status of the
/// system, with `real` empty.
int RealPath(const ustring &path, Leaf leaf, ustring &real);

/// One attempt at that, the part that differs by system: 0, a negative status or
/// `kRealPathVanished`. `real` counts only with 0.
int RealPathOnce(const ustring &path, Leaf leaf, ustring &real);
