#include "tmp-name-gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
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
    unsigned char key[256];
    for (int i = 0; i < 256; ++i) {
        key[i] = static_cast<unsigned char>("Key"[i % 3]);
    }
    Generator gen;
    TmpNameGen::rc4_init(gen.m_sbox, key);
    // "Key" is a published test vector: eb9f77 81b734 and, without the restart, ca72a7.
    for (const char *name : {"WVZTwrsQ", "lnIM_-bL", "FVonc5Qc"}) {
        EXPECT_EQ(gen.name(), name);
    }
}

TEST(TmpNameGen, SeedsFromTheClock) {
    const time_t before = time(nullptr);
    Generator gen;
    const char *text = reinterpret_cast<const char *>(gen.m_key);
    unsigned long seconds = 0;
    unsigned long micros = 0;
    int length = 0;
    ASSERT_EQ(sscanf(text, "%lu-%lu%n", &seconds, &micros, &length), 2) << text;
    EXPECT_TRUE(std::all_of(gen.m_key + length, gen.m_key + 256, [](int c) { return c == 0; }));
    EXPECT_GE(static_cast<time_t>(seconds), before);
    EXPECT_LE(static_cast<time_t>(seconds), time(nullptr));
    EXPECT_LT(micros, 1000000UL);

    Generator same;
    TmpNameGen::rc4_init(same.m_sbox, gen.m_key);
    EXPECT_EQ(same.name(), gen.name());
}

TEST(TmpNameGen, EncodesTheEndsOfTheAlphabet) {
    Generator gen;
    memset(gen.m_sbox, 0xff, sizeof(gen.m_sbox));
    EXPECT_EQ(gen.name(), "________");
    memset(gen.m_sbox, 0, sizeof(gen.m_sbox));
    EXPECT_EQ(gen.name(), "00000000");
}

TEST(TmpNameGen, PathsAreTheFolderAndANewName) {
    std::set<std::string> paths;
    for (int i = 0; i < 1000; ++i) {
        const std::string path = TmpNameGen::getInstance().getTmpPath("/tmp").c_str();
        EXPECT_EQ(path.substr(0, 5), "/tmp/");
        EXPECT_EQ(path.size(), 13U);
        EXPECT_TRUE(paths.insert(path).second) << path;
    }
    EXPECT_EQ(TmpNameGen::getInstance().getTmpPath("").find_last_of('/', ustring::npos), 0U);
}

}  // namespace
