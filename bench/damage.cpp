// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>

#include "extractor.h"

namespace fs = std::filesystem;

namespace {

/// The type, the permissions and the content or link target of each entry, by name.
using Tree = std::map<std::string, std::string>;

std::string ReadFile(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Tree TreeOf(const fs::path &root) {
    Tree tree;
    for (const auto &entry : fs::recursive_directory_iterator(root)) {
        const fs::file_status status = entry.symlink_status();
        std::string content;
        if (entry.is_symlink()) {
            content = fs::read_symlink(entry).native();
        } else if (entry.is_regular_file()) {
            content = ReadFile(entry);
        }
        tree[entry.path().lexically_relative(root).native()] =
            std::to_string(static_cast<int>(status.type())) + " " +
            std::to_string(static_cast<unsigned>(status.permissions())) + " " + content;
    }
    return tree;
}

/// How many damaged packages were refused, installed unharmed and installed wrong.
struct Outcome {
    int refused = 0, whole = 0, wrong = 0;
};

class Damage {
public:
    Damage(const std::string &package, const fs::path &work)
        : m_bytes(ReadFile(package)), m_package(work / "package"), m_installed(work / "installed") {
        Outcome first;
        Install(m_bytes, first);
        m_whole = TreeOf(m_installed);
    }

    /// Flips a single random bit, `count` times.
    Outcome Flips(int count) {
        Outcome outcome;
        std::uniform_int_distribution<std::size_t> place(0, m_bytes.size() * 8 - 1);
        for (int i = 0; i < count; ++i) {
            const std::size_t bit = place(m_random);
            std::string damaged = m_bytes;
            damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << (bit % 8)));
            Install(damaged, outcome);
        }
        return outcome;
    }

    /// Cuts the package at each of its `last` bytes and at `others` random places before them.
    Outcome Cuts(std::size_t last, int others) {
        Outcome outcome;
        last = std::min(last, m_bytes.size());
        for (std::size_t missing = 1; missing <= last; ++missing) {
            Install(m_bytes.substr(0, m_bytes.size() - missing), outcome);
        }
        std::uniform_int_distribution<std::size_t> place(0, m_bytes.size() - last);
        for (int i = 0; i < others; ++i) {
            Install(m_bytes.substr(0, place(m_random)), outcome);
        }
        return outcome;
    }

private:
    void Install(const std::string &bytes, Outcome &outcome) {
        std::ofstream(m_package, std::ios::binary) << bytes;
        fs::remove_all(m_installed);
        fs::create_directories(m_installed);
        Extractor extractor;
        extractor.m_src_path = m_package.c_str();
        extractor.m_dest_path = m_installed.c_str();
        if (extractor.Extract() != 0) {
            ++outcome.refused;
        } else if (TreeOf(m_installed) == m_whole) {
            ++outcome.whole;
        } else {
            ++outcome.wrong;
        }
    }

    const std::string m_bytes;
    const fs::path m_package, m_installed;
    Tree m_whole;
    std::mt19937_64 m_random{1};
};

}  // namespace

// usage: damage PACKAGE WORK_FOLDER FLIPS CUTS
// Damages the package in many ways, installs each result with the launcher's extractor and prints
// how often it was refused, whole and wrong: first for single flipped bits, then for cuts at each
// of the last 2,000 bytes and at CUTS other places.
int main(int argc, char **argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: damage PACKAGE WORK_FOLDER FLIPS CUTS\n");
        return 2;
    }
    // The extractor would log thousands of lines.
    if (std::freopen("/dev/null", "w", stderr) == nullptr) {
        return 1;
    }
    Damage damage(argv[1], argv[2]);
    const Outcome flips = damage.Flips(std::atoi(argv[3]));
    const Outcome cuts = damage.Cuts(2000, std::atoi(argv[4]));
    std::printf("%d %d %d %d %d %d\n", flips.refused, flips.whole, flips.wrong, cuts.refused,
                cuts.whole, cuts.wrong);
    return 0;
}
