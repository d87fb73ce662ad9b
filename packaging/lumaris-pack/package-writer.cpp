// SPDX-License-Identifier: MIT
#include "package-writer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <exception>
#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

#include "archive-handle.h"
#include "package-rules.h"
#include "unique-fd.h"
#include "zstd-stream.h"

namespace {

constexpr std::size_t kBlockSize = std::size_t{128} * 1024;

class Writer {
public:
    Writer(const ClientFolder &client, const PackageOptions &options,
           const PackageProgress &progress)
        : m_client(client),
          m_options(options),
          m_progress(progress),
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
            WriteHeader(entry);
            if (S_ISREG(entry.mode)) {
                WriteContent(entry);
            }
        }
        Check(archive_write_close(m_archive.get()), "cannot write the package");
        if (m_compressor) {
            m_compressor->Finish();
        }
    }

private:
    int Open(int fd) {
        if (m_options.filter != "zstd") {
            return archive_write_open_fd(m_archive.get(), fd);
        }
        // Compressed here, not in the archive library, for the checksum.
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
            throw std::runtime_error(action + ": " + ArchiveErrorText(m_archive.get()));
        }
    }

    void Configure() {
        archive *const out = m_archive.get();
        const std::string level = std::to_string(m_options.level);
        Check(archive_write_set_format_by_name(out, m_options.format.c_str()),
              "cannot use this format");
        std::string options;
        if (m_options.filter == "xz") {
            Check(archive_write_add_filter_xz(out), "cannot use this filter");
            // How the work is cut into blocks depends on the number of threads.
            options = "xz:compression-level=" + level + ",xz:threads=1";
        } else if (m_options.format == "zip") {
            // The directory at the end holds types and permissions; this repeats them beside each
            // entry. When that directory is cut off, the reader goes by the entries alone and would
            // make every link a file and the client no program, without a word.
            options = "zip:compression-level=" + level + ",zip:experimental";
        }
        Check(archive_write_set_options(out, options.c_str()), "cannot set " + options);
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

    void WriteContent(const ClientEntry &entry) {
        const std::string path = m_client.path + "/" + entry.name;
        const UniqueFd file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (file.Get() < 0) {
            throw SystemError("cannot read " + Quoted(entry.name));
        }
        std::uint64_t left = entry.size;
        ssize_t n = 0;
        while ((n = read(file.Get(), m_block.data(), m_block.size())) > 0) {
            RequireUnchanged(entry, file.Get());
            const auto size = static_cast<std::size_t>(n);
            const bool written = archive_write_data(m_archive.get(), m_block.data(), size) == n;
            Check(written ? ARCHIVE_OK : ARCHIVE_FATAL,
                  "cannot write the package at " + Quoted(entry.name));
            left -= size;
            Report(size);
        }
        if (n < 0) {
            throw SystemError("cannot read " + Quoted(entry.name));
        }
        RequireUnchanged(entry, file.Get());
        if (left != 0) {
            throw std::runtime_error("cannot read " + Quoted(entry.name) + " to its end");
        }
    }

    // Asked after each block: there is no sense in packing the rest of a file that changes.
    static void RequireUnchanged(const ClientEntry &entry, int fd) {
        struct stat now = {};
        if (fstat(fd, &now) != 0 || static_cast<std::uint64_t>(now.st_size) != entry.size ||
            now.st_mtime != entry.mtime) {
            throw std::runtime_error(Quoted(entry.name) + " changed while it was packed");
        }
    }

    void Report(std::size_t n) {
        m_done += n;
        if (m_progress && !m_progress(m_done, m_client.total_size)) {
            throw std::runtime_error("interrupted");
        }
    }

    const ClientFolder &m_client;
    const PackageOptions &m_options;
    const PackageProgress &m_progress;
    std::uint64_t m_done = 0;
    std::vector<char> m_block = std::vector<char>(kBlockSize);
    std::unique_ptr<ZstdStream> m_compressor;
    std::exception_ptr m_failure;
    ArchiveWriter m_archive;  // writes through the two before it, also while it is destroyed
};

}  // namespace

void WritePackage(const ClientFolder &client, const PackageOptions &options, int fd,
                  const PackageProgress &progress) {
    Writer(client, options, progress).Write(fd);
}
