// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

struct archive;

/// Reads a package archive in any format and compression that libarchive knows.
///
/// A plain value: give it its two paths and call one operation. Runs on the calling thread;
/// every failure is logged and gives -1. Handles live inside one call.
class Extractor {
public:
    /// Writes every entry below `m_dest_path` and reports progress through `Notify_Adapter`.
    /// Returns 0, or -1 on the first failure; what was written by then stays.
    int Extract();

    /// Number of entries; a damaged archive gives those before the damage. -1 when unreadable.
    int Count();

    /// Writes the entries' names to standard output, one a line. 0, or -1 when unreadable.
    int List();

    /// Copies the data of one entry from a reader to a writer. 0 at its end, -1 on failure.
    int copy_data(struct archive *in, struct archive *out);

    ustring m_dest_path;
    ustring m_src_path;
};
