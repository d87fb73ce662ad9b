// SPDX-License-Identifier: MIT
#include "package-verifier.h"

#include <QByteArray>
#include <array>
#include <fstream>
#include <new>
#include <utility>

#include "archive-handle.h"
#include "info-file.h"
#include "package-rules.h"

namespace {

// The launcher's.
constexpr std::size_t kReadBlockSize = 10240;

ArchiveReader NewReader(int (*support_formats)(archive *)) {
    ArchiveReader reader(archive_read_new());
    if (!reader) {
        throw std::bad_alloc();
    }
    archive_read_support_filter_all(reader.get());
    support_formats(reader.get());
    return reader;
}

/// Reads the data of an entry, to keep it when there is a `data`. ARCHIVE_EOF is success: skipping
/// would stop within a compressed file and not see what is damaged there.
int ReadData(archive *reader, QByteArray *data) {
    const void *block = nullptr;
    std::size_t size = 0;
    la_int64_t offset = 0;
    int status = ARCHIVE_OK;
    while ((status = archive_read_data_block(reader, &block, &size, &offset)) == ARCHIVE_OK) {
        if (data != nullptr) {
            data->append(static_cast<const char *>(block), static_cast<int>(size));
        }
    }
    return status;
}

/// Reads all entries and data. Returns how many entries there are, and why that fails in `problem`.
std::uint64_t ReadToEnd(const std::string &path, ArchiveReader reader, std::string &problem) {
    archive_entry *entry = nullptr;
    std::uint64_t entries = 0;
    int status = archive_read_open_filename(reader.get(), path.c_str(), kReadBlockSize);
    while (status == ARCHIVE_OK) {
        status = archive_read_next_header(reader.get(), &entry);
        if (status == ARCHIVE_OK || status == ARCHIVE_WARN) {
            ++entries;
            status = ReadData(reader.get(), nullptr);
            status = status == ARCHIVE_EOF ? ARCHIVE_OK : ARCHIVE_FATAL;
        }
    }
    if (status != ARCHIVE_EOF) {
        problem = ArchiveErrorText(reader.get());
    }
    return entries;
}

/// Whether the first frame or stream has a checksum, by its header (RFC 8878, the .xz file format).
/// Packages have one.
bool IsCovered(const std::string &path, int filter) {
    std::array<unsigned char, 8> head = {};
    std::ifstream(path, std::ios::binary)
        .read(reinterpret_cast<char *>(head.data()), static_cast<std::streamsize>(head.size()));
    constexpr unsigned kFrameChecksum = 4;
    constexpr unsigned kCheckType = 15;
    // gzip has one as well, which the archive library does not look at.
    return filter == ARCHIVE_FILTER_BZIP2 ||
           (filter == ARCHIVE_FILTER_ZSTD && (head[4] & kFrameChecksum) != 0) ||
           (filter == ARCHIVE_FILTER_XZ && (head[7] & kCheckType) != 0);
}

class Verifier {
public:
    explicit Verifier(const std::string &path)
        : m_path(path), m_archive(NewReader(archive_read_support_format_all)) {}

    PackageReport Run() {
        if (archive_read_open_filename(m_archive.get(), m_path.c_str(), kReadBlockSize) !=
            ARCHIVE_OK) {
            Refuse("cannot be opened: " + ArchiveErrorText(m_archive.get()));
            return m_report;
        }
        while (NextEntry()) {
        }
        m_rules.CheckLinks();
        if (m_complete) {
            CheckEnd();
            CheckRest();
        }
        return m_report;
    }

private:
    // False at the end and where reading cannot go on.
    bool NextEntry() {
        archive_entry *entry = nullptr;
        const int status = archive_read_next_header(m_archive.get(), &entry);
        if (status == ARCHIVE_EOF) {
            m_complete = true;
            return false;
        }
        ++m_entries;
        const char *const name = entry == nullptr ? nullptr : archive_entry_pathname(entry);
        const std::string label =
            name == nullptr ? "entry " + std::to_string(m_entries) : Quoted(name);
        if (status != ARCHIVE_OK) {
            Refuse(label + " cannot be read: " + ArchiveErrorText(m_archive.get()));
        }
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN) {
            return false;
        }
        if (name == nullptr) {
            Refuse(label + " has no name that can be read in every locale");
        } else {
            Examine(entry, name);
        }
        return CheckData(label);
    }

    void Examine(archive_entry *entry, std::string name) {
        while (name.size() > 1 && name.back() == '/') {
            name.pop_back();  // formats mark folders so
        }
        mode_t mode = archive_entry_mode(entry);
        if (archive_entry_hardlink(entry) != nullptr) {
            Refuse(Quoted(name) + " is a hard link");
            mode |= S_IFREG;  // tar does not repeat the type of the other file
        }
        m_rules.Add(name, mode, archive_entry_symlink(entry));
        m_before_last = std::exchange(m_last, name);
    }

    bool CheckData(const std::string &label) {
        m_data.clear();
        const int status = ReadData(m_archive.get(), m_last == kClientInfo ? &m_data : nullptr);
        if (status == ARCHIVE_EOF) {
            return true;
        }
        Refuse(label + " has data that cannot be read: " + ArchiveErrorText(m_archive.get()));
        return status == ARCHIVE_WARN || status == ARCHIVE_FAILED;
    }

    void CheckEnd() {
        if (m_last != kClientInfo) {
            Refuse("the last entry is not " + Quoted(kClientInfo));
        }
        if (m_before_last != kClientExecutable) {
            Refuse("the last entry but one is not " + Quoted(kClientExecutable));
        }
        m_rules.CheckClientFiles();
    }

    // What the launcher does not look at, though it shows that the package was cut or damaged.
    void CheckRest() {
        std::string problem;
        const char *protection =
            "contents are under checksums, names, types and permissions are not";
        if ((archive_format(m_archive.get()) & ARCHIVE_FORMAT_BASE_MASK) == ARCHIVE_FORMAT_ZIP) {
            // Without its directory a zip is read entry by entry, which most programs leave
            // without types and permissions.
            if (ReadToEnd(m_path, NewReader(archive_read_support_format_zip_seekable), problem) !=
                    m_entries ||
                !problem.empty()) {
                Refuse("the directory at its end is damaged");
            }
        } else {
            ReadToEnd(m_path, NewReader(archive_read_support_format_raw), problem);
            if (!problem.empty()) {
                Refuse("cannot be read behind the last entry: " + problem);
            }
            protection = IsCovered(m_path, archive_filter_code(m_archive.get(), 0))
                             ? "everything is under a checksum"
                             : "nothing is under a checksum";
        }
        m_report.summary = std::to_string(m_entries) + " entries; " + protection;
    }

    void Refuse(const std::string &problem) { m_report.problems.push_back(problem); }

    const std::string m_path;
    ArchiveReader m_archive;
    PackageReport m_report;
    EntryRules m_rules{m_report.problems};
    std::uint64_t m_entries = 0;
    bool m_complete = false;
    std::string m_last;
    std::string m_before_last;
    QByteArray m_data;  // of the last entry, when that is INFO
};

}  // namespace

PackageReport VerifyPackage(const std::string &path) {
    return Verifier(path).Run();
}
