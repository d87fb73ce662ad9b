// SPDX-License-Identifier: MIT
#include "ustring.h"

#include <gtest/gtest.h>

#include <fstream>
#include <new>
#include <random>
#include <regex>
#include <stdexcept>
#include <vector>

struct ustring_test_access {
    static unsigned long capacity(const ustring &s) { return s.m_data_cap; }
    static unsigned long wide_capacity(const ustring &s) { return s.m_wdata_cap; }
};

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

using access = ustring_test_access;
const unsigned short e_acute_x[] = {0xE9, 'x', 0};

TEST(UstringTest, DoesWhatTheModelDoes) {
    std::streambuf *const warnings = std::cerr.rdbuf(nullptr);  // about text that is not UTF-8
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        std::vector<uint8_t> input(random() % 200);
        for (uint8_t &byte : input) {
            byte = static_cast<uint8_t>(random());
        }
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::cerr.rdbuf(warnings);
}

TEST(UstringTest, BuffersFitTheText) {
    ustring s;
    EXPECT_EQ(4u, access::capacity(s));
    EXPECT_EQ(4u, access::wide_capacity(s));
    for (const auto &[text, capacity] : std::vector<std::pair<const char *, unsigned long>>{
             {"abc", 4}, {"abcd", 5}, {"abcdefghij", 11}, {"abcd", 11}, {"a", 2}}) {
        s = text;
        EXPECT_EQ(capacity, access::capacity(s)) << text;
    }
    s.append(e_acute_x, 9).append(e_acute_x, 9);
    EXPECT_EQ(6u, access::wide_capacity(s));
    EXPECT_EQ(8u, access::capacity(s));
    EXPECT_THROW(s.substr(9, 0), std::out_of_range);
    EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
    EXPECT_THROW(s.append(e_acute_x[0], ustring::npos / 2), std::bad_alloc);
    EXPECT_STREQ("a\xC3\xA9x\xC3\xA9x", s.c_str());
}

TEST(UstringTest, NulWithinEndsTheTextForComparisonsAndConversions) {
    for (const char *text : {"abcdefghij", "\xC3\xA9\xC3\xA9\xC3\xA9"}) {
        ustring cut(text), other(text);
        cut[4] = other[4] = '\0';
        other[5] = 'x';
        EXPECT_TRUE(cut == other);
        EXPECT_FALSE(cut < other);
        EXPECT_EQ(0, cut.compare(other));
        EXPECT_STREQ(cut.c_str(), ustring(cut.c_str_utf16()).c_str());
        EXPECT_STREQ(cut.c_str(), cut.normalize(ustring::NFC).c_str());
    }
}

/// Every warning gives the line of the call that failed.
TEST(UstringTest, WarnsOfTextThatIsNotUnicode) {
    const unsigned short lone_surrogate[] = {'a', 0xD800, 'b', 0};
    testing::internal::CaptureStderr();
    EXPECT_EQ(0, *ustring("a\xFF").c_str_utf16());
    EXPECT_STREQ("", (ustring("text") + lone_surrogate).c_str());
    const std::string said = testing::internal::GetCapturedStderr();
    const std::regex form("Warning: (u_str\\w+): error code 10 at line (\\d+)\n");
    std::vector<std::string> source, calls;
    std::ifstream file(USTRING_SOURCE);
    for (std::string line; std::getline(file, line);) {
        source.push_back(line);
    }
    for (std::sregex_iterator it(said.begin(), said.end(), form), end; it != end; ++it) {
        calls.push_back((*it)[1]);
        EXPECT_NE(std::string::npos, source.at(std::stoul((*it)[2]) - 1).find(calls.back() + "("));
    }
    EXPECT_EQ(std::vector<std::string>({"u_strFromUTF8", "u_strToUTF8"}), calls) << said;
}

}  // namespace
