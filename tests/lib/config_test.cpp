#include "config.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

class ConfigTest : public testing::Test {
protected:
    ConfigTest() {
        std::string folder = testing::TempDir() + "config_test_XXXXXX";
        if (mkdtemp(folder.data()) == nullptr)
            throw std::runtime_error("mkdtemp " + folder);
        m_folder = folder;
    }
    ~ConfigTest() override { std::filesystem::remove_all(m_folder); }

    int read(const std::string &text) {
        std::ofstream(m_folder + "/config", std::ios::binary) << text;
        return m_config.read(m_folder + "/config");
    }
    /// The map as "key>value|key>value|".
    std::string entries() const {
        std::string all;
        for (const auto &entry : m_config)
            all.append(entry.first.c_str()).append(">").append(entry.second.c_str()).append("|");
        return all;
    }

    std::string m_folder;
    Config m_config;
};

TEST_F(ConfigTest, AcceptsLines) {
    const struct {
        const char *text, *entries;
    } cases[] = {
        {"", ""},
        {"\n \t\v\f\r\n  # comment\n#\nname#x=1\nname", ""},
        {"pid=4711", "pid>4711|"},
        {"a=1\r\nb=2\r\n", "a>1|b>2|"},
        {" \tname \t= \tvalue   # note\n", "name>value|"},
        {"A_z-0.9=1\n", "A_z-0.9>1|"},
        {"a=\"two words\"#note\nb=''\n", "a>two words|b>|"},
        {"a='\"'\nb=\"'\" \n", "a>\"|b>'|"},
        {"a==b\nb=b=c\nc=#\nd=x'\"\n", "a>=b|b>b=c|c>#|d>x'\"|"},
        {"a=b#c\nb=b #c\n", "a>b#c|b>b|"},
        {"=value\n", ">value|"},
        {"a=\xC3\xA9\nb='\xFF'\n", "a>\xC3\xA9|b>\xFF|"},
        {"b=1\nB=2\na=1\na=2\n", "B>2|a>2|b>1|"},
    };
    for (const auto &c : cases) {
        m_config.clear();
        EXPECT_EQ(0, read(c.text)) << c.text;
        EXPECT_EQ(c.entries, entries()) << c.text;
    }
}

TEST_F(ConfigTest, OneMalformedLineEmptiesTheMap) {
    const char *const errors[] = {
        "name\n",      "name ",        "name=",      "name= \t\n", "name=two words\n", "a b=1\n",
        "[section]\n", "; note\n",     "\xC3\xA9=1", "a #=1\n",    "a=\"open\n",       "a='open\"",
        "a='x'y\n",    "a='x\ty'\n",   "a=\x7f\n",   "a=x\x7f\n",  "a=x\x01\n",        "a=\x01\n",
        "a='\x7f'\n",  "a=1\n\na;2\n", "a=1 ;\n",
    };
    for (const char *text : errors) {
        m_config["earlier"] = "entry";
        EXPECT_EQ(-1, read(std::string("good=1\n") + text)) << text;
        EXPECT_EQ("", entries()) << text;
    }
}

TEST_F(ConfigTest, KeepsEarlierEntriesUnlessALineIsMalformed) {
    EXPECT_EQ(0, read("a=1\nb=1\n"));
    EXPECT_EQ(0, read("b=2\n"));
    EXPECT_EQ(-1, m_config.read(""));
    EXPECT_EQ(-1, m_config.read(m_folder + "/missing"));
    EXPECT_EQ("a>1|b>2|", entries());
}

TEST_F(ConfigTest, SplitsLongLines) {
    const std::string filled = "a=" + std::string(8189, 'x');
    EXPECT_EQ(0, read(filled + "b=1\n"));
    EXPECT_EQ(filled.substr(2), m_config["a"].c_str());
    EXPECT_EQ(1, m_config.get_int("b"));
    EXPECT_EQ(-1, read(filled + "abc\n"));
}

TEST_F(ConfigTest, ParseTerminatesKeyAndValueInPlace) {
    char line[] = " k = 'v' # note\n";
    ustring key, value;
    EXPECT_EQ(0, m_config.parse(line, static_cast<int>(sizeof(line) - 1), key, value));
    EXPECT_STREQ("k", line + 1);
    EXPECT_STREQ("v", line + 6);
}

TEST_F(ConfigTest, ReadsNumbers) {
    const struct {
        const char *value;
        int number;
    } cases[] = {{"4711", 4711}, {"12abc", 12}, {"-5", -5}, {"+7", 7},
                 {"010", 10},    {"0x10", 0},   {"abc", 0}, {" 3", 3}};
    for (const auto &c : cases) {
        m_config["n"] = c.value;
        EXPECT_EQ(c.number, m_config.get_int("n")) << c.value;
    }
    EXPECT_EQ(0, m_config.get_int("missing"));
    EXPECT_EQ(1u, m_config.count("missing"));
}

}  // namespace
