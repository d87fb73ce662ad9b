// SPDX-License-Identifier: MIT
#include "config.h"

#include "test-support.h"

namespace {

using ConfigTest = HomeTest;
using Pairs = std::map<ustring, ustring>;

TEST_F(ConfigTest, ReadsLines) {
    // With "a=" before it, as long as a line may be.
    const std::string filled(8189, 'x');
    const struct {
        const char *what;
        std::string text;
        Pairs expected;
    } cases[] = {
        {"no key at all", "\n \t\v\f\r\n  # comment\n#\n", {}},
        {"a name that '#' or the end cuts off", "name#x=1\nname", {}},
        {"blanks and a note",
         " \tname \t= \tvalue   # note\r\nb=2",
         {{"b", "2"}, {"name", "value"}}},
        {"all that a key may hold", "AZaz09-_.=1\n", {{"AZaz09-_.", "1"}}},
        {"quotes", "a=\"two words\"#note\nb=''\n", {{"a", "two words"}, {"b", ""}}},
        {"quotes in quotes", "a='\"'\nb=\"'\" \n", {{"a", "\""}, {"b", "'"}}},
        {"marks in values",
         "a=b#c\nb=b=c\nc=#\nd==x'\"",
         {{"a", "b#c"}, {"b", "b=c"}, {"c", "#"}, {"d", "=x'\""}}},
        {"the last of a key", "a=1\nB=2\na=2\n", {{"a", "2"}, {"B", "2"}}},
        {"too long a line is two", "a=" + filled + "b=1\n", {{"a", filled}, {"b", "1"}}},
    };
    for (const auto &row : cases) {
        WriteFile("file", row.text);
        Config config;
        EXPECT_EQ(config.read("file"), 0) << row.what;
        EXPECT_EQ(config, row.expected) << row.what;
    }
}

TEST_F(ConfigTest, OneMalformedLineEmptiesTheMap) {
    const struct {
        const char *what, *line;
    } rows[] = {
        {"a name and a blank, no =", "name "},
        {"no value", "name= \t\n"},
        {"two words", "a=two words\n"},
        {"a letter beyond ASCII in the key", "\xC3\xA9=1"},
        {"a quote that stays open", "a=\"open\n"},
        {"text behind the quote", "a='x'y\n"},
        {"a tab in quotes", "a='\t'\n"},
        {"a control character behind the value", "a=x\x7f\n"},
    };
    for (const auto &row : rows) {
        WriteFile("file", std::string("good=1\n") + row.line);
        Config config;
        EXPECT_EQ(config.read("file"), -1) << row.what;
        EXPECT_EQ(config, Pairs()) << row.what;
    }
}

TEST_F(ConfigTest, EarlierEntriesStay) {
    WriteFile("file", "again=2\n");
    Config config;
    config["old"] = config["again"] = "1";
    EXPECT_EQ(config.read("file"), 0);
    EXPECT_EQ(config.read("missing"), -1);
    EXPECT_EQ(config, (Pairs{{"old", "1"}, {"again", "2"}}));
}

}  // namespace
