// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

/// Owner of one file descriptor.
class UniqueFd {
public:
    explicit UniqueFd(int fd) : m_fd(fd) {}
    UniqueFd(const UniqueFd &) = delete;
    UniqueFd &operator=(const UniqueFd &) = delete;
    ~UniqueFd() {
        if (m_fd >= 0) {
            close(m_fd);
        }
    }

    int Get() const { return m_fd; }

private:
    const int m_fd;
};
