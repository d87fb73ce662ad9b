// SPDX-License-Identifier: MIT
#include <chrono>
#include <cstdio>

#include "extractor.h"

// usage: extract-timing PACKAGE FOLDER
// Prints how many seconds the launcher's extractor takes to count the entries of the package, and
// to install it, which counts them again.
int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: extract-timing PACKAGE FOLDER\n");
        return 2;
    }
    Extractor extractor;
    extractor.m_src_path = argv[1];
    extractor.m_dest_path = argv[2];

    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const int count = extractor.Count();
    const auto counted = Clock::now();
    if (count < 1 || extractor.Extract() != 0) {
        return 1;
    }
    const std::chrono::duration<double> count_time = counted - start;
    const std::chrono::duration<double> extract_time = Clock::now() - counted;
    std::printf("%.3f %.3f\n", count_time.count(), extract_time.count());
    return 0;
}
