// SPDX-License-Identifier: MIT
#pragma once

#include <sched.h>
#include <sys/mount.h>

#include "test-support.h"

/// From the first call on this process and its children have mounts of their own, which end with
/// them. As an ordinary user it becomes root in a user namespace for that.
inline bool OwnMounts() {
    static const bool own = [] {
        const std::string user = std::to_string(geteuid()), group = std::to_string(getegid());
        if (unshare(CLONE_NEWNS | (user == "0" ? 0 : CLONE_NEWUSER)) != 0) {
            return false;
        }
        if (user != "0") {
            WriteFile("/proc/self/setgroups", "deny");
            WriteFile("/proc/self/uid_map", "0 " + user + " 1");
            WriteFile("/proc/self/gid_map", "0 " + group + " 1");
        }
        return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }();
    return own;
}
