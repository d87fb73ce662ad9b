// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file-op-internal.h"
#include "real-path.h"
#include "system-path.h"

namespace {

constexpr unsigned int kLinkBuffer = 1024;

void FillNames(const ustring &path, FILE_INFO &info) {
    info.path = path;
    info.name = FSBaseName(path);
}

// The members of stat differ in width and sign between systems; the record can hold all of them.
void FillFromStat(const struct stat &st, FILE_INFO &info) {
    info.exists = true;
    info.mtime = static_cast<long>(st.st_mtime);
    info.size = static_cast<long long>(st.st_size);
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode;
    info.dev = static_cast<long long>(st.st_dev);
    info.type = file_op::TypeOfMode(st.st_mode);
}

/// Logs the lookup of a real path. Both paths are composed (NFC).
int ReportRealPath(const ustring &asked, int status, const ustring &real) {
    MSG_DEBUG("Input file path = [%s].\n", asked.c_str());
    if (status != 0) {
        MSG_ERROR("FSPathMakeRef: %d\n", status);
        return -1;
    }
    MSG_DEBUG("FSRefMakePath outTargetPath path = [%s].\n", real.c_str());
    return 0;
}

}  // namespace

bool _FILE_INFO_tag::operator==(const _FILE_INFO_tag &other) const {
    return exists == other.exists && size == other.size && mtime == other.mtime &&
           type == other.type && path == other.path && name == other.name;
}

file_op::Place file_op::Place::Respelled(const ustring &path) {
    return {path, SystemPath(path)};
}

file_op::Place file_op::Place::Child(const ustring &name) const {
    return {asked + "/" + name, system + "/" + name};
}

int file_op::TypeOfMode(mode_t mode) {
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

int file_op::RespellAndDescribe(Place &place, FILE_INFO &info, ustring &stored) {
    struct stat st;
    const int error = StatEntry(place.system, st);
    // A missing entry is a valid result. All other errors are failures, ENOTDIR included.
    if (error == ENOENT) {
        info = FILE_INFO();
        FillNames(place.asked, info);
        return 0;
    }
    if (error != 0) {
        return -1;
    }
    FillFromStat(st, info);
    FillNames(place.asked, info);
    if (info.type == FILE_TYPE_NONE) {
        return -1;
    }
    const ustring composed = place.asked.normalize(ustring::NFC);
    // A path that is not valid UTF-8 has no composed form and counts as missing.
    const int status =
        composed.empty() ? kRealPathMissing : RealPath(place.system, Leaf::kItself, stored);
    const ustring real = stored.normalize(ustring::NFC);
    if (ReportRealPath(composed, status, real) != 0) {
        return -1;
    }
    FillNames(real, info);
    return 0;
}

int file_op::RespellAndDescribe(Place &place, FILE_INFO &info) {
    ustring stored;
    return RespellAndDescribe(place, info, stored);
}

int file_op::DescribeListed(const Folder &folder, const ustring &name) {
    const ustring composed = name.normalize(ustring::NFC);
    if (composed.empty()) {
        return ReportRealPath(composed, kRealPathMissing, composed);
    }
    const bool fits = folder.stored.length() + 1 + name.length() < kRealPathSize;
    return ReportRealPath(folder.asked + "/" + composed, fits ? 0 : kRealPathTooLong,
                          folder.real + "/" + composed);
}

int file_op::RespellAndStat(Place &place, FILE_INFO &info, bool exact) {
    if (place.asked.empty()) {
        return -1;
    }
    if (!IsFileExist(place.asked, exact)) {
        info.exists = false;
        return 0;
    }
    return RespellAndDescribe(place, info) == 0 ? 0 : -2;
}

int GetFileInfo(const ustring &path, FILE_INFO &info) {
    file_op::Place place(path);
    return file_op::RespellAndDescribe(place, info);
}

bool IsFileExist(const ustring &path, bool exact) {
    file_op::Place place(path.normalize(ustring::NFC));
    FILE_INFO info;
    return !place.asked.empty() && file_op::RespellAndDescribe(place, info) == 0 && info.exists &&
           (!exact || info.path == place.asked);
}

int FSStat(const ustring &path, FILE_INFO &info, bool exact) {
    file_op::Place place(path);
    return file_op::RespellAndStat(place, info, exact);
}

int FSGetRealPath(ustring &path) {
    MSG_DEBUG(" org path [%s]\n", path.c_str());
    ustring real;
    if (RealPath(SystemPath(path), Leaf::kTarget, real) != 0) {
        return -1;
    }
    path = real;
    MSG_DEBUG(" get full path [%s]\n", path.c_str());
    return 0;
}

int FSReadSymbolicLink(const ustring &link, ustring &target) {
    char text[kLinkBuffer] = {};
    const ssize_t length = readlink(SystemPath(link).c_str(), text, sizeof(text));
    int error = 0;
    if (length < 0) {
        error = errno;
    } else if (length == ssize_t{sizeof(text)}) {
        error = ENAMETOOLONG;  // the text may have been cut
    }
    if (error != 0) {
        MSG_ERROR("FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
                  link.c_str(), error, std::strerror(error));
        return -1;
    }
    target = static_cast<const char *>(text);
    return 0;
}
