// SPDX-License-Identifier: MIT
#include "config.h"

#include "test-support.h"

namespace {

using ConfigTest = HomeTest;

/// What a map with an earlier entry holds after that text was read, as "key>value key>value ".
std::string Read(const std::string &text) {
    WriteFile("file", text);
    Config config;
    config["old"] = "1";
    std::string all = config.read("file") == 0 ? "" : "refused ";
    for (const auto &[key, value] : config) {
        all.append(key.c_str()).append(">").append(value.c_str()).append(" ");
    }
    fs::remove("file");
    EXPECT_EQ(config.read("file"), -1);
    EXPECT_EQ(config.read(""), -1);
    return all;
}

TEST_F(ConfigTest, AcceptsLines) {
    const std::string filled(8189, 'x');  // a longer line would count as two
    const std::string cases[][2] = {
        {"\n \t\v\f\r\n  # comment\n#\nname#x=1\nname", "old>1 "},
        {" \tname \t= \tvalue   # note\r\nb=2", "b>2 name>value old>1 "},
        {"AZaz09-_.=1\na=\"two words\"#note\nb=''\n", "AZaz09-_.>1 a>two words b> old>1 "},
        {"a='\"'\nb=\"'\" \nc=b #c\n", "a>\" b>' c>b old>1 "},
        {"=\xFF\na=b#c\nb=b=c\nc=#\nd==x'\"\n", ">\xFF a>b#c b>b=c c># d>=x'\" old>1 "},
        {"B=2\na=1\na=2\nold=3", "B>2 a>2 old>3 "},
        {"a=" + filled + "b=1\n", "a>" + filled + " b>1 old>1 "},
    };
    for (const auto &[text, expected] : cases) {
        EXPECT_EQ(expected, Read(text)) << text;
    }
}

TEST_F(ConfigTest, OneMalformedLineEmptiesTheMap) {
    for (const char *text : {"name ", "name=", "name= \t\n", "a=two words\n", "a b=1\n", "[a]\n",
                             "; note\n", "\xC3\xA9=1", "a #=1\n", "a=\"open\n", "a='open\"",
                             "a='x'y\n", "a='\t'\n", "a=x\x7f\n", "a=x\x01\n", "a=1\n\na;2\n"}) {
        EXPECT_EQ("refused ", Read(std::string("good=1\n") + text)) << text;
    }
}

}  // namespace
