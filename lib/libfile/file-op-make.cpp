// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "file-op-internal.h"
#include "system-path.h"
#include "tmp-name-gen.h"

namespace {

using file_op::Place;

constexpr unsigned int kPathBuffer = 4096;
constexpr unsigned short kNoMode = 0xFFFF;

/// Sets the umask of the process to 0 during its lifetime, so that modes apply exactly.
class NoUmask {
public:
    NoUmask() : m_previous(umask(0)) {}
    ~NoUmask() { umask(m_previous); }
    NoUmask(const NoUmask &) = delete;
    NoUmask &operator=(const NoUmask &) = delete;

private:
    const mode_t m_previous;
};

/// Creates one level of a path. Returns 0 or an errno code.
int MakeLevel(const Place &level, bool last, bool replace_files, mode_t mode) {
    struct stat st;
    const bool exists = stat(level.system.c_str(), &st) == 0;
    if (exists && S_ISDIR(st.st_mode)) {
        return 0;
    }
    if (exists && !replace_files && last) {
        MSG_INFO("FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
                 level.asked.c_str());
        return EEXIST;
    }
    if (exists && !replace_files) {
        // It stays, and creating the next level beneath it fails.
        MSG_INFO("FSMKDirP: path: %s is symbolic link pointed to folder\n", level.asked.c_str());
        return 0;
    }
    if (exists) {
        std::remove(level.system.c_str());
    }
    return mkdir(level.system.c_str(), mode) == 0 ? 0 : errno;
}

/// The end of the level of `path` that begins at `begin`.
unsigned long LevelEnd(const ustring &path, unsigned long begin) {
    return begin + std::strcspn(path.c_str() + begin, "/");
}

/// Creates all levels of `path`. Both spellings have the same levels and are walked together. `end`
/// is set to where the walk stopped in `path.asked`. Returns 0 or an errno code.
int MakeLevels(const Place &path, unsigned long &end, bool replace_files, unsigned short mode) {
    const std::unique_ptr<NoUmask> exact(mode == kNoMode ? nullptr : new NoUmask);
    const mode_t make_mode = mode == kNoMode ? mode_t{0777} : mode_t{mode};
    end = path.asked[0] == '/' ? 1 : 0;
    for (unsigned long system_end = end;; ++end, ++system_end) {
        end = LevelEnd(path.asked, end);
        system_end = LevelEnd(path.system, system_end);
        // A final '/' starts no new level.
        const bool last = end + 1 >= path.asked.length();
        const Place level(path.asked.substr(0, end), path.system.substr(0, system_end));
        const int error = MakeLevel(level, last, replace_files, make_mode);
        if (error != 0 || last) {
            return error;
        }
    }
}

}  // namespace

int file_op::MakeFolder(Place &place, bool recursive) {
    FILE_INFO info;
    if (RespellAndDescribe(place, info) != 0) {
        MSG_ERROR("FSMKDir: Failed to to file info '%s'\n", place.asked.c_str());
        return -1;
    }
    if (info.exists && info.type != FILE_TYPE_DIRECTORY) {
        MSG_ERROR("FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
                  place.asked.c_str(), info.type);
        return -1;
    }
    int error = 0;
    if (!info.exists && mkdir(place.system.c_str(), 0777) != 0) {
        error = errno;
    }
    // The walk makes a system call for each level, so try it only after a single mkdir() failed.
    if (error != 0 && recursive) {
        unsigned long end = 0;
        error = MakeLevels(place, end, false, kNoMode);
    }
    if (error != 0) {
        MSG_ERROR("path = %s errno : %s\n", place.asked.c_str(), std::strerror(error));
        return -2;
    }
    return 0;
}

int FSMKDir(const ustring &path, bool recursive) {
    Place place(path);
    return path.empty() ? -1 : file_op::MakeFolder(place, recursive);
}

int FSMKDirP(const ustring &path, char **stop, bool replace_files, unsigned short mode) {
    if (path.empty()) {
        return -1;
    }
    unsigned long end = 0;
    const int error = MakeLevels(Place::Respelled(path), end, replace_files, mode);
    if (stop != nullptr) {
        // The interface returns a writable pointer into the caller's own text.
        *stop = const_cast<char *>(path.c_str()) + end;
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

int FSMktemp(const ustring &dir, ustring &out) {
    char path[kPathBuffer];
    const int length = std::snprintf(path, sizeof(path), "%s/XXXXXX", SystemPath(dir).c_str());
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

int FSCreateSymbolicLink(const ustring &target, const ustring &link) {
    if (symlink(target.c_str(), SystemPath(link).c_str()) != 0) {
        MSG_ERROR(
            "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: "
            "%s)\n",
            target.c_str(), link.c_str(), errno, std::strerror(errno));
        return -1;
    }
    return 0;
}
