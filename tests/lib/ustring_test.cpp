// SPDX-License-Identifier: MIT
#include "ustring.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>

#include <functional>
#include <random>

namespace {

/// The UTF-16 form; empty for text that is not UTF-8.
std::u16string Wide(const std::string &s) {
    auto units = icu::UnicodeString::fromUTF8(s);
    std::string back;  // what is not UTF-8 becomes U+FFFD
    return units.toUTF8String(back) == s ? units.getTerminatedBuffer() : u"";
}

/// Back to UTF-8; empty for units that are not UTF-16.
std::string Narrow(const std::u16string &units) {
    std::string s;
    icu::UnicodeString(units.c_str()).toUTF8String(s);
    return Wide(s) == units ? s : "";
}

/// Compares results of `ustring` with those of its model, up to the first that differs.
class Comparison {
public:
    template <typename Result, typename Expected>
    void Same(const char *what, const Result &result, const Expected &expected) {
        if (difference.empty() && !(result == expected)) {
            difference = std::string(what) + " gave " + Shown(result) + ", not " + Shown(expected);
        }
    }
    template <typename Value>
    static std::string Shown(const Value &value) {
        return testing::PrintToString(value).substr(0, 200);
    }
    std::string difference;
};

void CompareForms(Comparison &check, const ustring &u, const std::string &s) {
    check.Same("c_str", std::string(u.c_str()), s);
    check.Same("length", u.length(), s.size());
    const auto *const units = reinterpret_cast<const char16_t *>(u.c_str_utf16());
    check.Same("c_str_utf16", std::u16string(units), Wide(s));
    check.Same("is_valid", ustring::is_valid(u), Narrow(Wide(s)) == s);
    UErrorCode status = U_ZERO_ERROR;
    const auto normal = [&](const icu::Normalizer2 *form) {
        std::string text;
        return form->normalize(Wide(s).c_str(), status).toUTF8String(text);
    };
    check.Same("NFC", u.normalize(ustring::NFC), normal(icu::Normalizer2::getNFCInstance(status)));
    check.Same("NFD", u.normalize(ustring::NFD), normal(icu::Normalizer2::getNFDInstance(status)));
}

/// A `ustring` finds nothing, not even an empty text, at or behind its end.
void CompareSearches(Comparison &check, const ustring &u, const std::string &s,
                     const ustring::bytes &x, const std::string &plain, unsigned long pos) {
    const unsigned long last = std::min(pos, s.size() - 1);
    check.Same("find", u.find(x, pos), pos < s.size() ? s.find(plain, pos) : s.npos);
    check.Same("rfind", u.rfind(x, pos), s.empty() ? s.npos : s.rfind(plain, last));
    check.Same("find_first_of", u.find_first_of(x, pos), s.find_first_of(plain, pos));
    check.Same("find_first_not_of", u.find_first_not_of(x, pos), s.find_first_not_of(plain, pos));
    check.Same("find_last_of", u.find_last_of(x, pos), s.find_last_of(plain, pos));
    check.Same("find_last_not_of", u.find_last_not_of(x, pos), s.find_last_not_of(plain, pos));
}

void CompareOrder(Comparison &check, const ustring &u, const std::string &s,
                  const std::string &other, unsigned long n) {
    const ustring x(other);
    const int result = u.compare(x, n), expected = s.compare(0, n, other, 0, n);
    check.Same("compare", result < 0 ? -1 : result > 0, expected < 0 ? -1 : expected > 0);
    const auto orders = [](const auto &a, const auto &b) {
        return std::tuple((a < b), a <= b, a == b, a != b, a >= b, (a > b));
    };
    check.Same("< <= == != >= >", orders(u, x), orders(s, other));
}

/// Edits both alike: `x` is the new text, `at` a place in the old one, `n` a count.
/// Returns the edit's name.
const char *Edit(unsigned long which, ustring &u, std::string &s, const std::string &x,
                 unsigned long at, unsigned long n) {
    ustring other(x);
    const unsigned short *const wide = other.c_str_utf16();
    const std::u16string old = Wide(s), add = Wide(x);
    const unsigned long half = old.size() / 2;
    const char c = "/Ba"[n % 3];
    const auto unit = static_cast<unsigned short>(0xD7FE + n);  // most are surrogates
    const std::u16string units(n % 4, unit);
    const std::pair<const char *, std::function<void()>> edits[] = {
        {"append text", [&] { u.append(x.c_str(), n), s.append(x, 0, n); }},
        {"append ustring", [&] { u.append(other, 0, n), s.append(x, 0, n); }},
        {"append string", [&] { u.append(s, at, n), s.append(s, at, n); }},
        {"append units", [&] { u.append(wide, n), s = Narrow(old + add.substr(0, n)); }},
        {"append unit", [&] { u.append(unit, n % 4), s = Narrow(old + units); }},
        {"append byte", [&] { u.append(c, n % 8), s.append(n % 8, c); }},
        {"append itself", [&] { u += u, s += std::string(s); }},
        {"append own text", [&] { u.append(u.c_str() + at, n), s.append(s, at, n); }},
        {"append own units",
         [&] { u.append(u.c_str_utf16(), n), s = Narrow(old + old.substr(0, n)); }},
        {"assign text", [&] { u.assign(x.c_str(), n), s.assign(x, 0, n); }},
        {"assign string", [&] { u.assign(x, 0, n), s.assign(x, 0, n); }},
        {"assign units", [&] { u.assign(wide, n), s = Narrow(add.substr(0, n)); }},
        {"assign unit", [&] { u.assign(unit, n % 4), s = Narrow(units); }},
        {"assign byte", [&] { u.assign(c, n % 8), s.assign(n % 8, c); }},
        {"assign itself", [&] { u.assign(u, at, n), s = s.substr(at, n); }},
        {"assign own text", [&] { u.assign(u.c_str() + at, n), s = s.substr(at, n); }},
        {"assign own units",
         [&] { u.assign(u.c_str_utf16() + half, n), s = Narrow(old.substr(half, n)); }},
        {"operator+", [&] { u = u + x.c_str() + c, s = s + x + c; }},
        {"trim",
         [&] { u.trim(x), s.erase(s.find_last_not_of(x) + 1).erase(0, s.find_first_not_of(x)); }},
        {"replace", [&] { u.replace(c, '.'), std::replace(s.begin(), s.end(), c, '.'); }},
        {"operator[]", [&] { s.empty() || (u[n % s.size()] = s[n % s.size()] = c); }},
        {"swap", [&] { swap(u, other), s = x; }},
    };
    const auto &[name, edit] = edits[which % std::size(edits)];
    edit();
    return name;
}

/// Draws a series of edits and makes them on `ustring` and on what it is measured by: std::string
/// and ICU's own string class. Says where the two differ first, or nothing.
std::string FirstDifference(unsigned seed) try {
    std::mt19937 random(seed);
    const auto draw = [&random](unsigned long below) { return random() % below; };
    // Together not always UTF-8, and at times longer than the buffers of a conversion.
    const std::string pieces[] = {
        "/",        "aB",   "\xC3\xA9",     "e\xCC\x81",          "\xF0\x9F\x98\x80",
        "\xC2\x80", "\xFF", "\xED\xA0\x80", std::string(600, 'p')};
    ustring u;
    std::string s;
    for (int edits = 25; edits > 0 && s.size() < 5000; --edits) {
        std::string x;
        for (unsigned long i = draw(6); i > 0; --i) {
            x += pieces[draw(std::size(pieces))];
        }
        const unsigned long pos = draw(32) - 1, n = draw(32) - 1;  // 0 - 1 is npos
        const std::string before = s;
        const char *const edit = Edit(random(), u, s, x, std::min(pos, s.size()), n);
        // Half the time a copy is converted, so that an edit also meets a text without its UTF-16
        // form.
        const ustring copy(u);
        Comparison check;
        CompareForms(check, pos % 2 == 0 ? u : copy, s);
        CompareSearches(check, u, s, x.c_str(), x, pos);
        CompareSearches(check, u, s, 'B', "B", pos);
        CompareOrder(check, u, s, s.substr(0, n) + x, pos);
        if (!check.difference.empty()) {
            return check.difference + "\nafter " + edit + " in " + Comparison::Shown(before) +
                   "\nwith position, count, text " + Comparison::Shown(std::tuple(pos, n, x));
        }
    }
    return "";
} catch (const std::exception &error) {
    return std::string("an exception: ") + error.what();
}

TEST(UstringTest, EditsAndSearchesLikeStdStringAndIcu) {
    std::string difference;
    unsigned seed = 0;
    testing::internal::CaptureStderr();
    while (difference.empty() && seed < 3000) {
        difference = FirstDifference(++seed);
    }
    const std::string warnings = testing::internal::GetCapturedStderr();
    ASSERT_EQ(difference, "") << "seed " << seed;
    // Malformed text was among the input, both ways; 10 is U_INVALID_CHAR_FOUND.
    EXPECT_NE(warnings.find("Warning: u_strFromUTF8: error code 10 at line "), warnings.npos);
    EXPECT_NE(warnings.find("Warning: u_strToUTF8: error code 10 at line "), warnings.npos);
}

TEST(UstringTest, FoldsAsciiOnly) {
    // The second bytes decide, by their difference. tolower() leaves bytes beyond ASCII alone.
    for (int c = 1; c < 256; ++c) {
        EXPECT_EQ(tolower(c) - 'm', ustring::compare(std::string{'a', char(c)}, "AM", true)) << c;
    }
}

}  // namespace
