// SPDX-License-Identifier: MIT
#include "ustring.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>

#include <functional>
#include <random>

struct ustring_test_access {
    static unsigned long bytes(const ustring &s) { return s.m_data_cap; }
    static unsigned long units(const ustring &s) { return s.m_wdata_cap; }
};

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

void CheckForms(const ustring &u, const std::string &s) {
    EXPECT_EQ(u.length(), s.size());
    EXPECT_EQ(u.c_str(), s);
    EXPECT_EQ(reinterpret_cast<const char16_t *>(u.c_str_utf16()), Wide(s));
    EXPECT_GT(ustring_test_access::units(u), Wide(s).size());
    EXPECT_EQ(ustring::is_valid(u), Narrow(Wide(s)) == s);
    UErrorCode status = U_ZERO_ERROR;
    const auto normal = [&](const icu::Normalizer2 *form) {
        std::string text;
        return form->normalize(Wide(s).c_str(), status).toUTF8String(text);
    };
    EXPECT_EQ(u.normalize(ustring::NFC).c_str(), normal(icu::Normalizer2::getNFCInstance(status)));
    EXPECT_EQ(u.normalize(ustring::NFD).c_str(), normal(icu::Normalizer2::getNFDInstance(status)));
}

/// A `ustring` finds nothing, not even an empty text, at or behind its end.
void CheckSearches(const ustring &u, const std::string &s, const ustring::bytes &x,
                   const std::string &plain, unsigned long pos) {
    EXPECT_EQ(u.find(x, pos), pos < s.size() ? s.find(plain, pos) : s.npos);
    EXPECT_EQ(u.rfind(x, pos), s.empty() ? s.npos : s.rfind(plain, std::min(pos, s.size() - 1)));
    EXPECT_EQ(u.find_first_of(x, pos), s.find_first_of(plain, pos));
    EXPECT_EQ(u.find_first_not_of(x, pos), s.find_first_not_of(plain, pos));
    EXPECT_EQ(u.find_last_of(x, pos), s.find_last_of(plain, pos));
    EXPECT_EQ(u.find_last_not_of(x, pos), s.find_last_not_of(plain, pos));
}

void CheckOrder(const ustring &u, const std::string &s, const std::string &other, unsigned long n) {
    const ustring x(other);
    const std::string a = s.substr(0, n) + '\0', b = other.substr(0, n) + '\0';
    const auto differ = std::mismatch(a.begin(), a.end() - 1, b.begin(), b.end());
    EXPECT_EQ(u.compare(x, n), uint8_t(*differ.first) - uint8_t(*differ.second));
    EXPECT_EQ(std::tuple(u<x, u <= x, u == x, u != x, u >= x, u> x),
              std::tuple(s<other, s <= other, s == other, s != other, s >= other, s> other));
}

/// Edits both alike, with the text `x`, from `at` in the text that is there, and with `n` of it.
void Edit(unsigned what, ustring &u, std::string &s, const std::string &x, unsigned long at,
          unsigned long n) {
    ustring other(x);
    const unsigned short *const wide = other.c_str_utf16();
    const unsigned long half = Wide(s).size() / 2;
    const char c = "/Ba"[n % 3];
    const auto unit = static_cast<unsigned short>(0xD7FE + n);  // most are surrogates
    const std::function<void()> edits[] = {
        [&] { u.append(x.c_str(), n), s.append(x, 0, n); },
        [&] { u.append(other, 0, n), s.append(x, 0, n); },
        [&] { u.append(s, at, n), s.append(s, at, n); },
        [&] { u.append(wide, n), s = Narrow(Wide(s) + Wide(x).substr(0, n)); },
        [&] { u.append(unit, n % 4), s = Narrow(Wide(s).append(n % 4, unit)); },
        [&] { u.append(c, n % 8), s.append(n % 8, c); },
        [&] { u += u, s += std::string(s); },
        [&] { u.append(u.c_str() + at, n), s.append(s, at, n); },
        [&] { u.append(u.c_str_utf16(), n), s = Narrow(Wide(s) + Wide(s).substr(0, n)); },
        [&] { u.assign(x.c_str(), n), s.assign(x, 0, n); },
        [&] { u.assign(x, 0, n), s.assign(x, 0, n); },
        [&] { u.assign(wide, n), s = Narrow(Wide(x).substr(0, n)); },
        [&] { u.assign(unit, n % 4), s = Narrow(std::u16string(n % 4, unit)); },
        [&] { u.assign(c, n % 8), s.assign(n % 8, c); },
        [&] { u.assign(u, at, n), s = s.substr(at, n); },
        [&] { u.assign(u.c_str() + at, n), s = s.substr(at, n); },
        [&] { u.assign(u.c_str_utf16() + half, n), s = Narrow(Wide(s).substr(half, n)); },
        [&] { u = u + x.c_str() + c, s = s + x + c; },
        [&] { u.trim(x), s.erase(s.find_last_not_of(x) + 1).erase(0, s.find_first_not_of(x)); },
        [&] { u.replace(c, '.'), std::replace(s.begin(), s.end(), c, '.'); },
        [&] { s.empty() || (u[n % s.size()] = s[n % s.size()] = c); },
        [&] { swap(u, other), s = x; },
    };
    edits[what % std::size(edits)]();
}

}  // namespace

/// A series of edits, drawn from the input, on `ustring` and on what it is measured by: std::string
/// and ICU's own string class. libFuzzer calls it, and so does a seeded generator below.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    // Together not always UTF-8, and at times longer than the buffers of a conversion.
    const std::string pieces[] = {
        "/",    "aB",           "\xC3\xA9",           "e\xCC\x81", "\xF0\x9F\x98\x80",
        "\xFF", "\xED\xA0\x80", std::string(600, 'p')};
    ustring u;
    std::string s;
    const uint8_t *const end = data + size;
    while (end - data >= 8 && s.size() < 5000) {  // doubling has no end otherwise
        std::string x;
        for (int i = data[0] % 6; i > 0; --i) {
            x += pieces[data[i] % std::size(pieces)];
        }
        const unsigned long pos = data[6] % 32U - 1, n = data[7] % 32U - 1;  // npos among them
        Edit(data[0] / 6, u, s, x, std::min(pos, s.size()), n);
        // Half the time a copy, so that an edit also meets a text without its UTF-16 form.
        const ustring copy(u);
        CheckForms(pos % 2 == 0 ? u : copy, s);
        CheckSearches(u, s, x.c_str(), x, pos);
        CheckSearches(u, s, 'B', "B", pos);
        CheckOrder(u, s, s.substr(0, n) + x, pos);
        data += 8;
    }
    if (testing::Test::HasFailure()) {
        std::abort();  // so that libFuzzer keeps the input
    }
    return 0;
}

TEST(UstringTest, DoesWhatTheModelDoes) {
    std::ostringstream said;
    std::streambuf *const usual = std::cerr.rdbuf(said.rdbuf());
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        uint8_t input[200];
        std::generate(std::begin(input), std::end(input), std::ref(random));
        LLVMFuzzerTestOneInput(input, random() % sizeof(input));
    }
    std::cerr.rdbuf(usual);
    EXPECT_NE(said.str().npos, said.str().find("Warning: u_strFromUTF8: error code 10 at line "));
    EXPECT_NE(said.str().npos, said.str().find("Warning: u_strToUTF8: error code 10 at line "));
}

TEST(UstringTest, BuffersFitTheText) {
    ustring s("abcdefghij");
    s = "abcd";
    EXPECT_EQ(11, ustring_test_access::bytes(s));  // at most twice what the text takes
    s = "abc";
    EXPECT_EQ(4, ustring_test_access::bytes(s));
    EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
    s.append('\0', 1).append('d', 1);
    EXPECT_EQ(5, s.assign(s.c_str()).length());  // nothing changes
    EXPECT_EQ(4, s.assign(s.c_str(), 4).length());
    EXPECT_THROW(s.substr(5, 0), std::out_of_range);
    const std::pair<unsigned short, unsigned long> texts[] = {{'x', 9}, {0xE9, 9}, {0xE9, 2000}};
    for (const auto &[unit, n] : texts) {
        ustring wide;
        wide.append(unit, n);
        EXPECT_EQ(wide.length() + 1, ustring_test_access::bytes(wide));
        const ustring narrow(wide.c_str());
        narrow.c_str_utf16();
        EXPECT_EQ(n + 1, ustring_test_access::units(narrow));
    }
}

TEST(UstringTest, FoldsAsciiOnly) {
    for (int c = 1; c < 256; ++c) {
        EXPECT_EQ(tolower(c) - 'm', ustring::compare(std::string{'a', char(c), 'B'}, "AMb", true));
    }
}
