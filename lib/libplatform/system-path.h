// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include "ustring.h"

// A name can have several canonically equivalent spellings ("é" as one character or as two). macOS
// treats them as the same name. Elsewhere names are bytes, and a system call finds an entry only
// under the spelling in which it is stored.

/// The spelling of `path` that system calls need: existing components as they are stored, missing
/// ones unchanged. An exact match wins over an equivalent spelling. Never fails.
ustring SystemPath(const ustring &path);

/// lstat() for any spelling of `path`, which afterwards has the spelling that system calls need. A
/// `path` that is already spelt as stored costs a single call. Returns 0 or an errno code.
int StatEntry(ustring &path, struct stat &st);
