// SPDX-License-Identifier: MIT
#include "package-writer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <iterator>
#include <memory>
#include <new>
#include <vector>

#include "archive-handle.h"
#include "package-error.h"
#include "package-rules.h"
#include "unique-fd.h"
#include "zstd-stream.h"

namespace {

constexpr PackageCoding kFormats[] = {
    {"gnutar", ARCHIVE_FORMAT_TAR_GNUTAR, 0, 0, 0},
    {"zip", ARCHIVE_FORMAT_ZIP, 1, 6, 9},
};

constexpr PackageCoding kFilters[] = {
    {"none", ARCHIVE_FILTER_NONE, 0, 0, 0},
    {"xz", ARCHIVE_FILTER_XZ, 0, 6, 9},
    {"zstd", ARCHIVE_FILTER_ZSTD, 1, 9, 19},
};

constexpr std::size_t kBlockSize = std::size_t{128} * 1024;

template <std::size_t N>
const PackageCoding *FindCoding(const PackageCoding (&codings)[N], const std::string &name) {
    const auto *found = std::find_if(std::begin(codings), std::end(codings),
                                     [&name](const PackageCoding &c) { return c.name == name; });
    return found == std::end(codings) ? nullptr : found;
}

class Writer {
public:
    Writer(const ClientFolder &client, const PackageOptions &options,
           const PackageProgress &progress)
        : m_client(client),
          m_options(options),
          m_progress(progress),
          m_total(client.TotalSize()),
          m_archive(archive_write_new()) {
        if (!m_archive) {
            throw std::bad_alloc();
        }
    }

    void Write(int fd) {
        Configure();
        Check(Open(fd), "cannot write the package");
        for (const ClientEntry &entry : m_client.entries) {
            Report(0);
            WriteEntry(entry);
        }
        Check(archive_write_close(m_archive.get()), "cannot write the package");
        if (m_compressor) {
            m_compressor->Finish();
        }
    }

private:
    // Zstandard is compressed here, not in the archive library, for the checksum.
    bool CompressesItself() const { return m_options.filter->code == ARCHIVE_FILTER_ZSTD; }

    int Open(int fd) {
        if (!CompressesItself()) {
            return archive_write_open_fd(m_archive.get(), fd);
        }
        m_compressor = std::make_unique<ZstdStream>(fd, m_options.level);
        return archive_write_open2(m_archive.get(), this, nullptr, Compress, nullptr, nullptr);
    }

    // Called by the library, which knows no exceptions: Check() throws what is kept.
    static la_ssize_t Compress(archive *, void *self, const void *data, std::size_t size) {
        auto *const writer = static_cast<Writer *>(self);
        try {
            writer->m_compressor->Write(data, size);
            return static_cast<la_ssize_t>(size);
        } catch (...) {
            writer->m_failure = std::current_exception();
            return -1;
        }
    }

    // A warning of the library means that an entry is not stored as it is: never good enough.
    void Check(int status, const std::string &action) {
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        if (status != ARCHIVE_OK) {
            throw PackageError(action + ": " + ArchiveErrorText(m_archive.get()));
        }
    }

    void Configure() {
        const PackageCoding &format = *m_options.format;
        const int filter = CompressesItself() ? ARCHIVE_FILTER_NONE : m_options.filter->code;
        Check(archive_write_set_format(m_archive.get(), format.code), "cannot use this format");
        Check(archive_write_add_filter(m_archive.get(), filter), "cannot use this filter");
        const std::string level = std::to_string(m_options.level);
        if (filter == ARCHIVE_FILTER_XZ) {
            SetFilterOption("compression-level", level.c_str());
            // How the work is cut into blocks depends on the number of threads.
            SetFilterOption("threads", "1");
        }
        if (format.code == ARCHIVE_FORMAT_ZIP) {
            SetFormatOption("compression-level", level.c_str());
            // The directory at the end holds types and permissions; this repeats them beside each
            // entry. When that directory is cut off, the reader goes by the entries alone and would
            // make every link a file and the client no program, without a word.
            SetFormatOption("experimental", "1");
        }
    }

    void SetFormatOption(const char *option, const char *value) {
        Check(
            archive_write_set_format_option(m_archive.get(), m_options.format->name, option, value),
            std::string("cannot set ") + option);
    }

    void SetFilterOption(const char *option, const char *value) {
        Check(
            archive_write_set_filter_option(m_archive.get(), m_options.filter->name, option, value),
            std::string("cannot set ") + option);
    }

    void WriteEntry(const ClientEntry &entry) {
        if (S_ISREG(entry.mode)) {
            WriteFile(entry);
        } else {
            WriteHeader(entry);
        }
    }

    void WriteHeader(const ClientEntry &entry) {
        const ArchiveEntry header(archive_entry_new());
        if (!header) {
            throw std::bad_alloc();
        }
        // The plain setters keep the bytes; the others would convert them by the locale.
        archive_entry_set_pathname(header.get(), entry.name.c_str());
        archive_entry_set_mode(header.get(), entry.mode);
        archive_entry_set_size(header.get(), static_cast<la_int64_t>(entry.size));
        archive_entry_set_mtime(header.get(), m_options.mtime, 0);
        archive_entry_set_uid(header.get(), 0);
        archive_entry_set_gid(header.get(), 0);
        if (S_ISLNK(entry.mode)) {
            archive_entry_set_symlink(header.get(), entry.target.c_str());
        }
        Check(archive_write_header(m_archive.get(), header.get()),
              "cannot store " + Quoted(entry.name));
    }

    void WriteFile(const ClientEntry &entry) {
        const UniqueFd file(
            open(m_client.Locate(entry.name).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (file.Get() < 0) {
            throw PackageError("cannot read " + Quoted(entry.name), errno);
        }
        WriteHeader(entry);
        std::uint64_t done = 0;
        while (const std::size_t n = ReadBlock(file.Get(), entry)) {
            done += n;
            RequireUnchanged(entry, file.Get());
            WriteBlock(entry, n);
            Report(n);
        }
        RequireUnchanged(entry, file.Get());
        if (done != entry.size) {
            throw PackageError("cannot read " + Quoted(entry.name) + " to its end");
        }
    }

    // Asked after each block: there is no sense in packing the rest of a file that changes.
    static void RequireUnchanged(const ClientEntry &entry, int fd) {
        struct stat now = {};
        if (fstat(fd, &now) != 0 || static_cast<std::uint64_t>(now.st_size) != entry.size ||
            now.st_mtime != entry.mtime) {
            throw PackageError(Quoted(entry.name) + " changed while it was packed");
        }
    }

    std::size_t ReadBlock(int fd, const ClientEntry &entry) {
        ssize_t n = 0;
        do {
            n = read(fd, m_block.data(), m_block.size());
        } while (n < 0 && errno == EINTR);
        if (n < 0) {
            throw PackageError("cannot read " + Quoted(entry.name), errno);
        }
        return static_cast<std::size_t>(n);
    }

    void WriteBlock(const ClientEntry &entry, std::size_t n) {
        const la_ssize_t written = archive_write_data(m_archive.get(), m_block.data(), n);
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        if (written != static_cast<la_ssize_t>(n)) {
            throw PackageError("cannot write the package at " + Quoted(entry.name) + ": " +
                               ArchiveErrorText(m_archive.get()));
        }
    }

    void Report(std::size_t n) {
        m_done += n;
        if (m_progress && !m_progress(m_done, m_total)) {
            throw PackageError("interrupted");
        }
    }

    const ClientFolder &m_client;
    const PackageOptions &m_options;
    const PackageProgress &m_progress;
    const std::uint64_t m_total;
    std::uint64_t m_done = 0;
    std::vector<char> m_block = std::vector<char>(kBlockSize);
    std::unique_ptr<ZstdStream> m_compressor;
    std::exception_ptr m_failure;
    ArchiveWriter m_archive;  // writes through the two before it, also while it is destroyed
};

}  // namespace

const PackageCoding *FindFormat(const std::string &name) {
    return FindCoding(kFormats, name);
}

const PackageCoding *FindFilter(const std::string &name) {
    return FindCoding(kFilters, name);
}

void WritePackage(const ClientFolder &client, const PackageOptions &options, int fd,
                  const PackageProgress &progress) {
    Writer(client, options, progress).Write(fd);
}
