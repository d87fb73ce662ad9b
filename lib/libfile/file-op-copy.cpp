// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "file-op-internal.h"

namespace {

constexpr unsigned long kCopyBlock = 32UL * 1024 * 1024;

/// An open file. The destructor closes it and flushes a written file to disk first.
class File {
public:
    File(const file_op::Place &place, int flags)
        : m_fd(open(place.system.c_str(), flags | O_CLOEXEC, 0666)),
          m_written((flags & O_ACCMODE) != O_RDONLY) {
        if (m_fd < 0) {
            MSG_ERROR("CopyFile: open(%s): %s (%d)\n", place.asked.c_str(), std::strerror(errno),
                      errno);
        }
    }
    ~File() {
        if (m_fd >= 0 && m_written) {
            fsync(m_fd);
        }
        if (m_fd >= 0) {
            close(m_fd);
        }
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    int fd() const { return m_fd; }

private:
    const int m_fd;
    const bool m_written;
};

int WriteBlock(int fd, const char *data, unsigned long size) {
    while (size > 0) {
        errno = 0;  // write() may write nothing without setting it
        const ssize_t written = write(fd, data, size);
        if (written < 1) {
            const int error = errno;
            MSG_ERROR("CopyFile: write: %s (%d)\n", std::strerror(error), error);
            return error == ENOSPC || error == EDQUOT ? -2 : -1;
        }
        data += written;
        size -= static_cast<unsigned long>(written);
    }
    return 0;
}

int CopyBlocks(int src, int dst, char *buffer) {
    for (;;) {
        const ssize_t size = read(src, buffer, kCopyBlock);
        if (size == 0) {
            return 0;
        }
        if (size < 0) {
            MSG_ERROR("CopyFile: read: %s (%d)\n", std::strerror(errno), errno);
            return -1;
        }
        const int result = WriteBlock(dst, buffer, static_cast<unsigned long>(size));
        if (result != 0) {
            return result;
        }
    }
}

int CopyContent(const file_op::Place &src, const file_op::Place &dst) {
    const File in(src, O_RDONLY);
    if (in.fd() < 0) {
        return -1;
    }
    const File out(dst, O_WRONLY | O_CREAT | O_TRUNC);
    if (out.fd() < 0) {
        return -1;
    }
    const std::unique_ptr<char, void (*)(void *)> buffer(
        static_cast<char *>(std::malloc(kCopyBlock)), std::free);
    if (!buffer) {
        MSG_ERROR("FSCopy: malloc(%d): %s (%d)\n", static_cast<int>(kCopyBlock),
                  std::strerror(errno), errno);
        return -1;
    }
    return CopyBlocks(in.fd(), out.fd(), buffer.get());
}

}  // namespace

int file_op::CopyFile(const Place &src, const Place &dst, bool remove_source) {
    const int result = CopyContent(src, dst);
    if (result == 0 && remove_source) {
        return std::remove(src.system.c_str()) == 0 ? 0 : -1;
    }
    return result;
}

int FSCopy(const ustring &src, const ustring &dst, bool remove_source) {
    return file_op::CopyFile(file_op::Place::Respelled(src), file_op::Place::Respelled(dst),
                             remove_source);
}
