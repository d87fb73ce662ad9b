// SPDX-License-Identifier: MIT
#include "ustring.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

struct ustring_test_access {
    static unsigned long bytes(const ustring &s) { return s.m_data_cap; }
    static unsigned long units(const ustring &s) { return s.m_wdata_cap; }
};

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

using capacity = ustring_test_access;

TEST(UstringTest, DoesWhatTheModelDoes) {
    std::ostringstream said;
    std::streambuf *const usual = std::cerr.rdbuf(said.rdbuf());
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        uint8_t input[200];
        std::generate(std::begin(input), std::end(input), std::ref(random));
        LLVMFuzzerTestOneInput(input, random() % sizeof(input));
    }
    std::cerr.rdbuf(usual);
    EXPECT_NE(said.str().npos, said.str().find("Warning: u_strFromUTF8: error code 10 at line "));
    EXPECT_NE(said.str().npos, said.str().find("Warning: u_strToUTF8: error code 10 at line "));
}

TEST(UstringTest, BuffersFitTheText) {
    ustring s;
    const std::pair<const char *, unsigned long> cases[] = {
        {"abc", 4}, {"abcd", 5}, {"abcdefghij", 11}, {"abcd", 11}, {"a", 2}};
    for (const auto &[text, bytes] : cases) {
        s = text;
        EXPECT_EQ(bytes, capacity::bytes(s)) << text;
    }
    EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
    EXPECT_THROW(s.substr(2, 0), std::out_of_range);
    for (const unsigned long n : {10UL, 2000UL}) {
        for (const unsigned short unit : {u'x', u'\xE9'}) {
            ustring wide;
            wide.append(unit, n);
            EXPECT_EQ(wide.length() + 1, capacity::bytes(wide));
            const ustring narrow(wide.c_str());
            narrow.c_str_utf16();
            EXPECT_EQ(n + 1, capacity::units(narrow));
        }
    }
}

TEST(UstringTest, FoldsAsciiAndReadsWords) {
    for (int a = 1; a < 256; ++a) {
        for (int b = 1; b < 256; ++b) {
            EXPECT_EQ(tolower(a) - tolower(b), ustring::compare(char(a), char(b), true));
        }
    }
    EXPECT_GT(ustring::compare("aB", "Aa", true), 0);
    std::stringstream stream;
    ustring word;
    stream << ustring("one two");
    stream >> word;
    EXPECT_STREQ("one", word.c_str());
}

}  // namespace
