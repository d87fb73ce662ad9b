// SPDX-License-Identifier: MIT
#include <sys/param.h>

#include <sys/mount.h>

#include "file-system-type.h"

int FileSystemType(const ustring &path, ustring &name) {
    struct statfs fs;
    if (statfs(path.c_str(), &fs) != 0) {
        return -1;
    }
    name = static_cast<const char *>(fs.f_fstypename);
    return 0;
}
