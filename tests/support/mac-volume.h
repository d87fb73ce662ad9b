// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

#include "own-mounts.h"

/// A folder shown as a volume with the rules of a Mac (see tests/lib/mac-volume.cpp), from the
/// constructor to the destructor. MAC_VOLUME is the path of that program; a target that links
/// `mac-volume-support` has it.
class MacVolume {
public:
    MacVolume(const fs::path &folder, const fs::path &mount_point) : m_mount_point(mount_point) {
        fs::create_directories(folder);
        fs::create_directories(mount_point);
        const std::string folders = "'" + folder.string() + "' '" + mount_point.string() + "'";
        if (OwnMounts()) {
            m_server = popen(("exec '" MAC_VOLUME "' " + folders + " -f -s").c_str(), "r");
        }
        m_mounted = m_server != nullptr && std::fgetc(m_server) != EOF;
    }
    ~MacVolume() {
        umount2(m_mount_point.c_str(), MNT_FORCE | MNT_DETACH);  // ends the server at once
        if (m_server != nullptr) {
            pclose(m_server);
        }
    }
    /// False where a user may not mount, or without FUSE.
    bool mounted() const { return m_mounted; }

private:
    const fs::path m_mount_point;
    FILE *m_server = nullptr;
    bool m_mounted = false;
};
