// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

/// Owner of one file descriptor.
class UniqueFd {
public:
    explicit UniqueFd(int fd = -1) : m_fd(fd) {}
    UniqueFd(UniqueFd &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    UniqueFd &operator=(UniqueFd &&other) noexcept {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~UniqueFd() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }

    int Get() const { return m_fd; }
    /// Hands the descriptor to the caller, who wants to see whether closing succeeds.
    int Release() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};
