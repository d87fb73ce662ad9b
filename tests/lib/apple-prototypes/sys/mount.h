#pragma once

// The other system's statfs(), which names the file system.

struct statfs {
    char f_fstypename[16];
};

extern "C" int statfs(const char *path, struct statfs *buf);
