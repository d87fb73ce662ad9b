#include "ustring.h"

#include <gtest/gtest.h>

#include <new>
#include <regex>
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

/// Short and ASCII texts take shorter ways; lengths on both sides of every limit must not tell.
TEST(UstringTest, LengthsAndPlacesDoNotMatter) {
    for (const unsigned long n : {1UL, 7UL, 8UL, 9UL, 17UL, 255UL, 339UL, 340UL, 341UL, 1400UL}) {
        SCOPED_TRACE(n);
        const std::string plain(n, 'p');
        std::string accents, marks;
        for (unsigned long i = 0; i < n; ++i) {
            accents += "\xC3\xA9";
            marks += "e\xCC\x81";
        }
        for (const auto &[text, units] : {std::pair(plain, std::u16string(n, u'p')),
                                          std::pair(accents, std::u16string(n, u'\xE9'))}) {
            ustring s(text);
            EXPECT_EQ(units, utf16(s));
            ustring back(s.c_str_utf16());
            EXPECT_EQ(text, back.c_str());
            back += "\xFF";
            EXPECT_EQ(u"", utf16(back));
        }
        EXPECT_EQ(plain, ustring(plain).normalize(ustring::NFD).c_str());
        EXPECT_EQ(marks, ustring(accents).normalize(ustring::NFD).c_str());
        EXPECT_EQ(accents, ustring(marks).normalize(ustring::NFC).c_str());

        for (const unsigned long at : {0UL, n / 2, n - 1}) {
            ustring cut(plain), other(plain);
            other[at] = '\x81';
            EXPECT_EQ('p' - 0x81, ustring(plain).compare(other));
            EXPECT_EQ(0, ustring(plain).compare(other, at));
            EXPECT_EQ(at, other.find_first_not_of("opq", 0));
            EXPECT_EQ(at, other.find_last_not_of("opq", npos));
            EXPECT_EQ(at, other.rfind("\x81", npos));
            cut[at] = '\0';  // ends the text for comparisons and conversions
            EXPECT_EQ(std::u16string(at, u'p'), std::u16string(utf16(cut).c_str()));
            EXPECT_EQ(-'p', cut.compare(plain));
            expect_text(cut.normalize(ustring::NFC), plain.substr(0, at));
            other[at] = '\0';
            other[n - 1] = '\0';
            EXPECT_EQ(0, cut.compare(other));
            EXPECT_TRUE(cut == other && !(cut < other) && !(other < cut));
        }
    }
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
        if (std::string(c.s).size() < 2) {  // a NUL char is an empty needle
            check(*c.s);
        }
    }
    const std::string filler(1000, 'a');  // long texts are searched in another way
    const ustring text(filler + "aab" + filler + "b");
    EXPECT_EQ(999u, text.find("aaab", 0));
    EXPECT_EQ(2000u, text.find("aaab", 1000));
    EXPECT_EQ(npos, text.find("ba", 1003));
}

TEST(UstringTest, OrdersByUnsignedBytes) {
    const std::tuple<const char *, const char *, int, int> cases[] = {
        {"", "", 0, 0},
        {"AZ", "az", -32, 0},
        {"abc", "ab", 'c', 'c'},
        {"[", "{", -32, -32},
        {"@", "`", -32, -32},
        {"a", "\xC3", -98, -98},
        {"\xC3\x89", "\xC3\xA9", -32, -32}};
    for (const auto &[x, y, d, folded] : cases) {
        const ustring a(x), b(y);
        EXPECT_EQ(d, a.compare(b)) << x << ' ' << y;
        EXPECT_EQ(-d, ustring::compare(b, a, false)) << x << ' ' << y;
        EXPECT_EQ(folded, ustring::compare(a, b, true)) << x << ' ' << y;
        EXPECT_TRUE((a == b) == (d == 0) && (a != b) == (d != 0)) << x << ' ' << y;
        EXPECT_TRUE((a < b) == (d < 0) && (a > b) == (d > 0)) << x << ' ' << y;
    }
    EXPECT_EQ(0, ustring("abX").compare("abY", 2));
    EXPECT_EQ(-1, ustring("abX").compare("abY", 3));
}

TEST(UstringTest, EditsTakeAnySourceAndDropTheUtf16Form) {
    const auto check = [](const char *expected, auto edit) {
        ustring s("abcdef");
        s.c_str_utf16();
        edit(s);
        expect_text(s, expected);
    };
    const std::string cut("xy\0z", 4);
    check("abcdefbc", [](ustring &s) { s.append(ustring("abc"), 1, npos); });
    check("abcdefxy", [&](ustring &s) { s += cut; });
    check("abcdef\xC3\xA9x", [](ustring &s) { s += e_acute_x; });
    check("abcdef...", [](ustring &s) { s.append('.', 3); });
    check("xy", [](ustring &s) { s.assign("xyz", 2); });
    check("y", [&](ustring &s) { s.assign(cut, 1, npos); });
    check("\xC3\xA9x", [](ustring &s) { s.assign(e_acute_x, 9); });
    check("ab:def", [](ustring &s) { s.replace('c', ':'); });
    check("cd", [](ustring &s) { s.trim("bafe"); });
    check("", [](ustring &s) { s.clear(); });
    check("bcxd", [](ustring &s) { s = s.substr(1, 2) + "x" + 'd' + s.substr(6, npos); });
    // Its own buffers as well.
    check("abcdefcd", [](ustring &s) { s.append(s.c_str() + 2, 2); });
    check("abcdefabcdef", [](ustring &s) { s.append(s.c_str_utf16()); });
    check("abcdef", [](ustring &s) { s = s.c_str(); });
    check("ab", [](ustring &s) { s.assign(s.c_str(), 2); });
    check("bcd", [](ustring &s) { s.assign(s, 1, 3); });
    check("abc", [](ustring &s) { s.assign(s.c_str_utf16(), 3); });
    ustring doubled('a');  // often enough for its buffer to move
    for (int i = 0; i < 12; ++i) {
        doubled.append(doubled.c_str());
    }
    expect_text(doubled, std::string(4096, 'a'));
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
    EXPECT_EQ(5u, access::wide_length(s));  // an edit of the UTF-16 form keeps it
    EXPECT_EQ(6u, access::wide_capacity(s));
    EXPECT_EQ(8u, access::capacity(s));
    EXPECT_THROW(s.substr(9, 0), std::out_of_range);
    EXPECT_THROW(s.append('x', npos), std::bad_alloc);
    EXPECT_THROW(s.append(e_acute_x[0], npos / 2), std::bad_alloc);
    expect_text(s, "a\xC3\xA9x\xC3\xA9x");
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
    const std::regex warnings("(Warning: u_str(From|To)UTF8: error code 10 at line \\d+\n){2}");
    EXPECT_TRUE(std::regex_match(testing::internal::GetCapturedStderr(), warnings));
}

TEST(UstringTest, Normalizes) {
    for (const char *text : {"\xC3\xA9", "e\xCC\x81"}) {
        expect_text(ustring(text).normalize(ustring::NFC), "\xC3\xA9");
        expect_text(ustring::normalize(text, ustring::NFD), "e\xCC\x81");
    }
    expect_text(ustring::normalize("", ustring::NFC), "");
}

}  // namespace
