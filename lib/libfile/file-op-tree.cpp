#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "file-op-internal.h"
#include "stored-path.h"

#define LOG_MODULE "file-op"
#include "log-macros.h"

static const ustring LOG_COMPONENT("file_op_debug");

namespace {

constexpr unsigned long kCopyBlock = 32UL * 1024 * 1024;
constexpr unsigned short kNoMode = 0xFFFF;

struct FreeMemory {
    void operator()(char *memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<char, FreeMemory>;

/// An open file, closed at the end of the scope; one that was written is flushed to disk before.
class File {
public:
    File(const ustring &path, int flags)
        : m_fd(open(path.c_str(), flags | O_CLOEXEC, 0666)),
          m_written((flags & O_ACCMODE) != O_RDONLY) {
        if (m_fd < 0) {
            const int error = errno;
            MSG_ERROR("CopyFile: open(%s): %s (%d)\n", path.c_str(), std::strerror(error), error);
        }
    }
    ~File() { Close(); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    void Close() {
        if (m_fd >= 0) {
            if (m_written) {
                fsync(m_fd);
            }
            close(m_fd);
        }
        m_fd = -1;
    }
    int fd() const { return m_fd; }

private:
    int m_fd;
    const bool m_written;
};

/// Applies modes exactly while it lives, in the whole process.
class NoUmask {
public:
    NoUmask() : m_previous(umask(0)) {}
    ~NoUmask() { umask(m_previous); }
    NoUmask(const NoUmask &) = delete;
    NoUmask &operator=(const NoUmask &) = delete;

private:
    const mode_t m_previous;
};

int WriteBlock(int fd, const char *data, unsigned long size) {
    while (size > 0) {
        errno = 0;  // a write of nothing sets none
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

int CopyContent(int src, int dst, char *buffer) {
    for (;;) {
        const ssize_t size = read(src, buffer, kCopyBlock);
        if (size == 0) {
            return 0;
        }
        if (size < 0) {
            const int error = errno;
            MSG_ERROR("CopyFile: read: %s (%d)\n", std::strerror(error), error);
            return -1;
        }
        const int result = WriteBlock(dst, buffer, static_cast<unsigned long>(size));
        if (result != 0) {
            return result;
        }
    }
}

/// An open directory, closed at the end of the scope.
struct Directory {
    DIR_HANDLE handle;

    Directory() = default;
    ~Directory() { FSCloseDir(handle); }
    Directory(const Directory &) = delete;
    Directory &operator=(const Directory &) = delete;
};

struct Listed {
    std::string name;
    int type;  // FILE_TYPE_...
};

/// Lists all entries but "." and "..", and closes the stream again: so a walk holds no descriptor
/// while it goes deeper, and none reads a directory that changes beneath it. A read error counts as
/// the end. Returns false when the directory does not open.
bool ListFolder(const ustring &path, std::vector<Listed> &entries) {
    Directory dir;
    if (FSOpenDir(path, 0, dir.handle) != 0) {
        return false;
    }
    DIR_ENTRY entry;
    while (FSReadDir(dir.handle, entry) == 1) {
        if (entry.name != "." && entry.name != "..") {
            entries.push_back({entry.name.c_str(), entry.type});
        }
    }
    return true;
}

int MoveEntry(const ustring &src, const ustring &dst, bool exact);

int MoveFolder(const ustring &src, const ustring &dst, bool exact) {
    std::vector<Listed> entries;
    if (file_op::MakeFolder(dst, true) != 0 || !ListFolder(src, entries)) {
        return -3;
    }
    for (const Listed &entry : entries) {
        const char *const name = entry.name.c_str();
        // The target may have had an entry of this name in another spelling.
        if (MoveEntry(src + "/" + name, StoredPath(dst + "/" + name), exact) != 0) {
            return -3;
        }
    }
    return std::remove(src.c_str()) == 0 ? 0 : -3;
}

/// The type of an entry that exists; FILE_TYPE_NONE otherwise.
int ExistingType(const ustring &path, bool exact) {
    FILE_INFO info;
    return file_op::Stat(path, path, info, exact) == 0 && info.exists ? info.type : FILE_TYPE_NONE;
}

int MoveEntry(const ustring &src, const ustring &dst, bool exact) {
    const int type = ExistingType(src, exact);
    if (type == FILE_TYPE_NONE) {
        return -2;
    }
    if (std::rename(src.c_str(), dst.c_str()) == 0) {
        return 0;
    }
    switch (errno) {
        case EXDEV:  // another volume: piece by piece
            break;
        case ENAMETOOLONG:
            return -100;
        default:
            return -3;
    }
    switch (type) {
        case FILE_TYPE_DIRECTORY:
            return MoveFolder(src, dst, exact);
        case FILE_TYPE_REGULAR:
            return file_op::CopyFile(src, dst, true) == 0 ? 0 : -3;
        default:  // only folders and regular files travel
            return 0;
    }
}

int RemoveEntry(const ustring &path);

/// Removes anything but a folder.
int RemoveListed(const file_op::Folder &folder, const char *name, const ustring &path) {
    if (file_op::DescribeListed(folder, name) != 0) {
        return -1;
    }
    return std::remove(path.c_str()) == 0 || errno == ENOENT ? 0 : -3;
}

int RemoveContents(const ustring &path, const ustring &real, unsigned long stored_length) {
    std::vector<Listed> entries;
    if (!ListFolder(path, entries)) {
        return -3;
    }
    const file_op::Folder folder{path.normalize(ustring::NFC), real, stored_length};
    for (const Listed &entry : entries) {
        const char *const name = entry.name.c_str();
        const ustring child = path + "/" + name;
        const bool plain = entry.type != FILE_TYPE_NONE && entry.type != FILE_TYPE_DIRECTORY;
        if ((plain ? RemoveListed(folder, name, child) : RemoveEntry(child)) != 0) {
            return -3;
        }
    }
    return 0;
}

int RemoveEntry(const ustring &path) {
    FILE_INFO info;
    unsigned long stored_length = 0;
    if (file_op::Describe(path, path, info, stored_length) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIRECTORY && RemoveContents(path, info.path, stored_length) != 0) {
        return -3;
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

/// Makes one level of a path. Returns 0 or an errno code.
int MakeLevel(const char *prefix, bool last, bool replace_files, mode_t mode) {
    struct stat st;
    const bool exists = stat(prefix, &st) == 0;
    if (exists && S_ISDIR(st.st_mode)) {
        return 0;
    }
    if (exists && !replace_files) {
        if (last) {
            MSG_INFO("FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
                     prefix);
            return EEXIST;
        }
        // The next level then fails beneath it.
        MSG_INFO("FSMKDirP: path: %s is symbolic link pointed to folder\n", prefix);
        return 0;
    }
    if (exists) {
        std::remove(prefix);
    }
    return mkdir(prefix, mode) == 0 ? 0 : errno;
}

/// Makes all levels of `path`; `end` is where the last level looked at ends. Returns 0 or an errno
/// code.
int MakeLevels(const ustring &path, unsigned long &end, bool replace_files, unsigned short mode) {
    const Memory copy(strdup(path.c_str()));
    if (!copy) {
        return ENOMEM;
    }
    const std::unique_ptr<NoUmask> exact(mode == kNoMode ? nullptr : new NoUmask);
    const mode_t make_mode = mode == kNoMode ? mode_t{0777} : mode_t{mode};
    char *const text = copy.get();
    for (end = text[0] == '/' ? 1 : 0;; ++end) {
        end += std::strcspn(text + end, "/");
        const char cut = text[end];
        const bool last = cut == '\0' || text[end + 1] == '\0';
        text[end] = '\0';
        const int error = MakeLevel(text, last, replace_files, make_mode);
        text[end] = cut;
        if (error != 0 || last) {
            return error;
        }
    }
}

/// Where the level of `path` ends that ends at `end` in `stored`, another spelling of `path`.
unsigned long SameLevel(const ustring &path, const ustring &stored, unsigned long end) {
    unsigned long pos = 0;
    for (unsigned long i = 0; i < end; ++i) {
        if (stored[i] == '/') {
            pos = path.find('/', pos) + 1;
        }
    }
    return pos + std::strcspn(path.c_str() + pos, "/");
}

}  // namespace

int file_op::CopyFile(const ustring &src, const ustring &dst, bool remove_source) {
    File in(src, O_RDONLY);
    if (in.fd() < 0) {
        return -1;
    }
    const File out(dst, O_WRONLY | O_CREAT | O_TRUNC);
    if (out.fd() < 0) {
        return -1;
    }
    const Memory buffer(static_cast<char *>(std::malloc(kCopyBlock)));
    if (!buffer) {
        const int error = errno;
        MSG_ERROR("FSCopy: malloc(%d): %s (%d)\n", static_cast<int>(kCopyBlock),
                  std::strerror(error), error);
        return -1;
    }
    const int result = CopyContent(in.fd(), out.fd(), buffer.get());
    if (result == 0 && remove_source) {
        in.Close();
        return std::remove(src.c_str()) == 0 ? 0 : -1;
    }
    return result;
}

int file_op::MakeFolder(const ustring &path, bool recursive) {
    FILE_INFO info;
    if (Describe(path, path, info) != 0) {
        MSG_ERROR("FSMKDir: Failed to to file info '%s'\n", path.c_str());
        return -1;
    }
    if (info.exists && info.type != FILE_TYPE_DIRECTORY) {
        MSG_ERROR("FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
                  path.c_str(), info.type);
        return -1;
    }
    if (info.exists) {
        return 0;
    }
    int error = mkdir(path.c_str(), 0777) == 0 ? 0 : errno;
    // Only a missing parent needs the walk; one for each folder of a deep tree would add up.
    if (error != 0 && recursive) {
        unsigned long end = 0;
        error = MakeLevels(path, end, false, kNoMode);
    }
    if (error != 0) {
        MSG_ERROR("path = %s errno : %s\n", path.c_str(), std::strerror(error));
        return -2;
    }
    return 0;
}

int FSCopy(const ustring &src, const ustring &dst, bool remove_source) {
    return file_op::CopyFile(StoredPath(src), StoredPath(dst), remove_source);
}

int FSRename(const ustring &src, const ustring &dst, bool exact) {
    if (src.empty() || dst.empty()) {
        return -1;
    }
    return MoveEntry(StoredPath(src), StoredPath(dst), exact);
}

int FSMKDir(const ustring &path, bool recursive) {
    return path.empty() ? -1 : file_op::MakeFolder(StoredPath(path), recursive);
}

int FSMKDirP(const ustring &path, char **stop, bool replace_files, unsigned short mode) {
    if (path.empty()) {
        return -1;
    }
    const ustring stored = StoredPath(path);
    unsigned long end = 0;
    const int error = MakeLevels(stored, end, replace_files, mode);
    if (stop != nullptr) {
        *stop = const_cast<char *>(path.c_str()) + SameLevel(path, stored, end);
    }
    if (error != 0) {
        errno = error;
        return -1;
    }
    return 0;
}

int FSMKDirFromRoot(const ustring &target, const ustring &root) {
    if (root.length() > target.length()) {
        MSG_ERROR("Giving a root '%s' whose length is larger then target's '%s'.\n", root.c_str(),
                  target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        MSG_ERROR("root '%s' is not a parent folder of target '%s'\n", root.c_str(),
                  target.c_str());
        return -1;
    }
    const ustring rest = target.substr(root.length(), ustring::npos);
    ustring level;
    while (level != rest) {
        level = rest.substr(0, rest.find('/', level.length() + 1));
        MSG_DEBUG("FSMKDirFromRoot: create %s\n", level.c_str());
        if (FSMKDir(root + level, false) < 0) {
            return -1;
        }
    }
    return 0;
}

int FSRemove(const ustring &path, bool) {
    return path.empty() ? -1 : RemoveEntry(StoredPath(path));
}
