#include "config.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <utility>

namespace {

class ConfigTest : public testing::Test {
protected:
    ~ConfigTest() override { std::remove(m_path.c_str()); }

    int read(const std::string &text) {
        std::ofstream(m_path, std::ios::binary) << text;
        return m_config.read(m_path);
    }
    /// The map as "key>value|key>value|".
    std::string entries() const {
        std::string all;
        for (const auto &[key, value] : m_config) {
            all.append(key.c_str()).append(">").append(value.c_str()).append("|");
        }
        return all;
    }

    const std::string m_path = testing::TempDir() + "config_test_" + std::to_string(getpid());
    Config m_config;
};

TEST_F(ConfigTest, AcceptsLines) {
    const char *const cases[][2] = {
        {"\n \t\v\f\r\n  # comment\n#\nname#x=1\nname", ""},
        {"pid=4711\r\nb=2", "b>2|pid>4711|"},
        {" \tname \t= \tvalue   # note\n", "name>value|"},
        {"A_z-0.9=1\na=\"two words\"#note\nb=''\n", "A_z-0.9>1|a>two words|b>|"},
        {"a='\"'\nb=\"'\" \n", "a>\"|b>'|"},
        {"a==b\nb=b=c\nc=#\nd=x'\"\n", "a>=b|b>b=c|c>#|d>x'\"|"},
        {"a=b#c\nb=b #c\n=value\n", ">value|a>b#c|b>b|"},
        {"a=\xC3\xA9\nb='\xFF'\n", "a>\xC3\xA9|b>\xFF|"},
        {"b=1\nB=2\na=1\na=2\n", "B>2|a>2|b>1|"},
    };
    for (const auto &[text, expected] : cases) {
        m_config.clear();
        EXPECT_EQ(0, read(text)) << text;
        EXPECT_EQ(expected, entries()) << text;
    }
}

TEST_F(ConfigTest, OneMalformedLineEmptiesTheMap) {
    for (const char *text :
         {"name\n", "name ", "name=", "name= \t\n", "name=two words\n", "a b=1\n", "[section]\n",
          "; note\n", "\xC3\xA9=1", "a #=1\n", "a=\"open\n", "a='open\"", "a='x'y\n", "a='x\ty'\n",
          "a=x\x7f\n", "a=x\x01\n", "a='\x7f'\n", "a=1\n\na;2\n", "a=1 ;\n"}) {
        m_config["earlier"] = "entry";
        EXPECT_EQ(-1, read(std::string("good=1\n") + text)) << text;
        EXPECT_EQ("", entries()) << text;
    }
}

TEST_F(ConfigTest, KeepsEarlierEntriesUnlessALineIsMalformed) {
    EXPECT_EQ(0, read("a=1\nb=1\n") + read("b=2\n"));
    EXPECT_EQ(-1, m_config.read(m_path + "-missing"));
    EXPECT_EQ("a>1|b>2|", entries());
}

TEST_F(ConfigTest, SplitsLongLines) {
    const std::string filled = "a=" + std::string(8189, 'x');
    EXPECT_EQ(0, read(filled + "b=1\n"));
    EXPECT_EQ("a>" + filled.substr(2) + "|b>1|", entries());
    EXPECT_EQ(-1, read(filled + "abc\n"));
}

TEST_F(ConfigTest, ReadsNumbers) {
    read("a=4711\nb=12abc\nc=-5\nd=010\ne=0x10\nf=abc\n");
    const std::pair<const char *, int> cases[] = {{"a", 4711}, {"b", 12}, {"c", -5},     {"d", 10},
                                                  {"e", 0},    {"f", 0},  {"missing", 0}};
    for (const auto &[key, number] : cases) {
        EXPECT_EQ(number, m_config.get_int(key)) << key;
    }
}

}  // namespace
