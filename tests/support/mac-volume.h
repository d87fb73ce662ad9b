#pragma once

#include <sys/prctl.h>
#include <csignal>

#include "own-mounts.h"

/// A folder shown as a volume with the rules of a Mac (see tests/lib/mac-volume.cpp), from the
/// constructor to the destructor. MAC_VOLUME is the path of that program; a target that links
/// `mac-volume-support` has it.
class MacVolume {
public:
    MacVolume(const fs::path &folder, const fs::path &mount_point) : m_mount_point(mount_point) {
        fs::create_directories(folder);
        fs::create_directories(mount_point);
        int ready[2];
        if (!OwnMounts() || pipe(ready) != 0)
            return;
        m_server = fork();
        if (m_server == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            dup2(ready[1], STDOUT_FILENO);
            close(ready[0]);
            close(ready[1]);
            execl(MAC_VOLUME, MAC_VOLUME, folder.c_str(), mount_point.c_str(), "-f", "-s", nullptr);
            _exit(1);
        }
        close(ready[1]);
        char byte;
        m_mounted = read(ready[0], &byte, 1) == 1;
        close(ready[0]);
    }
    ~MacVolume() {
        umount2(m_mount_point.c_str(), MNT_DETACH);
        if (m_server > 0) {
            kill(m_server, SIGKILL);  // it would wait for files that are still open
            waitpid(m_server, nullptr, 0);
        }
    }
    /// False where a user may not mount, or without FUSE.
    bool mounted() const { return m_mounted; }

private:
    const fs::path m_mount_point;
    pid_t m_server = -1;
    bool m_mounted = false;
};
