// SPDX-License-Identifier: MIT
#pragma once

#include <archive.h>

#include <cstddef>
#include <memory>

// Opens archives for the launcher and for lumaris-verify, so that both read a package alike.

struct FreeArchiveReader {
    void operator()(archive *reader) const { archive_read_free(reader); }
};

/// Owns a handle from archive_read_new(), which returns null when memory runs out.
using ArchiveReader = std::unique_ptr<archive, FreeArchiveReader>;

/// Opens the archive at `path`, in any format and compression that libarchive supports. Returns
/// ARCHIVE_OK, or an error code; archive_error_string() then has the reason.
inline int OpenArchive(archive *reader, const char *path) {
    constexpr std::size_t block_size = 10240;
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    // By default a block of zeros ends a tar. One damaged bit in a compressed tar can produce such
    // a block, and the checksum after it would never be verified. So read on to the end of the
    // file.
    archive_read_set_format_option(reader, "tar", "read_concatenated_archives", "1");
    return archive_read_open_filename(reader, path, block_size);
}
