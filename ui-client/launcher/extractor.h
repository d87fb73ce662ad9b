// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

struct archive;

/// Reads a package archive in any format and compression that libarchive supports.
///
/// Set the two paths, then call an operation. It runs on the calling thread and keeps nothing open.
/// Every failure is logged and returns -1.
class Extractor {
public:
    /// Extracts every entry into `m_dest_path` and reports progress through `Notify_Adapter`.
    /// Returns 0. Stops at the first failure; entries already written stay.
    int Extract();

    /// Counts the entries, in a damaged archive those before the damage. -1 when it cannot be
    /// opened.
    int Count();

    /// Prints the names of the entries, one per line. 0, or -1 when the archive cannot be opened.
    int List();

    /// Copies the data of one entry from a reader to a writer. 0, or -1 on failure.
    int copy_data(struct archive *in, struct archive *out);

    ustring m_dest_path;
    ustring m_src_path;
};
