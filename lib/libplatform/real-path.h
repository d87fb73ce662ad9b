// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The size of the longest real path in bytes, terminator included.
constexpr unsigned int kRealPathSize = 4096;

// Status codes of RealPath. They are those of macOS on every system, because they appear in the
// log.
constexpr int kRealPathMissing = -43;
constexpr int kRealPathTooLong = -2110;

/// What `RealPathOnce` returns when the entry was removed or replaced between two of its system
/// calls. Positive, because no status of macOS is.
constexpr int kRealPathVanished = 1;

/// Whether a final symbolic link in a path stands for itself or for its target.
enum class Leaf { kItself, kTarget };

/// Finds the real path of an existing entry: absolute, without ".", ".." and symbolic links, every
/// name in the spelling and letter case in which it is stored. `path` is in the spelling that
/// system calls need. Returns 0, or a negative status with `real` empty.
int RealPath(const ustring &path, Leaf leaf, ustring &real);

/// A single attempt of `RealPath`, which differs by system. Returns 0, a negative status or
/// `kRealPathVanished`; `real` is valid only after 0.
int RealPathOnce(const ustring &path, Leaf leaf, ustring &real);
