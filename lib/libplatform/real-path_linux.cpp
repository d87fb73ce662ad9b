// SPDX-License-Identifier: MIT
#include "real-path.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "folder-names_linux.h"

namespace {

constexpr int kOtherFailure = -36;  // an input or output error

int StatusOf(int error) {
    if (error == ENOENT) {
        return kRealPathMissing;
    }
    return error == ENAMETOOLONG ? kRealPathTooLong : kOtherFailure;
}

/// The kernel appends a mark to the path of an entry that was removed after it was opened. The name
/// of an existing entry may end in the same way.
bool WasRemoved(const ustring &path) {
    static const char kMark[] = " (deleted)";
    const unsigned long mark = sizeof(kMark) - 1;
    struct stat st;
    return path.length() > mark && std::strcmp(path.c_str() + path.length() - mark, kMark) == 0 &&
           lstat(path.c_str(), &st) != 0;
}

/// The kernel's own path of an open entry. It takes one lookup at any depth, whereas realpath()
/// reads every parent.
int PathOfDescriptor(int fd, ustring &path) {
    char link[32];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
    char text[kRealPathSize];
    const ssize_t length = readlink(link, text, sizeof(text));
    if (length < 0) {
        return StatusOf(errno);
    }
    path.assign(text, static_cast<unsigned long>(length));
    return WasRemoved(path) ? kRealPathVanished : 0;
}

/// Whether a volume may ignore letter case or spelling: the kernel then reports the name by which
/// an entry was opened. Listing a type here that never does so only costs time.
bool MayFoldNames(const struct statfs &volume) {
    switch (static_cast<std::uint32_t>(volume.f_type)) {
        case CIFS_SUPER_MAGIC:
        case EXFAT_SUPER_MAGIC:
        case FUSE_SUPER_MAGIC:
        case MSDOS_SUPER_MAGIC:
        case SMB2_SUPER_MAGIC:
            return true;
        default:
            return false;
    }
}

/// Replaces each name in `path` by the one that its folder lists, from the last name up to the root
/// of the volume.
void UseStoredNames(ustring &path) {
    for (unsigned long end = path.length(); end > 1;) {
        const unsigned long begin = path.rfind('/', end - 1) + 1;
        const ustring folder = path.substr(0, begin);
        struct statfs volume;
        if (statfs(folder.c_str(), &volume) != 0 || !MayFoldNames(volume)) {
            return;
        }
        const ustring name = path.substr(begin, end - begin);
        path = folder + StoredName(folder, name, true) + path.substr(end, ustring::npos);
        end = begin - 1;
    }
}

}  // namespace

int RealPathOnce(const ustring &path, Leaf leaf, ustring &real) {
    // O_PATH needs no permission on the entry itself.
    const int flags = O_PATH | O_CLOEXEC | (leaf == Leaf::kItself ? O_NOFOLLOW : 0);
    const int fd = open(path.c_str(), flags);
    if (fd < 0) {
        return StatusOf(errno);
    }
    struct statfs volume = {};
    const int status = PathOfDescriptor(fd, real);
    fstatfs(fd, &volume);
    close(fd);
    if (status == 0 && MayFoldNames(volume)) {
        UseStoredNames(real);
    }
    return status;
}
