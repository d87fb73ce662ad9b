// SPDX-License-Identifier: MIT
#include <linux/magic.h>
#include <sys/vfs.h>

#include <cstdint>

#include "file-system-type.h"

int FileSystemType(const ustring &path, ustring &name) {
    struct statfs fs;
    if (statfs(path.c_str(), &fs) != 0) {
        return -1;
    }
    // Only the types that callers ask for have a name here.
    switch (static_cast<std::uint32_t>(fs.f_type)) {
        case NFS_SUPER_MAGIC:
            name = "nfs";
            break;
        case SMB_SUPER_MAGIC:
        case SMB2_SUPER_MAGIC:
        case CIFS_SUPER_MAGIC:
            name = "smbfs";
            break;
        case MSDOS_SUPER_MAGIC:
            name = "msdos";
            break;
        default:
            name.clear();
    }
    return 0;
}
