// SPDX-License-Identifier: MIT
#include "tmp-name-gen.h"

#include <gtest/gtest.h>

namespace {

struct Generator : TmpNameGen {
    using TmpNameGen::m_key;
    using TmpNameGen::m_sbox;
};

TEST(TmpNameGen, FollowsRc4WithIndicesRestartedPerName) {
    Generator gen;
    for (int i = 0; i < 256; ++i) {
        gen.m_key[i] = static_cast<unsigned char>("Key"[i % 3]);
    }
    TmpNameGen::rc4_init(gen.m_sbox, gen.m_key);
    // The published stream for "Key" begins with eb9f77 81b734. That is the first name, six bits a
    // letter of 0-9a-zA-Z-_. It would go on with ca72a7; the other names are what RC4 gives when
    // its indices, and not its state, start anew for each.
    for (const char *name : {"WVZTwrsQ", "lnIM_-bL", "FVonc5Qc"}) {
        EXPECT_STREQ(gen.getTmpName().c_str(), name);
    }
}

}  // namespace
