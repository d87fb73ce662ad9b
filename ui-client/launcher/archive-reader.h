// SPDX-License-Identifier: MIT
#pragma once

#include <archive.h>

#include <cstddef>
#include <memory>

// How the launcher opens an archive. Whoever judges a package opens it in the same way.

struct FreeArchiveReader {
    void operator()(archive *reader) const { archive_read_free(reader); }
};

/// Owner of a handle of archive_read_new, which is null when memory runs out.
using ArchiveReader = std::unique_ptr<archive, FreeArchiveReader>;

/// Opens the archive at `path`, of any format and compression that libarchive knows. ARCHIVE_OK, or
/// a failure whose text the reader holds.
inline int OpenArchive(archive *reader, const char *path) {
    constexpr std::size_t block_size = 10240;
    // The current name of archive_read_support_compression_all.
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    // An empty block ends a tar only where the file ends. Otherwise one damaged bit of a compressed
    // tar could make such a block, and the checksum behind it would never be looked at.
    archive_read_set_format_option(reader, "tar", "read_concatenated_archives", "1");
    return archive_read_open_filename(reader, path, block_size);
}
