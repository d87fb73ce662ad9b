// SPDX-License-Identifier: MIT
#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <memory>

#include "archive-reader.h"
#include "log-macros.h"
#include "notify-adapter.h"
#include "str-table.h"

#define LOG_MODULE "extractor"
static const ustring LOG_COMPONENT("extractor_debug");

namespace {

/// Replace existing files, refuse "..", restore macOS metadata. Owners and times are not restored:
/// the files belong to the user and count as installed now.
const int kDiskOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct FreeWriter {
    void operator()(struct archive *a) const { archive_write_free(a); }
};
using Writer = std::unique_ptr<struct archive, FreeWriter>;

/// The error text of `a`, or else of `other`: a call with two handles may set either.
const char *ErrorText(struct archive *a, struct archive *other = nullptr) {
    const char *text = archive_error_string(a);
    if (text == nullptr && other != nullptr) {
        text = archive_error_string(other);
    }
    return text != nullptr ? text : "unknown error";
}

/// Opens the archive at `path`. Returns null after a failure, which is logged.
ArchiveReader OpenForListing(const ustring &path) {
    ArchiveReader reader(archive_read_new());
    if (!reader) {
        MSG_ERROR("Allocate archive failed\n");
        return nullptr;
    }
    if (OpenArchive(reader.get(), path.c_str_utf8()) != ARCHIVE_OK) {
        MSG_ERROR("archive_read_open_filename failed: '%s'\n", ErrorText(reader.get()));
        return nullptr;
    }
    return reader;
}

/// Extracts one entry into `dest` and reports it as number `index` of `total`.
int ExtractEntry(struct archive *reader, struct archive *writer, struct archive_entry *entry,
                 const ustring &dest, int total, int index) {
    const char *name = archive_entry_pathname(entry);
    if (name == nullptr) {
        MSG_ERROR("archive_entry_pathname failed");
        return -1;
    }
    const ustring path = dest + "/" + name;
    archive_entry_set_pathname(entry, path.c_str_utf8());
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        MSG_ERROR("archive_read_extract2 failed: '%s'\n", ErrorText(writer, reader));
        return -1;
    }
    Notify_Adapter::GetInstance().UpdateProgress(total, index);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        MSG_ERROR("archive_write_finish_entry failed: '%s'\n", ErrorText(writer));
        return -1;
    }
    return 0;
}

int ExtractEntries(struct archive *reader, struct archive *writer, const ustring &dest, int total) {
    for (int index = 1;; ++index) {
        struct archive_entry *entry = nullptr;
        const int status = archive_read_next_header(reader, &entry);
        if (status == ARCHIVE_EOF) {
            return 0;
        }
        if (status != ARCHIVE_OK) {
            MSG_ERROR("archive_read_next_header failed: '%s'\n", ErrorText(reader));
            return -1;
        }
        if (ExtractEntry(reader, writer, entry, dest, total, index) != 0) {
            return -1;
        }
    }
}

}  // namespace

int Extractor::Extract() {
    if (m_src_path.empty() || m_dest_path.empty()) {
        MSG_ERROR("Invalid Argument\n");
        return -1;
    }
    MSG_DEBUG("decompress from '%s' to '%s'\n", m_src_path.c_str(), m_dest_path.c_str());
    Notify_Adapter::GetInstance().UpdateDialogText(StrTable::LoadStr(StrTable::kPreparingText));

    const int total = Count();
    if (total < 1) {
        MSG_ERROR("Failed to calculate total file numbers, ret: %d\n", total);
        return -1;
    }
    // Freeing the writer sets the final permissions of folders.
    const ArchiveReader reader(archive_read_new());
    const Writer writer(archive_write_disk_new());
    if (!reader || !writer) {
        MSG_ERROR("Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kDiskOptions);
    if (OpenArchive(reader.get(), m_src_path.c_str_utf8()) != ARCHIVE_OK) {
        MSG_ERROR("Failed to read file '%s' ('%s')\n", m_src_path.c_str(), ErrorText(reader.get()));
        return -1;
    }
    return ExtractEntries(reader.get(), writer.get(), m_dest_path, total);
}

int Extractor::Count() {
    if (m_dest_path.empty() || m_src_path.empty()) {
        MSG_ERROR("Invalid argument\n");
        return -1;
    }
    const ArchiveReader reader = OpenForListing(m_src_path);
    if (!reader) {
        return -1;
    }
    int count = 0;
    struct archive_entry *entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() {
    if (m_dest_path.empty() || m_src_path.empty()) {
        MSG_ERROR("Invalid argument\n");
        return -1;
    }
    const ArchiveReader reader = OpenForListing(m_src_path);
    if (!reader) {
        return -1;
    }
    struct archive_entry *entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char *name = archive_entry_pathname(entry);
        printf("%s\n", name != nullptr ? name : "");
        fflush(stdout);
        archive_read_data_skip(reader.get());
    }
    archive_read_close(reader.get());
    return 0;
}

int Extractor::copy_data(struct archive *in, struct archive *out) {
    if (in == nullptr || out == nullptr) {
        MSG_ERROR("Invalid Argument\n");
        return -1;
    }
    for (;;) {
        const void *buffer = nullptr;
        size_t size = 0;
        int64_t offset = 0;
        const int status = archive_read_data_block(in, &buffer, &size, &offset);
        if (status == ARCHIVE_EOF) {
            return 0;
        }
        if (status != ARCHIVE_OK) {
            MSG_ERROR("archive_read_data_block failed: '%s'\n", ErrorText(in));
            return -1;
        }
        if (archive_write_data_block(out, buffer, size, offset) != ARCHIVE_OK) {
            MSG_ERROR("archive_write_data_block failed: '%s'\n", ErrorText(out));
            return -1;
        }
    }
}
