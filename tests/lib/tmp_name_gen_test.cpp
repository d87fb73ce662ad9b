// SPDX-License-Identifier: MIT
#include "tmp-name-gen.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <ctime>
#include <set>
#include <string>

namespace {

struct Generator : TmpNameGen {
    using TmpNameGen::m_key;
    using TmpNameGen::m_sbox;
    std::string name() { return getTmpName().c_str(); }
};

TEST(TmpNameGen, FollowsRc4WithIndicesRestartedPerName) {
    Generator gen;
    for (int i = 0; i < 256; ++i) {
        gen.m_key[i] = static_cast<unsigned char>("Key"[i % 3]);
    }
    TmpNameGen::rc4_init(gen.m_sbox, gen.m_key);
    // "Key" is a published test vector: eb9f77 81b734 and, without the restart, ca72a7.
    for (const char *name : {"WVZTwrsQ", "lnIM_-bL", "FVonc5Qc"}) {
        EXPECT_EQ(gen.name(), name);
    }
    gen.m_key[0] = 0;  // no seed at all
    TmpNameGen::rc4_init(gen.m_sbox, gen.m_key);
    EXPECT_GT(std::set<unsigned char>(gen.m_key, gen.m_key + 256).size(), 100U);
    memset(gen.m_sbox, 0, sizeof(gen.m_sbox));
    EXPECT_EQ(gen.name(), "00000000");
}

TEST(TmpNameGen, SeedsFromTheClockAndDrawsNewPaths) {
    Generator gen;
    usleep(10);  // into another microsecond
    Generator later;
    const std::string seed(reinterpret_cast<const char *>(gen.m_key));
    EXPECT_NEAR(static_cast<double>(time(nullptr)), std::stod(seed), 10);
    EXPECT_NE(seed, reinterpret_cast<const char *>(later.m_key));  // the microseconds follow
    TmpNameGen::rc4_init(later.m_sbox, gen.m_key);
    EXPECT_EQ(later.name(), gen.name());
    std::set<std::string> paths;
    for (int i = 0; i < 1000; ++i) {
        paths.insert(TmpNameGen::getInstance().getTmpPath("/tmp").c_str());
    }
    EXPECT_EQ(paths.size(), 1000U);
    EXPECT_EQ(paths.begin()->rfind("/tmp/", 0), 0U);
    EXPECT_EQ(paths.begin()->size(), 13U);
}

}  // namespace
