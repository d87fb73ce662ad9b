// SPDX-License-Identifier: MIT
#include <cerrno>
#include <cstring>
#include <memory>

#include "file-op-internal.h"

namespace {

struct CloseFolder {
    void operator()(DIR_HANDLE *handle) const { FSCloseDir(*handle); }
};

}  // namespace

int file_op::OpenFolder(const Place &place, int flags, DIR_HANDLE &handle) {
    DIR *const dir = opendir(place.system.c_str());
    if (dir == nullptr) {
        MSG_ERROR("FSOpenDir: Failed to open directory '%s'. %s\n", place.asked.c_str(),
                  std::strerror(errno));
        return -1;
    }
    handle.dir = dir;
    handle.path = place.asked;
    handle.flags = flags;
    return 0;
}

int file_op::ListFolder(const Place &place, std::vector<DIR_ENTRY> &entries) {
    DIR_HANDLE handle;
    if (OpenFolder(place, 0, handle) != 0) {
        return -1;
    }
    const std::unique_ptr<DIR_HANDLE, CloseFolder> closed_at_end(&handle);
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) == 1) {
        if (entry.name != "." && entry.name != "..") {
            entries.push_back(entry);
        }
    }
    return 0;
}

int FSOpenDir(const ustring &path, int flags, DIR_HANDLE &handle) {
    return file_op::OpenFolder(file_op::Place::Respelled(path), flags, handle);
}

int FSReadDir(DIR_HANDLE &handle, DIR_ENTRY &entry) {
    // Every walk has a stream of its own, so readdir() is safe. The C library deprecates
    // readdir_r(), which cannot report names longer than its buffer.
    errno = 0;
    const dirent *const found = readdir(handle.dir);
    if (found == nullptr) {
        if (errno == 0) {
            return 0;
        }
        MSG_ERROR("FSOpenDir: Failed to read directory '%s'. %s\n", handle.path.c_str(),
                  std::strerror(errno));
        return -1;
    }
    FILE_INFO info;
    if ((handle.flags & DIR_FLAG_STAT) != 0) {
        const ustring full = handle.path + "/" + found->d_name;
        if (FSStat(full, info, true) != 0) {
            MSG_ERROR("FSOpenDir: Failed to get info for '%s'\n", full.c_str());
            return -1;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = static_cast<const char *>(found->d_name);
    entry.type = file_op::TypeOfMode(static_cast<mode_t>(DTTOIF(found->d_type)));
    return 1;
}

void FSCloseDir(DIR_HANDLE &handle) {
    if (handle.dir != nullptr) {
        closedir(handle.dir);
    }
    handle.dir = nullptr;
    handle.path.clear();
}
