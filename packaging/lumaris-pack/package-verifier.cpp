// SPDX-License-Identifier: MIT
#include "package-verifier.h"

#include <sys/stat.h>

#include <QByteArray>
#include <array>
#include <fstream>
#include <map>
#include <new>
#include <utility>

#include "archive-handle.h"
#include "info-file.h"
#include "package-rules.h"

namespace {

// The launcher's.
constexpr std::size_t kReadBlockSize = 10240;

using SupportFormats = int (*)(archive *);

/// A reader of the file at `path` for these formats; `open` says whether it could be opened.
ArchiveReader OpenReader(const std::string &path, SupportFormats formats, bool &open) {
    ArchiveReader reader(archive_read_new());
    if (!reader) {
        throw std::bad_alloc();
    }
    archive_read_support_filter_all(reader.get());
    formats(reader.get());
    open = archive_read_open_filename(reader.get(), path.c_str(), kReadBlockSize) == ARCHIVE_OK;
    return reader;
}

/// Reads all entries and data. Returns how many entries there are, and why that fails in `problem`.
std::uint64_t ReadToEnd(const std::string &path, SupportFormats formats, std::string &problem) {
    bool open = false;
    const ArchiveReader reader = OpenReader(path, formats, open);
    archive_entry *entry = nullptr;
    std::uint64_t entries = 0;
    int status = open ? ARCHIVE_OK : ARCHIVE_FATAL;
    while (status == ARCHIVE_OK) {
        status = archive_read_next_header(reader.get(), &entry);
        if (status == ARCHIVE_OK || status == ARCHIVE_WARN) {
            ++entries;
            status = archive_read_data_skip(reader.get());
        }
    }
    if (status != ARCHIVE_EOF) {
        problem = ArchiveErrorText(reader.get());
    }
    return entries;
}

/// Of the first frame or stream, by its header (RFC 8878, the .xz file format). Packages have one.
Protection ProtectionOf(const std::string &path, archive *reader) {
    if ((archive_format(reader) & ARCHIVE_FORMAT_BASE_MASK) == ARCHIVE_FORMAT_ZIP) {
        return Protection::kContents;
    }
    std::array<unsigned char, 8> head = {};
    std::ifstream(path, std::ios::binary)
        .read(reinterpret_cast<char *>(head.data()), static_cast<std::streamsize>(head.size()));
    constexpr unsigned kFrameChecksum = 4;
    constexpr unsigned kCheckType = 15;
    const int filter = archive_filter_code(reader, 0);
    const bool covered = filter == ARCHIVE_FILTER_GZIP || filter == ARCHIVE_FILTER_BZIP2 ||
                         (filter == ARCHIVE_FILTER_ZSTD && (head[4] & kFrameChecksum) != 0) ||
                         (filter == ARCHIVE_FILTER_XZ && (head[7] & kCheckType) != 0);
    return covered ? Protection::kEverything : Protection::kNone;
}

class Verifier {
public:
    explicit Verifier(const std::string &path)
        : m_path(path), m_archive(OpenReader(path, archive_read_support_format_all, m_open)) {}

    PackageReport Run() {
        if (!m_open) {
            Refuse("cannot be opened: " + ArchiveErrorText(m_archive.get()));
            return m_report;
        }
        while (NextEntry()) {
        }
        m_links.Check(m_report.problems);
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
        ++m_report.entries;
        if (status != ARCHIVE_OK) {
            Refuse(Label(entry) + " cannot be read: " + ArchiveErrorText(m_archive.get()));
        }
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN) {
            return false;
        }
        CheckEntry(entry);
        return CheckData(entry);
    }

    void CheckEntry(archive_entry *entry) {
        const char *raw = archive_entry_pathname(entry);
        if (raw == nullptr) {
            Refuse(Label(entry) + " has no name that can be read in every locale");
            return;
        }
        std::string name = raw;
        while (name.size() > 1 && name.back() == '/') {
            name.pop_back();  // formats mark folders so
        }
        m_before_last = std::exchange(m_last, name);
        const std::string name_problem = NameProblem(name);
        if (!name_problem.empty()) {
            Refuse(entry, name_problem);
            return;
        }
        const mode_t mode = archive_entry_mode(entry);
        if (archive_entry_hardlink(entry) != nullptr) {
            Refuse(entry, "is a hard link");
        } else {
            Refuse(entry, ModeProblem(mode));
        }
        if (S_ISDIR(mode) && (mode & S_IRWXU) != S_IRWXU) {
            Refuse(entry, "is a folder that its owner cannot read, write and search");
        }
        CheckPlace(entry, name);
        CheckLink(entry, name);
        m_modes[name] = mode;
    }

    void CheckPlace(archive_entry *entry, const std::string &name) {
        const std::string parent = ParentName(name);
        const auto found = m_modes.find(parent);
        if (!parent.empty() && (found == m_modes.end() || !S_ISDIR(found->second))) {
            Refuse(entry, "does not come after the folder that it lies in");
        }
        if (m_modes.count(name) > 0) {
            Refuse(entry, "is there twice");
        }
    }

    void CheckLink(archive_entry *entry, const std::string &name) {
        if (archive_entry_filetype(entry) != AE_IFLNK) {
            return;
        }
        const char *target = archive_entry_symlink(entry);
        if (target == nullptr) {
            Refuse(entry, "points to a name that cannot be read in every locale");
        } else {
            m_links.Add(name, target);
        }
    }

    bool CheckData(archive_entry *entry) {
        const void *block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        int status = ARCHIVE_OK;
        m_data.clear();
        while ((status = archive_read_data_block(m_archive.get(), &block, &size, &offset)) ==
               ARCHIVE_OK) {
            if (m_last == kClientInfo) {
                m_data.append(static_cast<const char *>(block), static_cast<int>(size));
            }
        }
        if (status == ARCHIVE_EOF) {
            return true;
        }
        Refuse(entry, "has data that cannot be read: " + ArchiveErrorText(m_archive.get()));
        return status == ARCHIVE_WARN || status == ARCHIVE_FAILED;
    }

    void CheckEnd() {
        if (m_last != kClientInfo) {
            Refuse("the last entry is not " + Quoted(kClientInfo));
        }
        if (m_before_last != kClientExecutable) {
            Refuse("the last entry but one is not " + Quoted(kClientExecutable));
        }
        for (const std::string &name : {std::string(kClientExecutable), kClientInfo}) {
            const auto found = m_modes.find(name);
            const std::string problem =
                found == m_modes.end() ? "is missing" : ClientFileProblem(name, found->second);
            if (!problem.empty()) {
                Refuse(Quoted(name) + " " + problem);
            }
        }
    }

    // What the launcher does not look at, though it shows that the package was cut or damaged.
    void CheckRest() {
        std::string problem;
        m_report.protection = ProtectionOf(m_path, m_archive.get());
        if (m_report.protection == Protection::kContents) {
            // Without its directory a zip is read entry by entry, which most programs leave
            // without types and permissions.
            if (ReadToEnd(m_path, archive_read_support_format_zip_seekable, problem) !=
                    m_report.entries ||
                !problem.empty()) {
                Refuse("the directory at its end is damaged");
            }
        } else {
            ReadToEnd(m_path, archive_read_support_format_raw, problem);
            if (!problem.empty()) {
                Refuse("cannot be read behind the last entry: " + problem);
            }
        }
        InfoTexts texts;
        if (ParseInfo(m_data, texts) != 0) {
            Refuse(Quoted(kClientInfo) + " holds a serialized object");
        }
    }

    std::string Label(archive_entry *entry) const {
        const char *name = entry == nullptr ? nullptr : archive_entry_pathname(entry);
        return name == nullptr ? "entry " + std::to_string(m_report.entries) : Quoted(name);
    }

    void Refuse(const std::string &problem) { m_report.problems.push_back(problem); }

    void Refuse(archive_entry *entry, const std::string &problem) {
        if (!problem.empty()) {
            Refuse(Label(entry) + " " + problem);
        }
    }

    const std::string m_path;
    bool m_open = false;
    ArchiveReader m_archive;
    QByteArray m_data;  // of the last entry, when that is INFO
    bool m_complete = false;
    PackageReport m_report;
    LinkTable m_links;
    std::map<std::string, mode_t> m_modes;
    std::string m_last;
    std::string m_before_last;
};

}  // namespace

PackageReport VerifyPackage(const std::string &path) {
    return Verifier(path).Run();
}
