// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "ustring.h"

/// Registers one comparison as NAME/project and NAME/peer. Each call of either does the same work
/// once; bench/compare.py runs both in turns and prints their ratio.
template <typename Project, typename Peer>
void Compare(const std::string &name, Project project, Peer peer) {
    benchmark::RegisterBenchmark((name + "/project").c_str(), [project](benchmark::State &state) {
        for (auto _ : state) {
            project();
        }
    });
    benchmark::RegisterBenchmark((name + "/peer").c_str(), [peer](benchmark::State &state) {
        for (auto _ : state) {
            peer();
        }
    });
}

/// The number of calls of the C allocator so far, those by operator new included.
unsigned long Allocations();

/// A folder that is removed at the end of the run.
const std::string &WorkFolder();

struct Path {
    std::string text;
    ustring own;
};

/// Fourteen paths of 20 to 120 bytes, like those of the launcher; five are not ASCII.
const std::vector<Path> &Paths();

void CompareStrings();
void CompareLogging();
