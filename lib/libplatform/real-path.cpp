// SPDX-License-Identifier: MIT
#include "real-path.h"

namespace {

/// After so many attempts, an entry that is replaced again and again counts as missing.
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
