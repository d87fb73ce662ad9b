#pragma once

#include "ustring.h"

// One entry can be asked for under several canonically equivalent spellings ("é" as one character
// or as two). macOS compares names by that equivalence; elsewhere names are bytes, and a system
// call reaches an entry under its stored spelling only.

/// The spelling under which system calls reach `path`. Components that exist are respelled as they
/// are stored, a byte-for-byte match first; the rest stays as asked for. Never fails.
ustring StoredPath(const ustring &path);

/// Of two equivalent spellings of one existing entry, the one to reach it by: `composed` where the
/// file system accepts both, else `stored`, which needs no search.
const ustring &LookupPath(const ustring &composed, const ustring &stored);
