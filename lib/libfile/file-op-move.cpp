// SPDX-License-Identifier: MIT
#include <cerrno>
#include <cstdio>

#include "file-op-internal.h"
#include "system-path.h"

namespace {

using file_op::Place;

int MoveEntry(Place &src, const Place &dst, bool exact);

int MoveFolder(const Place &src, Place dst, bool exact) {
    std::vector<DIR_ENTRY> entries;
    if (file_op::MakeFolder(dst, true) != 0 || file_op::ListFolder(src, entries) != 0) {
        return -3;
    }
    for (const DIR_ENTRY &entry : entries) {
        Place from = src.Child(entry.name);
        Place to = dst.Child(entry.name);
        // The target may already hold an entry of this name in another spelling.
        to.system = SystemPath(to.system);
        if (MoveEntry(from, to, exact) != 0) {
            return -3;
        }
    }
    return std::remove(src.system.c_str()) == 0 ? 0 : -3;
}

int MoveToOtherVolume(const Place &src, const Place &dst, int type, bool exact) {
    switch (type) {
        case FILE_TYPE_DIRECTORY:
            return MoveFolder(src, dst, exact);
        case FILE_TYPE_REGULAR:
            return file_op::CopyFile(src, dst, true) == 0 ? 0 : -3;
        default:  // other kinds are not moved
            return 0;
    }
}

int MoveEntry(Place &src, const Place &dst, bool exact) {
    FILE_INFO info;
    if (file_op::RespellAndStat(src, info, exact) != 0 || !info.exists) {
        return -2;
    }
    if (std::rename(src.system.c_str(), dst.system.c_str()) == 0) {
        return 0;
    }
    switch (errno) {
        case EXDEV:
            return MoveToOtherVolume(src, dst, info.type, exact);
        case ENAMETOOLONG:
            return -100;
        default:
            return -3;
    }
}

}  // namespace

int FSRename(const ustring &src, const ustring &dst, bool exact) {
    if (src.empty() || dst.empty()) {
        return -1;
    }
    Place from(src);
    return MoveEntry(from, Place::Respelled(dst), exact);
}
