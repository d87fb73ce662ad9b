// SPDX-License-Identifier: MIT
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file-op-internal.h"
#include "file-system-type.h"
#include "system-path.h"

namespace {

bool VolumeType(const char *caller, const ustring &path, ustring &type) {
    if (FileSystemType(SystemPath(path), type) != 0) {
        MSG_ERROR("%s: Failed to get file system info '%s'. %s\n", caller, path.c_str(),
                  std::strerror(errno));
        return false;
    }
    return true;
}

/// Whether access() fails for want of permission, and not because the entry is missing.
bool IsDenied(const ustring &path, int mode) {
    return access(SystemPath(path).c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

}  // namespace

int FSUTime(const ustring &path, long atime, long mtime) {
    struct timeval times[2] = {};
    times[0].tv_sec = atime;
    times[1].tv_sec = mtime;
    return lutimes(SystemPath(path).c_str(), times) == 0 ? 0 : -1;
}

bool FSTimeEqual(long a, long b) {
    return a == b;
}

bool isFileLocked(const ustring &path, int mode) {
    return IsDenied(path, mode);
}

bool hasFilePermission(const ustring &path, int mode) {
    return !IsDenied(path, mode);
}

bool isMountPoint(const ustring &path) {
    ustring type;
    return VolumeType("isMountPoint", path, type) &&
           (type == "nfs" || type == "smbfs" || type == "afpfs");
}

bool IsMSDOS(const ustring &path) {
    ustring type;
    if (!VolumeType("IsSupportLargeFile", path, type) || type != "msdos") {
        return false;
    }
    MSG_WARNING("Detect a MSDOS platform for path '%s'.\n", path.c_str());
    return true;
}

int FSChown(const ustring &path, unsigned int uid, unsigned int gid) {
    if (lchown(SystemPath(path).c_str(), uid, gid) != 0) {
        MSG_ERROR("FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(), errno,
                  std::strerror(errno));
        return -1;
    }
    return 0;
}
