#include "ustring.h"

#include <gtest/gtest.h>

#include <new>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <vector>

// An allocation no machine can serve returns null below the sanitizers too, as it does without.
extern "C" const char *__asan_default_options() {
    return "allocator_may_return_null=1";
}
extern "C" const char *__tsan_default_options() {
    return "allocator_may_return_null=1";
}

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

std::vector<unsigned> utf16(const ustring &s) {
    const unsigned short *units = s.c_str_utf16();
    return {units, units + access::wide_length(s)};
}

void expect_text(const ustring &s, const std::string &text) {
    EXPECT_EQ(text, s.c_str());
    EXPECT_EQ(text.size(), s.length());
}

TEST(UstringTest, SearchesFollowTheirRulesInEveryForm) {
    using positions = std::vector<unsigned long>;
    const struct {
        const char *text, *s;
        unsigned long pos;
        positions expected;  // in the order of the calls below
    } cases[] = {
        {"", "", 0, {npos, npos, npos, npos, npos, npos}},
        {"", "a", npos, {npos, npos, npos, npos, npos, npos}},
        {"abc", "", 0, {0, 0, npos, 0, npos, 0}},
        {"abc", "", 2, {2, 2, npos, 2, npos, 2}},
        {"abc", "", 3, {npos, 2, npos, npos, npos, 2}},
        {"/a/b", "/", npos, {npos, 2, npos, npos, 2, 3}},
        {"/a/b", "/", 0, {0, 0, 0, 1, 0, npos}},
        {"/a/b", "/", 3, {npos, 2, npos, 3, 2, 3}},
        {"aabab", "ab", 0, {1, npos, 0, npos, 0, npos}},
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
        check(c.s);
        check(ustring(c.s));
        check(std::string(c.s));
        if (std::string(c.s).size() < 2)  // a NUL char is an empty needle
            check(*c.s);
    }
}

TEST(UstringTest, FindsInLongTexts) {
    const std::string filler(1000, 'a');
    const ustring text(filler + "aab" + filler + "b");
    EXPECT_EQ(999u, text.find("aaab", 0));
    EXPECT_EQ(2000u, text.find("aaab", 1000));
    EXPECT_EQ(1500u, text.find("", 1500));
    EXPECT_EQ(npos, text.find("ba", 1003));
}

TEST(UstringTest, TrimsBytesOfTheSet) {
    const struct {
        const char *text, *set, *left, *right, *both;
    } cases[] = {
        {"abcab", "ab", "cab", "abc", "c"},       {"   ", " ", "", "", ""},  {"", " ", "", "", ""},
        {" a b ", "", " a b ", " a b ", " a b "}, {"a", " ", "a", "a", "a"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "'" << c.text << "' without '" << c.set << "'");
        ustring left(c.text), right(c.text), both(c.text);
        both.c_str_utf16();
        left.ltrim(c.set), right.rtrim(ustring(c.set)), both.trim(c.set);
        expect_text(left, c.left);
        expect_text(right, c.right);
        expect_text(both, c.both);
        EXPECT_EQ(both.length(), utf16(both).size());
    }
}

TEST(UstringTest, OrdersByUnsignedBytes) {
    const struct {
        const char *a, *b;
        int difference, folded;
    } cases[] = {
        {"", "", 0, 0},
        {"ABC", "abc", -32, 0},
        {"abc", "ab", 'c', 'c'},
        {"[Z", "[z", -32, 0},
        {"a", "\xC3", 'a' - 0xC3, 'a' - 0xC3},
        {"\xC3\x89", "\xC3\xA9", -32, -32},
        {"@", "`", -32, -32},
        {"_", "A", 30, '_' - 'a'},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "'" << c.a << "' and '" << c.b << "'");
        const ustring a(c.a), b(c.b);
        EXPECT_EQ(c.difference, a.compare(b));
        EXPECT_EQ(-c.difference, ustring::compare(b, a, false));
        EXPECT_EQ(c.folded, ustring::compare(a, b, true));
        const int d = c.difference;
        EXPECT_EQ(std::make_tuple(d == 0, d != 0, d<0, d> 0, d <= 0, d >= 0),
                  std::make_tuple(a == b, a != b, a<b, a> b, a <= b, a >= b));
    }
    EXPECT_EQ(0, ustring("abX").compare("abY", 2));
    EXPECT_EQ(-1, ustring("abX").compare("abY", 3));
}

TEST(UstringTest, TakesEveryKindOfSource) {
    const std::string cut("ab\0cd", 5);
    const unsigned short unit = 0xE9;
    const ustring one("1");
    // Each form appends to a text and replaces one whose UTF-16 form is built.
    const auto check = [&](const std::string &text, auto append, auto assign) {
        ustring appended(one), assigned("longer than before");
        appended.c_str_utf16();
        assigned.c_str_utf16();
        expect_text(append(appended), "1" + text);
        expect_text(assign(assigned), text);
        EXPECT_EQ(utf16(ustring(appended)), utf16(appended)) << text;
        EXPECT_EQ(utf16(ustring(assigned)), utf16(assigned)) << text;
    };
#define CHECK_COUNTED(text, ...)                                 \
    check(                                                       \
        text, [&](ustring &s) { return s.append(__VA_ARGS__); }, \
        [&](ustring &s) { return s.assign(__VA_ARGS__); })
#define CHECK_WHOLE(text, x) \
    check(                   \
        text, [&](ustring &s) { return s += x; }, [&](ustring &s) { return s = x; })
    CHECK_COUNTED("bc", ustring("abc"), 1, npos);
    CHECK_COUNTED("ab", "abc", 2);
    CHECK_COUNTED("\xC3\xA9", e_acute_x, 1);
    CHECK_COUNTED("\xC3\xA9x", e_acute_x, 9);
    CHECK_COUNTED("b", cut, 1, npos);
    CHECK_COUNTED("xxx", 'x', 3);
    CHECK_COUNTED("\xC3\xA9\xC3\xA9", unit, 2);
    CHECK_WHOLE("1", one);
    CHECK_WHOLE("ab", cut);
    CHECK_WHOLE("ab", "ab");
    CHECK_WHOLE("\xC3\xA9x", e_acute_x);
    CHECK_WHOLE("\xC3\xA9", unit);

    expect_text(ustring('x') + one + "b" + 'c' + e_acute_x + unit, "x1bc\xC3\xA9x\xC3\xA9");
    expect_text(ustring(e_acute_x) + ustring(cut), "\xC3\xA9xab");
    expect_text(ustring("abcd").substr(1, 2), "bc");
    expect_text(ustring("abc").substr(3, npos), "");
}

TEST(UstringTest, AcceptsItsOwnBuffersAsSource) {
    const auto check = [](const char *expected, auto edit) {
        ustring s("abcdef");
        s.c_str_utf16();
        edit(s);
        expect_text(s, expected);
        EXPECT_EQ(std::string(expected).size(), utf16(s).size()) << expected;
    };
    check("abcdefabcdef", [](ustring &s) { s.append(s.c_str()); });
    check("abcdefcd", [](ustring &s) { s.append(s.c_str() + 2, 2); });
    check("abcdefabcdef", [](ustring &s) { s.append(s.c_str_utf16()); });
    check("abcdef", [](ustring &s) { s = *&s; });
    check("abcdef", [](ustring &s) { s = s.c_str(); });
    check("ab", [](ustring &s) { s.assign(s.c_str(), 2); });
    check("ef", [](ustring &s) { s = s.c_str() + 4; });
    check("bcd", [](ustring &s) { s.assign(s, 1, 3); });
    check("abc", [](ustring &s) { s.assign(s.c_str_utf16(), 3); });
}

TEST(UstringTest, EditsDropTheUtf16Form) {
    ustring s("/ab"), other(e_acute_x);
    s.c_str_utf16();
    s.replace('/', ':');
    EXPECT_EQ((std::vector<unsigned>{':', 'a', 'b'}), utf16(s));
    s[1] = 'c';
    EXPECT_EQ((std::vector<unsigned>{':', 'c', 'b'}), utf16(s));
    swap(s, other);
    EXPECT_EQ((std::vector<unsigned>{0xE9, 'x'}), utf16(s));
    expect_text(other, ":cb");
    s.clear();
    EXPECT_EQ(0u, *s.c_str_utf16());
    expect_text(s, "");
}

TEST(UstringTest, BuffersFitTheText) {
    ustring s;
    EXPECT_EQ(4u, access::capacity(s));
    EXPECT_EQ(4u, access::wide_capacity(s));
    const struct {
        const char *text;
        unsigned long capacity;
    } cases[] = {{"abc", 4}, {"abcd", 5}, {"abcdefghij", 11}, {"abcd", 11}, {"a", 2}};
    for (const auto &c : cases) {
        s = c.text;
        EXPECT_EQ(c.capacity, access::capacity(s)) << c.text;
    }
    s.append(e_acute_x, 9).append(e_acute_x, 9);
    EXPECT_EQ(5u, access::wide_length(s));  // an edit of the UTF-16 form keeps it
    EXPECT_EQ(6u, access::wide_capacity(s));
    EXPECT_EQ(8u, access::capacity(s));
    s.clear();
    EXPECT_EQ(8u, access::capacity(s));
}

TEST(UstringTest, ThrowsOnBadPositionsAndSizes) {
    const auto message = [](auto edit) -> std::string {
        try {
            edit();
        } catch (const std::out_of_range &e) {
            return e.what();
        }
        return "nothing thrown";
    };
    ustring s("abc");
    EXPECT_EQ("substr", message([&] { s.substr(4, 0); }));
    EXPECT_EQ("substr", message([&] { s.append(s, 4, 1); }));
    EXPECT_EQ("substr", message([&] { ustring().assign(s, npos, 1); }));
    EXPECT_EQ(0u, message([&] { s.append(std::string(), 1, 1); }).find("basic_string::substr"));

    const unsigned short unit = 'x';
    for (const unsigned long n : {npos, npos / 2, 1UL << 60}) {
        EXPECT_THROW(s.append('x', n), std::bad_alloc) << n;
        EXPECT_THROW(s.append(unit, n), std::bad_alloc) << n;
        expect_text(s, "abc");
    }
    EXPECT_THROW(s.assign('x', npos), std::bad_alloc);
    expect_text(s, "");
}

TEST(UstringTest, ReportsTextThatIsNotUnicode) {
    EXPECT_TRUE(ustring::is_valid(""));
    EXPECT_TRUE(ustring::is_valid("\xC3\xA9"));
    EXPECT_FALSE(ustring::is_valid("a\xFF"));

    testing::internal::CaptureStderr();
    ustring s("a\xFF");
    EXPECT_EQ(0u, *s.c_str_utf16());
    expect_text(s, "a\xFF");
    s = "text";
    s += lone_surrogate;
    expect_text(s, "");
    EXPECT_EQ(0u, access::wide_length(s));
    const std::string warnings = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::regex_match(
        warnings, std::regex("Warning: u_strFromUTF8: error code 10 at line [0-9]+\n"
                             "Warning: u_strToUTF8: error code 10 at line [0-9]+\n")))
        << warnings;
}

TEST(UstringTest, Normalizes) {
    const struct {
        const char *text, *composed, *decomposed;
    } cases[] = {
        {"", "", ""},
        {"e\xCC\x81", "\xC3\xA9", "e\xCC\x81"},
        {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
    };
    for (const auto &c : cases) {
        const ustring nfc = ustring(c.text).normalize(ustring::NFC);
        expect_text(nfc, c.composed);
        EXPECT_EQ(utf16(ustring(c.composed)), utf16(nfc));
        expect_text(ustring::normalize(c.text, ustring::NFD), c.decomposed);
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
