#include "ustring.h"

#include <gtest/gtest.h>

#include <new>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <vector>

struct ustring_test_access {
    static unsigned long capacity(const ustring &s) { return s.m_data_cap; }
    static unsigned long wide_capacity(const ustring &s) { return s.m_wdata_cap; }
    static unsigned long wide_length(const ustring &s) { return s.m_wdata_len; }
};

namespace {

using access = ustring_test_access;
constexpr unsigned long npos = ustring::npos;
const unsigned short e_acute_x[] = {0xE9, 'x', 0};
const unsigned short lone_surrogate[] = {'a', 0xD800, 'b', 0};

std::u16string utf16(const ustring &s) {
    const unsigned short *units = s.c_str_utf16();
    EXPECT_EQ(0u, units[access::wide_length(s)]);
    return {units, units + access::wide_length(s)};
}

/// Both forms: a UTF-16 form that an edit left behind differs from that of a new string.
void expect_text(const ustring &s, const std::string &text) {
    EXPECT_EQ(text, s.c_str());
    EXPECT_EQ(text.size(), s.length());
    EXPECT_EQ(utf16(text), utf16(s)) << text;
}

TEST(UstringTest, SearchesFollowTheirRulesInEveryForm) {
    using positions = std::vector<unsigned long>;
    const struct {
        const char *text, *s;
        unsigned long pos;
        positions expected;  // in the order of the calls below
    } cases[] = {
        {"", "", 0, {npos, npos, npos, npos, npos, npos}},
        {"abc", "", 2, {2, 2, npos, 2, npos, 2}},
        {"abc", "", 3, {npos, 2, npos, npos, npos, 2}},
        {"/a/b", "/", npos, {npos, 2, npos, npos, 2, 3}},
        {"/a/b", "/", 0, {0, 0, 0, 1, 0, npos}},
        {"/a/b", "/", 3, {npos, 2, npos, 3, 2, 3}},
        {"aabab", "ab", 2, {3, 1, 2, npos, 2, npos}},
        {"ab", "abc", 0, {npos, npos, 0, npos, 0, npos}},
        {"x\xA9\xC3", "\xC3\xA9", npos, {npos, npos, npos, npos, 2, 0}},
    };
    for (const auto &c : cases) {
        const ustring text(c.text);
        const auto check = [&](const auto &s) {
            EXPECT_EQ(c.expected,
                      positions({text.find(s, c.pos), text.rfind(s, c.pos),
                                 text.find_first_of(s, c.pos), text.find_first_not_of(s, c.pos),
                                 text.find_last_of(s, c.pos), text.find_last_not_of(s, c.pos)}))
                << "'" << c.s << "' in '" << c.text << "' from " << c.pos;
        };
        check(c.s), check(ustring(c.s)), check(std::string(c.s));
        if (std::string(c.s).size() < 2)  // a NUL char is an empty needle
            check(*c.s);
    }
    const std::string filler(1000, 'a');  // long texts are searched in another way
    const ustring text(filler + "aab" + filler + "b");
    EXPECT_EQ(positions({999, 2000, 1500, npos}),
              positions({text.find("aaab", 0), text.find("aaab", 1000), text.find("", 1500),
                         text.find("ba", 1003)}));
}

TEST(UstringTest, TrimsBytesOfTheSet) {
    const char *const cases[][5] = {// text, set, text without the leading/trailing/both
                                    {"abcab", "ab", "cab", "abc", "c"},
                                    {"   ", " ", "", "", ""},
                                    {"", " ", "", "", ""},
                                    {" a ", "", " a ", " a ", " a "}};
    for (const auto &[text, set, without_leading, without_trailing, without_both] : cases) {
        ustring left(text), right(text), both(text);
        both.c_str_utf16();
        left.ltrim(set), right.rtrim(ustring(set)), both.trim(set);
        expect_text(left, without_leading);
        expect_text(right, without_trailing);
        expect_text(both, without_both);
    }
}

TEST(UstringTest, OrdersByUnsignedBytes) {
    const struct {
        const char *a, *b;
        int difference, folded;
    } cases[] = {{"", "", 0, 0},
                 {"AZ", "az", -32, 0},
                 {"abc", "ab", 'c', 'c'},
                 {"a", "\xC3", 'a' - 0xC3, 'a' - 0xC3},
                 {"[", "{", -32, -32},
                 {"\xC3\x89", "\xC3\xA9", -32, -32},
                 {"@", "`", '@' - '`', -32},
                 {"_", "A", 30, '_' - 'a'}};
    for (const auto &[x, y, d, folded] : cases) {
        SCOPED_TRACE(testing::Message() << "'" << x << "' and '" << y << "'");
        const ustring a(x), b(y);
        EXPECT_EQ(std::make_tuple(d, -d, folded),
                  std::make_tuple(a.compare(b), ustring::compare(b, a, false),
                                  ustring::compare(a, b, true)));
        EXPECT_EQ(std::make_tuple(d == 0, d != 0, d<0, d> 0, d <= 0, d >= 0),
                  std::make_tuple(a == b, a != b, a<b, a> b, a <= b, a >= b));
    }
    EXPECT_EQ(0, ustring("abX").compare("abY", 2));
    EXPECT_EQ(-1, ustring("abX").compare("abY", 3));
}

/// Appends to one text and replaces another, both with their UTF-16 form built.
template <typename... Source>
void expect_source(const std::string &text, const Source &...source) {
    ustring appended("1"), assigned("longer than before");
    appended.c_str_utf16(), assigned.c_str_utf16();
    if constexpr (sizeof...(source) > 1)
        appended.append(source...), assigned.assign(source...);
    else
        ((appended += source, assigned = source), ...);
    expect_text(appended, "1" + text);
    expect_text(assigned, text);
}

TEST(UstringTest, TakesEveryKindOfSource) {
    const std::string cut("ab\0cd", 5);
    const unsigned short unit = 0xE9;
    expect_source("bc", ustring("abc"), 1UL, npos);
    expect_source("ab", "abc", 2UL);
    expect_source("\xC3\xA9", e_acute_x, 1UL);
    expect_source("\xC3\xA9x", e_acute_x, 9UL);
    expect_source("b", cut, 1UL, npos);
    expect_source("xxx", 'x', 3UL);
    expect_source("\xC3\xA9\xC3\xA9", unit, 2UL);
    expect_source("ab", ustring("ab"));
    expect_source("ab", cut);
    expect_source("ab", "ab");
    expect_source("\xC3\xA9x", e_acute_x);
    expect_source("\xC3\xA9", unit);
    expect_source("x", 'x');
    expect_text(ustring('x') + ustring(cut) + "b" + 'c' + e_acute_x + unit,
                "xabbc\xC3\xA9x\xC3\xA9");
    expect_text(ustring("abcd").substr(1, 2) + ustring("abc").substr(3, npos), "bc");
}

TEST(UstringTest, AcceptsItsOwnBuffersAsSource) {
    const auto check = [](const char *expected, auto edit) {
        ustring s("abcdef");
        s.c_str_utf16();
        edit(s);
        expect_text(s, expected);
    };
    check("abcdefabcdef", [](ustring &s) { s.append(s.c_str()); });
    check("abcdefcd", [](ustring &s) { s.append(s.c_str() + 2, 2); });
    check("abcdefabcdef", [](ustring &s) { s.append(s.c_str_utf16()); });
    check("abcdef", [](ustring &s) { s = *&s; });
    check("abcdef", [](ustring &s) { s = s.c_str(); });
    check("ab", [](ustring &s) { s.assign(s.c_str(), 2); });
    check("bcd", [](ustring &s) { s.assign(s, 1, 3); });
    check("abc", [](ustring &s) { s.assign(s.c_str_utf16(), 3); });
}

TEST(UstringTest, EditsDropTheUtf16Form) {
    ustring s("/ab"), other(e_acute_x);
    EXPECT_EQ(u"/ab", utf16(s));
    s.replace('/', ':');
    EXPECT_EQ(u":ab", utf16(s));
    s[1] = 'c';
    EXPECT_EQ(u":cb", utf16(s));
    swap(s, other);
    EXPECT_EQ(u"\u00E9x", utf16(s));
    expect_text(other, ":cb");
    s.clear();
    expect_text(s, "");
}

TEST(UstringTest, BuffersFitTheText) {
    ustring s;
    EXPECT_EQ(4u, access::capacity(s));
    EXPECT_EQ(4u, access::wide_capacity(s));
    const std::pair<const char *, unsigned long> cases[] = {
        {"abc", 4}, {"abcd", 5}, {"abcdefghij", 11}, {"abcd", 11}, {"a", 2}};
    for (const auto &[text, capacity] : cases) {
        s = text;
        EXPECT_EQ(capacity, access::capacity(s)) << text;
    }
    s.append(e_acute_x, 9).append(e_acute_x, 9);
    EXPECT_EQ(5u, access::wide_length(s));  // an edit of the UTF-16 form keeps it
    EXPECT_EQ(6u, access::wide_capacity(s));
    EXPECT_EQ(8u, access::capacity(s));
}

TEST(UstringTest, ThrowsOnBadPositionsAndSizes) {
    ustring s("abc");
    EXPECT_THROW(s.append(s, 4, 1), std::out_of_range);
    EXPECT_THROW(s.append(std::string(), 1, 1), std::out_of_range);
    for (const unsigned long n : {npos, npos / 2}) {
        EXPECT_THROW(s.append('x', n), std::bad_alloc) << n;
        EXPECT_THROW(s.append(e_acute_x[0], n), std::bad_alloc) << n;
        expect_text(s, "abc");
    }
}

TEST(UstringTest, ReportsTextThatIsNotUnicode) {
    EXPECT_TRUE(ustring::is_valid("") && ustring::is_valid("\xC3\xA9"));
    EXPECT_FALSE(ustring::is_valid("a\xFF"));
    testing::internal::CaptureStderr();
    ustring s("a\xFF");
    EXPECT_EQ(u"", utf16(s));
    EXPECT_STREQ("a\xFF", s.c_str());
    s = "text";
    s += lone_surrogate;
    expect_text(s, "");
    const std::string warnings = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::regex_match(
        warnings, std::regex("Warning: u_strFromUTF8: error code 10 at line [0-9]+\n"
                             "Warning: u_strToUTF8: error code 10 at line [0-9]+\n")))
        << warnings;
}

TEST(UstringTest, Normalizes) {
    const char *const cases[][3] = {{"", "", ""},
                                    {"e\xCC\x81", "\xC3\xA9", "e\xCC\x81"},
                                    {"\xC3\xA9", "\xC3\xA9", "e\xCC\x81"}};
    for (const auto &[text, composed, decomposed] : cases) {
        expect_text(ustring(text).normalize(ustring::NFC), composed);
        expect_text(ustring::normalize(text, ustring::NFD), decomposed);
    }
}

TEST(UstringTest, StreamsWords) {
    std::stringstream stream;
    stream << ustring(" \xC3\xA9t\xC3\xA9 ") << ustring("b");
    ustring a("old"), b;
    stream >> a >> b;
    expect_text(a + "," + b, "\xC3\xA9t\xC3\xA9,b");
}

}  // namespace
