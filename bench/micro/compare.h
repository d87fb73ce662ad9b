// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "ustring.h"

/// Registers one comparison as NAME/project and NAME/peer. Both do the same work, once for each
/// call; `bench/compare` runs them in turns and prints the ratio.
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

/// Calls to the C allocator by this process so far, those behind operator new included.
unsigned long Allocations();

/// A folder of this run, removed at its end.
const std::string &WorkFolder();

struct Path {
    std::string text;
    ustring own;
};

/// What the launcher's strings hold: paths of 20 to 120 bytes, some of them not ASCII.
const std::vector<Path> &Paths();

void CompareStrings();
void CompareLogging();
void CompareConfig();
