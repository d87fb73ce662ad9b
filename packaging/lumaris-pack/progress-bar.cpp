// SPDX-License-Identifier: MIT
#include "progress-bar.h"

#include <unistd.h>

#include <cstdio>
#include <string>

ProgressBar::ProgressBar() : m_terminal(isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar() {
    if (m_terminal && m_percent >= 0) {
        std::fputs("\r\033[K", stderr);
    }
}

void ProgressBar::Show(std::uint64_t done, std::uint64_t total) {
    const int percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
    if (!m_terminal || percent == m_percent) {
        return;
    }
    m_percent = percent;
    constexpr int width = 50;
    const auto filled = static_cast<std::size_t>(percent * width / 100);
    const std::string bar = std::string(filled, '#') + std::string(width - filled, ' ');
    std::fprintf(stderr, "\r[%s] %3d %%", bar.c_str(), percent);
    std::fflush(stderr);
}
