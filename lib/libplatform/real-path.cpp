// SPDX-License-Identifier: MIT
#include "real-path.h"

namespace {

/// An entry that is replaced again and again loses its path each time between two system calls.
/// After so many attempts it counts as missing.
constexpr int kAttempts = 50;

}  // namespace

int RealPath(const ustring &path, Leaf leaf, ustring &real) {
    int status = kRealPathVanished;
    for (int attempt = 0; attempt < kAttempts && status == kRealPathVanished; ++attempt) {
        status = RealPathOnce(path, leaf, real);
    }
    if (status != 0) {
        real.clear();
    }
    return status == kRealPathVanished ? kRealPathMissing : status;
}
