// SPDX-License-Identifier: MIT
#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <memory>
#include <string>

struct ArchiveReadDeleter {
    void operator()(archive *handle) const { archive_read_free(handle); }
};

/// Gives up first: freeing alone would finish the archive, which means filling up the entry that
/// was being written. The library does not free its output buffer then.
struct ArchiveWriteDeleter {
    void operator()(archive *handle) const {
        archive_write_fail(handle);
        archive_write_free(handle);
    }
};

struct ArchiveEntryDeleter {
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

using ArchiveReader = std::unique_ptr<archive, ArchiveReadDeleter>;
using ArchiveWriter = std::unique_ptr<archive, ArchiveWriteDeleter>;
using ArchiveEntry = std::unique_ptr<archive_entry, ArchiveEntryDeleter>;

/// Fixes the locale and the time zone of the process. Call it before packing or checking: the
/// archive library converts names and times by them, and neither may show in a package.
void PinArchiveEnvironment();

/// The library's words about the last failure, with the system's reason where there is one: one
/// line.
std::string ArchiveErrorText(archive *handle);
