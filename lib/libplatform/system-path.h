// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include "ustring.h"

// One entry can be asked for under several canonically equivalent spellings ("é" as one character
// or as two). macOS compares names by that equivalence; elsewhere names are bytes, and a system
// call reaches an entry under one spelling only.

/// The spelling under which system calls reach `path`. Components that exist are respelled as they
/// are stored, a byte-for-byte match first; the rest stays as asked for. Never fails.
ustring SystemPath(const ustring &path);

/// lstat() of `path` in whatever spelling; afterwards `path` is in the one for system calls. An
/// entry that is stored as asked for costs no further call. Returns 0 or an errno code.
int StatEntry(ustring &path, struct stat &st);
