// SPDX-License-Identifier: MIT
#include <cerrno>
#include <cstdio>

#include "file-op-internal.h"

namespace {

using file_op::Folder;
using file_op::Place;

int RemoveEntry(Place place);

/// Removes an entry that is not a folder.
int RemoveListed(const Folder &folder, const ustring &name, const Place &place) {
    if (file_op::DescribeListed(folder, name) != 0) {
        return -1;
    }
    // If another process has removed it since it was listed (ENOENT), that is a success, too.
    return std::remove(place.system.c_str()) == 0 || errno == ENOENT ? 0 : -3;
}

int RemoveContents(const Place &place, const Folder &folder) {
    std::vector<DIR_ENTRY> entries;
    if (file_op::ListFolder(place, entries) != 0) {
        return -3;
    }
    for (const DIR_ENTRY &entry : entries) {
        const Place child = place.Child(entry.name);
        // Some file systems list entries without their types.
        const bool maybe_folder = entry.type == FILE_TYPE_NONE || entry.type == FILE_TYPE_DIRECTORY;
        const int result =
            maybe_folder ? RemoveEntry(child) : RemoveListed(folder, entry.name, child);
        if (result != 0) {
            return -3;
        }
    }
    return 0;
}

int RemoveEntry(Place place) {
    FILE_INFO info;
    ustring stored;
    if (file_op::RespellAndDescribe(place, info, stored) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIRECTORY &&
        RemoveContents(place, {place.asked.normalize(ustring::NFC), info.path, stored}) != 0) {
        return -3;
    }
    return std::remove(place.system.c_str()) == 0 ? 0 : -3;
}

}  // namespace

int FSRemove(const ustring &path, bool) {
    return path.empty() ? -1 : RemoveEntry(Place(path));
}
