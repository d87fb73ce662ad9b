// SPDX-License-Identifier: MIT
#pragma once

#include <sys/mount.h>

#include <cstdio>
#include <memory>

#include "test-support.h"

/// A home folder on a volume that the test mounts, `v`.
class VolumeTest : public HomeTest {
protected:
    VolumeTest() {
        fs::create_directory("disk");
        UseHome("v");
    }
    ~VolumeTest() override {
        umount2((root / "v").c_str(), MNT_FORCE | MNT_DETACH);  // ends the server, too
    }
    /// Shows `disk` in `v` with the rules of a Mac. False where this user may not mount.
    bool MountMacVolume() {
        m_server.reset(popen("exec setpriv --pdeathsig KILL '" MAC_VOLUME "' disk v", "r"));
        return m_server && std::fgetc(m_server.get()) != EOF;
    }
    static ustring OnVolume(const char *name) { return (fs::canonical("v") / name).c_str(); }

private:
    std::unique_ptr<FILE, int (*)(FILE *)> m_server{nullptr, pclose};
};
