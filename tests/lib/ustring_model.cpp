// SPDX-License-Identifier: MIT
// A series of edits, drawn from the input, on `ustring` and on what it is measured by: std::string
// and ICU's own string class. libFuzzer drives it, and ustring_test does with a seeded generator.

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "ustring.h"

/// Ends the program, so that libFuzzer keeps the input.
#define MUST(condition)                                            \
    if (!(condition)) {                                            \
        std::fprintf(stderr, "%d: not so: " #condition, __LINE__); \
        std::abort();                                              \
    }

namespace {

constexpr unsigned long npos = ustring::npos;

class Input {
public:
    Input(const uint8_t *data, size_t size) : m_data(data), m_end(data + size) {}
    bool Ended() const { return m_data == m_end; }
    unsigned Byte() { return Ended() ? 0 : *m_data++; }
    unsigned long Number() {
        const unsigned value = Byte();
        return value == 255 ? npos : value;
    }
    /// Without a NUL; not always UTF-8, at times longer than the buffers of a conversion.
    std::string Text() {
        static const std::string pieces[] = {
            "/",        "aB",   "b.", "\xC3\xA9",     "e\xCC\x81",          "\xF0\x9F\x98\x80",
            "[{@`Zz\\", "\xFF", "",   "\xED\xA0\x80", std::string(600, 'p')};
        std::string text;
        for (unsigned i = Byte() % 6; i > 0; --i) {
            const size_t piece = Byte() % (std::size(pieces) + 4);
            text += piece < std::size(pieces) ? pieces[piece] : std::string(1, char(Byte() | 1));
        }
        return text;
    }

private:
    const uint8_t *m_data, *m_end;
};

bool IsValid(const std::string &s) {
    std::string back;  // what is not UTF-8 becomes U+FFFD
    return icu::UnicodeString::fromUTF8(s).toUTF8String(back) == s;
}

/// The UTF-16 form; empty for text that is not UTF-8.
icu::UnicodeString Units(const std::string &s) {
    return IsValid(s) ? icu::UnicodeString::fromUTF8(s) : icu::UnicodeString();
}

/// Back to UTF-8; empty for units that are not UTF-16.
std::string Text(const icu::UnicodeString &units) {
    std::string text;
    for (int32_t i = 0; i < units.length(); i = units.moveIndex32(i, 1)) {
        if (units.char32At(i) >> 11 == 0xD800 >> 11) {
            return text;
        }
    }
    return units.toUTF8String(text);
}

icu::UnicodeString First(const icu::UnicodeString &units, unsigned long n) {
    return units.tempSubString(0, static_cast<int32_t>(std::min(n, 100'000UL)));
}

const unsigned short *Pointer(icu::UnicodeString &units) {
    return reinterpret_cast<const unsigned short *>(units.getTerminatedBuffer());
}

void CheckUnicode(const ustring &u, const std::string &s) {
    UErrorCode status = U_ZERO_ERROR;
    const auto *nfc = icu::Normalizer2::getNFCInstance(status);
    const auto *nfd = icu::Normalizer2::getNFDInstance(status);
    icu::UnicodeString units = Units(s);
    MUST(ustring::is_valid(u) == IsValid(s));
    MUST(std::u16string(reinterpret_cast<const char16_t *>(u.c_str_utf16())) ==
         std::u16string(units.getTerminatedBuffer()));
    MUST(ustring(Pointer(units)).c_str() == Text(units));
    MUST(u.normalize(ustring::NFC).c_str() == Text(nfc->normalize(units, status)));
    MUST(u.normalize(ustring::NFD).c_str() == Text(nfd->normalize(units, status)));
}

/// The searches differ from those of the standard library at and behind the end of the text.
template <typename Needle>
void CheckSearches(const ustring &u, const std::string &s, const Needle &x,
                   const std::string &plain, unsigned long pos) {
    const bool behind = pos >= s.size();
    const unsigned long start = behind ? s.size() - 1 : pos;
    MUST(u.find(x, pos) == (behind ? npos : s.find(plain, pos)));
    MUST(u.find_first_of(x, pos) == (behind ? npos : s.find_first_of(plain, pos)));
    MUST(u.find_first_not_of(x, pos) == (behind ? npos : s.find_first_not_of(plain, pos)));
    MUST(u.rfind(x, pos) == (s.empty() ? npos : s.rfind(plain, start)));
    MUST(u.find_last_of(x, pos) == (s.empty() ? npos : s.find_last_of(plain, start)));
    MUST(u.find_last_not_of(x, pos) == (s.empty() ? npos : s.find_last_not_of(plain, start)));
}

/// Difference of the first bytes that differ.
int Compare(const std::string &a, const std::string &b, unsigned long n, bool fold) {
    const auto at = [fold](const std::string &s, unsigned long i) {
        const char c = i < s.size() ? s[i] : '\0';
        return static_cast<unsigned char>(fold && c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    };
    unsigned long i = 0;
    for (n = std::min(n, std::max(a.size(), b.size())); i < n && at(a, i) == at(b, i); ++i) {
    }
    return i < n ? at(a, i) - at(b, i) : 0;
}

void CheckComparison(const ustring &u, const std::string &s, const std::string &other,
                     unsigned long n) {
    const ustring x(other);
    MUST(u.compare(x) == Compare(s, other, npos, false));
    MUST(u.compare(x, n) == Compare(s, other, n, false));
    MUST(ustring::compare(u, x, false) == Compare(s, other, npos, false));
    MUST(ustring::compare(u, x, true) == Compare(s, other, npos, true));
    MUST((u == x) == (s == other) && (u != x) == (s != other) && (u < x) == (s < other));
    MUST((u > x) == (s > other) && (u <= x) == (s <= other) && (u >= x) == (s >= other));
}

/// Edits both alike; `x` holds no NUL.
void Edit(ustring &u, std::string &s, unsigned what, std::string x, unsigned long pos,
          unsigned long n) {
    const char c = x.empty() ? '/' : x[0];
    const unsigned long at = std::min(pos, s.size()), in_x = std::min(pos, x.size()), few = n % 8;
    const auto unit = static_cast<unsigned short>(0xd7f0 + pos * 8 % 0x820);  // some surrogates
    const icu::UnicodeString copies(static_cast<int32_t>(few), unit, static_cast<int32_t>(few));
    icu::UnicodeString units = Units(x);
    std::istringstream words(x + " "), same(x + " ");
    std::string word;
    const std::string cut = x + '\0' + x;  // ends for a ustring where x does
    const auto left = [&] { s.erase(0, s.find_first_not_of(x)); };
    const auto right = [&] { s.erase(s.find_last_not_of(x) + 1); };
    const std::function<void()> edits[] = {
        [&] { u.append(x.c_str(), n), s.append(x, 0, n); },
        [&] { u.append(ustring(x), in_x, n), s.append(x, in_x, n); },
        [&] { u.append(cut, in_x, npos), s.append(x, in_x, npos); },
        [&] { u.append(u.c_str() + at, n), s.append(std::string(s, at, n)); },
        [&] { u += u, s += std::string(s); },
        [&] { u.append(Pointer(units), n), s = Text(Units(s) + First(units, n)); },
        [&] { u += Pointer(units), s = Text(Units(s) + units); },
        [&] { u.append(unit, few), s = Text(Units(s) + copies); },
        [&] { u.append(u.c_str_utf16(), n), s = Text(Units(s) + First(Units(s), n)); },
        [&] { u.append(c, few), s.append(few, c); },
        [&] { u.assign(x.c_str(), n), s = x.substr(0, n); },
        [&] { u.assign(u.c_str() + at, n), s = s.substr(at, n); },
        [&] { u = u.c_str(); },
        [&] { u.assign(u.c_str_utf16(), n), s = Text(First(Units(s), n)); },
        [&] { u.assign(u, at, n), s = s.substr(at, n); },
        [&] { u.assign(cut, in_x, n), s = x.substr(in_x, n); },
        [&] { u.assign(Pointer(units), n), s = Text(First(units, n)); },
        [&] { u.assign(unit, few), s = Text(copies); },
        [&] { u.ltrim(x), left(); },
        [&] { u.rtrim(ustring(x)), right(); },
        [&] { u.trim(x.c_str()), left(), right(); },
        [&] { u.replace(c, '/'), std::replace(s.begin(), s.end(), c, '/'); },
        [&] { u = ustring(s) + x.c_str() + c, s = s + x + c; },
        [&] { words >> u, same >> word, s = word; },
        [&] { s.empty() || (u[at % s.size()] = s[at % s.size()] = c); },
        [&] { u.clear(), s.clear(); },
        [&] { u = c, s = c; },
    };
    edits[what % std::size(edits)]();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    Input in(data, size);
    ustring u;
    std::string s;
    while (!in.Ended() && s.size() < 5000) {  // doubling has no end otherwise
        const unsigned what = in.Byte();
        const std::string x = in.Text();
        const unsigned long pos = in.Number(), n = in.Number();
        Edit(u, s, what, x, pos, n);
        std::ostringstream out;
        out << u;
        MUST(u.length() == s.size() && u.c_str() == s && u.empty() == s.empty() && out.str() == s);
        CheckUnicode(u, s);
        CheckSearches(u, s, ustring(x), x, pos);
        CheckSearches(u, s, x, x, pos);
        CheckSearches(u, s, x.c_str(), x, pos);
        CheckSearches(u, s, x.empty() ? '\0' : x[0], x.substr(0, 1), pos);
        CheckComparison(u, s, x, n);
        CheckComparison(u, s, s.substr(0, n) + x, pos);
        MUST(pos > s.size() || u.substr(pos, n).c_str() == s.substr(pos, n));
    }
    return 0;
}
