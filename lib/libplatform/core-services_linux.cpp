#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

#include "core-services.h"
#include "stored-path.h"

namespace {

constexpr int kAttempts = 50;

OSStatus StatusOf(int error, unsigned long path_length) {
    switch (error) {
        case ENOENT:
            return fnfErr;
        case ENOTDIR:
            return dirNFErr;
        case ENAMETOOLONG:
            return path_length < PATH_MAX ? bdNamErr : pathTooLongErr;
        case EACCES:
            return permErr;
        case EMFILE:
        case ENFILE:
            return tmfoErr;
        case ENOMEM:
            return memFullErr;
        default:
            return ioErr;
    }
}

/// The path by which the kernel knows an open entry. One look-up whatever the depth, where
/// realpath() reads every parent.
OSStatus PathOfDescriptor(int fd, ustring &path) {
    char link[32];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
    char text[PATH_MAX];
    const ssize_t length = readlink(link, text, sizeof(text));
    if (length < 0) {
        return errno == ENAMETOOLONG ? pathTooLongErr : StatusOf(errno, 0);
    }
    path.assign(text, static_cast<unsigned long>(length));
    // The kernel marks an entry that was removed meanwhile; an existing one may bear such a name.
    static const char kDeleted[] = " (deleted)";
    const unsigned long mark = sizeof(kDeleted) - 1;
    struct stat st;
    const bool marked =
        path.length() > mark && std::strcmp(path.c_str() + path.length() - mark, kDeleted) == 0;
    return marked && lstat(path.c_str(), &st) != 0 ? fnfErr : noErr;
}

}  // namespace

OSStatus FSPathMakeRefWithOptions(const UInt8 *path, OptionBits options, FSRef *ref,
                                  Boolean *isDirectory) {
    if (path == nullptr || ref == nullptr) {
        return paramErr;
    }
    const ustring stored = StoredPath(ustring(reinterpret_cast<const char *>(path)));
    const bool follow = (options & kFSPathMakeRefDoNotFollowLeafSymlink) == 0;
    // O_PATH needs no permission on the entry itself.
    const int flags = O_PATH | O_CLOEXEC | (follow ? 0 : O_NOFOLLOW);
    OSStatus status = fnfErr;
    // One that was replaced after it was opened has lost its path, its successor has one.
    for (int attempt = 0; attempt < kAttempts && status == fnfErr; ++attempt) {
        const int fd = open(stored.c_str(), flags);
        if (fd < 0) {
            return StatusOf(errno, stored.length());
        }
        struct stat st;
        if (isDirectory != nullptr) {
            *isDirectory = fstat(fd, &st) == 0 && S_ISDIR(st.st_mode);
        }
        status = PathOfDescriptor(fd, ref->path);
        close(fd);
    }
    return status;
}

OSStatus FSPathMakeRef(const UInt8 *path, FSRef *ref, Boolean *isDirectory) {
    return FSPathMakeRefWithOptions(path, kFSPathMakeRefDefaultOptions, ref, isDirectory);
}

OSStatus FSRefMakePath(const FSRef *ref, UInt8 *path, UInt32 pathBufferSize) {
    if (ref == nullptr || path == nullptr) {
        return paramErr;
    }
    const unsigned long size = ref->path.length() + 1;
    if (size > pathBufferSize) {
        return pathTooLongErr;
    }
    std::memcpy(path, ref->path.c_str(), size);
    return noErr;
}
