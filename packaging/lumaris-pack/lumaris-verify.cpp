// SPDX-License-Identifier: MIT
// Reads a package with the launcher's code and lists everything that the launcher would refuse,
// would install differently from how it is stored, or could not repair later.

#include <archive_entry.h>

#include <QByteArray>
#include <cstdio>
#include <new>
#include <string>

#include "archive-reader.h"
#include "bundle-rules.h"
#include "info-file.h"

// The program stays in the C locale, where names are plain bytes. It is also the strictest locale:
// what can be read in it, the launcher can read in every other.

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kWrongUsage = 2 };

// The most that a Mac can store of a file with holes: data, and size including the holes.
constexpr la_int64_t kMaxSparseData = la_int64_t{4} << 30;
constexpr la_int64_t kMaxSparseSize = la_int64_t{16} << 30;
// More than the launcher reads of an INFO file.
constexpr qsizetype kEnoughOfInfo = 2 << 20;

std::string ErrorText(archive *handle) {
    const char *const text = archive_error_string(handle);
    std::string line = text == nullptr ? "unknown error" : text;
    line.erase(line.find_last_not_of("\n ") + 1);
    return Printable(line);
}

class Verifier {
public:
    Verifier() : m_archive(archive_read_new()) {
        if (!m_archive) {
            throw std::bad_alloc();
        }
    }

    const std::set<std::string> &Run(const char *path) {
        if (OpenArchive(m_archive.get(), path) != ARCHIVE_OK) {
            m_rules.Refuse("cannot be opened: " + ErrorText(m_archive.get()));
            return m_rules.Problems();
        }
        while (NextEntry()) {
        }
        if (m_complete) {
            m_rules.Finish();
        }
        return m_rules.Problems();
    }

    std::string Summary() const {
        std::string filters;
        for (int i = 0; i + 1 < archive_filter_count(m_archive.get()); ++i) {
            filters += std::string(", ") + archive_filter_name(m_archive.get(), i);
        }
        return std::to_string(m_entries) + " entries, " + archive_format_name(m_archive.get()) +
               filters;
    }

private:
    // Returns false at the end and when reading cannot go on.
    bool NextEntry() {
        archive_entry *entry = nullptr;
        const int status = archive_read_next_header(m_archive.get(), &entry);
        if (status == ARCHIVE_EOF) {
            m_complete = IsKnownFormat();
            return false;
        }
        ++m_entries;
        const bool readable = status == ARCHIVE_OK || status == ARCHIVE_WARN;
        const char *const name = readable ? archive_entry_pathname(entry) : nullptr;
        const std::string label =
            name == nullptr ? "entry " + std::to_string(m_entries) : Quoted(name);
        if (status != ARCHIVE_OK) {
            m_rules.Refuse(label + " cannot be read: " + ErrorText(m_archive.get()));
        }
        if (!readable || !IsKnownFormat()) {
            return false;
        }
        if (name == nullptr) {
            m_rules.Refuse(label + " has no name that can be read in every locale");
            return true;
        }
        return Examine(entry, name);
    }

    // Some other formats hold no contents, and some can keep the reader busy forever.
    bool IsKnownFormat() {
        switch (archive_format(m_archive.get()) & ARCHIVE_FORMAT_BASE_MASK) {
            case ARCHIVE_FORMAT_TAR:
            case ARCHIVE_FORMAT_CPIO:
            case ARCHIVE_FORMAT_ZIP:
            case ARCHIVE_FORMAT_7ZIP:
                return true;
            default:
                m_rules.Refuse(std::string("the format is ") +
                               archive_format_name(m_archive.get()) +
                               ", not tar, cpio, zip or 7-zip");
                return false;
        }
    }

    bool Examine(archive_entry *entry, const std::string &stored_name) {
        mode_t mode = archive_entry_mode(entry);
        if (archive_entry_hardlink(entry) != nullptr) {
            m_rules.Refuse(stored_name, "is a hard link");
            mode |= S_IFREG;  // tar does not repeat the type of the file it links to
        }
        CheckHoles(entry, stored_name);
        const std::string name = m_rules.Add(stored_name, mode, archive_entry_symlink(entry));
        return CheckContent(name.empty() ? stored_name : name);
    }

    void CheckHoles(archive_entry *entry, const std::string &name) {
        la_int64_t offset = 0, length = 0, stored = 0;
        const bool has_holes = archive_entry_sparse_reset(entry) > 0;
        while (archive_entry_sparse_next(entry, &offset, &length) == ARCHIVE_OK) {
            stored += length;
        }
        if (has_holes && (stored > kMaxSparseData || archive_entry_size(entry) > kMaxSparseSize)) {
            m_rules.Refuse(name, "has holes and more than 4 GB of data or 16 GB of size");
        }
    }

    // Reads the content of the entry. Returns false when reading cannot go on.
    bool CheckContent(const std::string &name) {
        QByteArray info;
        const void *block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        bool empty = true;
        int status = ARCHIVE_OK;
        while ((status = archive_read_data_block(m_archive.get(), &block, &size, &offset)) ==
               ARCHIVE_OK) {
            empty = empty && size == 0;
            if (name == kClientInfo && info.size() < kEnoughOfInfo) {
                info.append(static_cast<const char *>(block), static_cast<int>(size));
            }
        }
        if (status != ARCHIVE_EOF) {
            m_rules.Refuse(name, "has data that cannot be read: " + ErrorText(m_archive.get()));
            return status == ARCHIVE_WARN || status == ARCHIVE_FAILED;
        }
        if (empty && (name == kClientExecutable || name == kClientPropertyList)) {
            m_rules.Refuse(name, "is empty");
        }
        if (name == kClientInfo) {
            CheckInfo(info);
        }
        return true;
    }

    // If the launcher cannot read the build number, it installs the package again at every start.
    void CheckInfo(const QByteArray &content) {
        const auto [major, minor, build, icon_overlay] = ParseInfo(content);
        bool is_number = false;
        if (build) {
            build->toInt(&is_number);
        }
        if (!is_number) {
            m_rules.Refuse(kClientInfo, "has no build number that the launcher can read");
        }
    }

    ArchiveReader m_archive;
    BundleRules m_rules;
    std::uint64_t m_entries = 0;
    bool m_complete = false;
};

}  // namespace

// usage: lumaris-verify PACKAGE
int main(int argc, char **argv) {
    if (argc != 2 || argv[1][0] == '-') {
        std::fputs("usage: lumaris-verify PACKAGE\n", stderr);
        return kWrongUsage;
    }
    Verifier verifier;
    const std::set<std::string> &problems = verifier.Run(argv[1]);
    for (const std::string &problem : problems) {
        std::fprintf(stderr, "lumaris-verify: %s\n", problem.c_str());
    }
    if (!problems.empty()) {
        return kFailure;
    }
    if (std::puts(verifier.Summary().c_str()) < 0 || std::fflush(stdout) != 0) {
        std::perror("lumaris-verify: standard output");
        return kFailure;
    }
    return kSuccess;
}
