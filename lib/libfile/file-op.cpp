#include "file-op.h"

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "core-services.h"
#include "file-op-internal.h"
#include "file-system-type.h"
#include "stored-path.h"
#include "tmp-name-gen.h"

#define LOG_MODULE "file-op"
#include "log-macros.h"

static const ustring LOG_COMPONENT("file_op_debug");

namespace {

constexpr unsigned int kPathBuffer = 4096;
constexpr unsigned int kLinkBuffer = 1024;

const UInt8 *Bytes(const ustring &text) {
    return reinterpret_cast<const UInt8 *>(text.c_str());
}

int TypeOfMode(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return FILE_TYPE_REGULAR;
        case S_IFDIR:
            return FILE_TYPE_DIRECTORY;
        case S_IFLNK:
            return FILE_TYPE_SYMLINK;
        case S_IFCHR:
        case S_IFBLK:
            return FILE_TYPE_DEVICE;
        case S_IFIFO:
            return FILE_TYPE_FIFO;
        case S_IFSOCK:
            return FILE_TYPE_SOCKET;
        default:
            return FILE_TYPE_NONE;
    }
}

void FillFromStat(const ustring &path, const struct stat &st, FILE_INFO &info) {
    info.exists = true;
    info.mtime = static_cast<long>(st.st_mtime);
    info.name = FSBaseName(path);
    info.path = path;
    info.size = static_cast<long long>(st.st_size);
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode;
    info.dev = static_cast<long long>(st.st_dev);
    info.type = TypeOfMode(st.st_mode);
}

/// Replaces the path of a described entry by the one under which the file system stores it.
int FillRealPath(const ustring &path, const ustring &stored, FILE_INFO &info,
                 unsigned long &length) {
    const ustring composed = path.normalize(ustring::NFC);
    MSG_DEBUG("Input file path = [%s].\n", composed.c_str());
    // A path that is no valid UTF-8 has no composed form; the look-up fails for the empty one.
    const ustring &lookup = composed.empty() ? composed : LookupPath(composed, stored);
    FSRef ref;
    OSStatus status = FSPathMakeRefWithOptions(Bytes(lookup), kFSPathMakeRefDoNotFollowLeafSymlink,
                                               &ref, nullptr);
    if (status != noErr) {
        MSG_ERROR("FSPathMakeRef: %d\n", static_cast<int>(status));
        return -1;
    }
    UInt8 buffer[kPathBuffer] = {};
    status = FSRefMakePath(&ref, buffer, kPathBuffer);
    if (status != noErr) {
        MSG_ERROR("FSPathMakeRef: %d\n", static_cast<int>(status));
        return -1;
    }
    length = std::strlen(reinterpret_cast<const char *>(buffer));
    const ustring real = ustring(reinterpret_cast<const char *>(buffer)).normalize(ustring::NFC);
    MSG_DEBUG("FSRefMakePath outTargetPath path = [%s].\n", real.c_str());
    info.path = real;
    info.name = FSBaseName(real);
    return 0;
}

bool Exists(const ustring &path, const ustring &stored, bool exact) {
    const ustring composed = path.normalize(ustring::NFC);
    if (composed.empty()) {
        return false;
    }
    FILE_INFO info;
    if (file_op::Describe(composed, LookupPath(composed, stored), info) != 0 || !info.exists) {
        return false;
    }
    return !exact || info.path == composed;
}

bool VolumeType(const char *caller, const ustring &path, ustring &type) {
    const ustring stored = StoredPath(path);
    if (FileSystemType(stored, type) != 0) {
        const int error = errno;
        MSG_ERROR("%s: Failed to get file system info '%s'. %s\n", caller, path.c_str(),
                  std::strerror(error));
        return false;
    }
    return true;
}

}  // namespace

bool _FILE_INFO_tag::operator==(const _FILE_INFO_tag &other) const {
    return exists == other.exists && size == other.size && mtime == other.mtime &&
           type == other.type && path == other.path && name == other.name;
}

int file_op::Describe(const ustring &path, const ustring &stored, FILE_INFO &info) {
    unsigned long length = 0;
    return Describe(path, stored, info, length);
}

int file_op::Describe(const ustring &path, const ustring &stored, FILE_INFO &info,
                      unsigned long &length) {
    struct stat st;
    if (lstat(stored.c_str(), &st) != 0) {
        if (errno != ENOENT) {
            return -1;
        }
        FILE_INFO missing;  // `path` may be the record's own
        missing.path = path;
        missing.name = FSBaseName(path);
        info = missing;
        return 0;
    }
    FillFromStat(path, st, info);
    if (info.type == FILE_TYPE_NONE) {
        return -1;
    }
    return FillRealPath(path, stored, info, length);
}

int file_op::DescribeListed(const Folder &folder, const char *name) {
    const ustring composed_name = ustring(name).normalize(ustring::NFC);
    if (composed_name.empty()) {
        MSG_DEBUG("Input file path = [%s].\n", "");
        MSG_ERROR("FSPathMakeRef: %d\n", static_cast<int>(fnfErr));
        return -1;
    }
    MSG_DEBUG("Input file path = [%s/%s].\n", folder.composed.c_str(), composed_name.c_str());
    if (folder.stored_length + 1 + std::strlen(name) >= kPathBuffer) {
        MSG_ERROR("FSPathMakeRef: %d\n", static_cast<int>(pathTooLongErr));
        return -1;
    }
    MSG_DEBUG("FSRefMakePath outTargetPath path = [%s/%s].\n", folder.real.c_str(),
              composed_name.c_str());
    return 0;
}

int file_op::Stat(const ustring &path, const ustring &stored, FILE_INFO &info, bool exact) {
    if (path.empty()) {
        return -1;
    }
    if (!Exists(path, stored, exact)) {
        info.exists = false;
        return 0;
    }
    return Describe(path, stored, info) == 0 ? 0 : -2;
}

int GetFileInfo(const ustring &path, _FILE_INFO_tag &info) {
    return file_op::Describe(path, StoredPath(path), info);
}

bool IsFileExist(const ustring &path, bool exact) {
    return Exists(path, StoredPath(path), exact);
}

int FSStat(const ustring &path, _FILE_INFO_tag &info, bool exact) {
    return file_op::Stat(path, StoredPath(path), info, exact);
}

int FSGetRealPath(ustring &path) {
    MSG_DEBUG(" org path [%s]\n", path.c_str());
    FSRef ref;
    UInt8 buffer[kPathBuffer] = {};
    OSStatus status = FSPathMakeRef(Bytes(path), &ref, nullptr);
    if (status == noErr) {
        status = FSRefMakePath(&ref, buffer, kPathBuffer);
    }
    if (status == pathTooLongErr) {
        MSG_ERROR("FSGetRealPath: Path too long '%s' (%d)\n", path.c_str(),
                  static_cast<int>(status));
    }
    if (status != noErr) {
        return -1;
    }
    path = reinterpret_cast<const char *>(buffer);
    MSG_DEBUG(" get full path [%s]\n", path.c_str());
    return 0;
}

int FSMktemp(const ustring &dir, ustring &out) {
    char path[kPathBuffer];
    const int length = std::snprintf(path, sizeof(path), "%s/XXXXXX", StoredPath(dir).c_str());
    const bool fits = length >= 0 && static_cast<unsigned int>(length) < sizeof(path);
    const int fd = fits ? mkstemp(path) : -1;
    if (fd < 0) {
        const int error = fits ? errno : ENAMETOOLONG;
        MSG_ERROR("mkstemp(%s): %s\n", (dir + "/XXXXXX").c_str(), std::strerror(error));
        return -1;
    }
    close(fd);
    out = dir + std::strrchr(path, '/');
    chmod(path, 0644);
    return 0;
}

int FSCreateTempPath(const ustring &dir, ustring &out) {
    out = TmpNameGen::getInstance().getTmpPath(dir);
    return out.empty() ? -1 : 0;
}

int FSUTime(const ustring &path, long atime, long mtime) {
    struct timeval times[2] = {};
    times[0].tv_sec = atime;
    times[1].tv_sec = mtime;
    return lutimes(StoredPath(path).c_str(), times) == 0 ? 0 : -1;
}

bool FSTimeEqual(long a, long b) {
    return a == b;
}

bool isFileLocked(const ustring &path, int mode) {
    return access(StoredPath(path).c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

bool hasFilePermission(const ustring &path, int mode) {
    return access(StoredPath(path).c_str(), mode) == 0 || (errno != EACCES && errno != EPERM);
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

int FSCreateSymbolicLink(const ustring &target, const ustring &link) {
    const ustring stored = StoredPath(link);
    if (symlink(target.c_str(), stored.c_str()) != 0) {
        const int error = errno;
        MSG_ERROR(
            "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: "
            "%s)\n",
            target.c_str(), link.c_str(), error, std::strerror(error));
        return -1;
    }
    return 0;
}

int FSReadSymbolicLink(const ustring &link, ustring &target) {
    const ustring stored = StoredPath(link);
    char text[kLinkBuffer] = {};
    const ssize_t length = readlink(stored.c_str(), text, sizeof(text));
    // A text that fills the buffer may have been cut.
    const int error = length < 0 ? errno : length < ssize_t{sizeof(text)} ? 0 : ENAMETOOLONG;
    if (error != 0) {
        MSG_ERROR("FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
                  link.c_str(), error, std::strerror(error));
        return -1;
    }
    target = static_cast<const char *>(text);
    return 0;
}

int FSChown(const ustring &path, unsigned int uid, unsigned int gid) {
    const ustring stored = StoredPath(path);
    if (lchown(stored.c_str(), uid, gid) != 0) {
        const int error = errno;
        MSG_ERROR("FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(), error,
                  std::strerror(error));
        return -1;
    }
    return 0;
}
