// SPDX-License-Identifier: MIT
#include "config.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>

namespace {

const std::string kPath = testing::TempDir() + "config_test_" + std::to_string(getpid());

/// What a map with an earlier entry holds after that text was read, as "key>value|key>value|".
std::string Read(const std::string &text) {
    Config config;
    config["old"] = "1";
    std::ofstream(kPath, std::ios::binary) << text;
    const int result = config.read(kPath);
    std::remove(kPath.c_str());
    std::string all = result == 0 ? "" : "refused|";
    for (const auto &[key, value] : config) {
        all.append(key.c_str()).append(">").append(value.c_str()).append("|");
    }
    return all;
}

TEST(ConfigTest, AcceptsLines) {
    const std::string filled = "a=" + std::string(8189, 'x');  // a longer line counts as two
    const std::string cases[][2] = {
        {"\n \t\v\f\r\n  # comment\n#\nname#x=1\nname", "old>1|"},
        {"pid=4711\r\nb=2", "b>2|old>1|pid>4711|"},
        {" \tname \t= \tvalue   # note\n", "name>value|old>1|"},
        {"A_z-0.9=1\na=\"two words\"#note\nb=''\n", "A_z-0.9>1|a>two words|b>|old>1|"},
        {"a='\"'\nb=\"'\" \n", "a>\"|b>'|old>1|"},
        {"a==b\nb=b=c\nc=#\nd=x'\"\n", "a>=b|b>b=c|c>#|d>x'\"|old>1|"},
        {"a=b#c\nb=b #c\n=value\n", ">value|a>b#c|b>b|old>1|"},
        {"a=\xC3\xA9\nb='\xFF'\n", "a>\xC3\xA9|b>\xFF|old>1|"},
        {"B=2\na=1\na=2\nold=3", "B>2|a>2|old>3|"},
        {filled + "b=1\n", "a>" + filled.substr(2) + "|b>1|old>1|"},
    };
    for (const auto &[text, expected] : cases) {
        EXPECT_EQ(expected, Read(text)) << text;
    }
    Config config;
    EXPECT_EQ(-1, config.read(kPath + "-missing"));
}

TEST(ConfigTest, OneMalformedLineEmptiesTheMap) {
    for (const std::string text :
         {"name\n", "name ", "name=", "name= \t\n", "name=two words\n", "a b=1\n", "[section]\n",
          "; note\n", "\xC3\xA9=1", "a #=1\n", "a=\"open\n", "a='open\"", "a='x'y\n", "a='x\ty'\n",
          "a=x\x7f\n", "a=x\x01\n", "a='\x7f'\n", "a=1\n\na;2\n", "a=1 ;\n"}) {
        EXPECT_EQ("refused|", Read("good=1\n" + text)) << text;
    }
    EXPECT_EQ("refused|", Read("a=" + std::string(8189, 'x') + "abc\n"));
}

TEST(ConfigTest, ReadsNumbers) {
    Config config;
    for (const auto &[text, number] : std::initializer_list<std::pair<const char *, int>>{
             {"4711", 4711}, {"12abc", 12}, {"-5", -5}, {"010", 10}, {"0x10", 0}, {"abc", 0}}) {
        config["a"] = text;
        EXPECT_EQ(number, config.get_int("a")) << text;
    }
    EXPECT_EQ(0, config.get_int("missing"));
}

}  // namespace
