// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// One line on standard error that fills up; nothing at all when that is no terminal.
class ProgressBar {
public:
    ProgressBar();
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;
    /// Takes the line away again.
    ~ProgressBar();

    void Show(std::uint64_t done, std::uint64_t total);

private:
    const bool m_terminal;
    int m_percent = -1;
};
