// A random series of operations on `ustring` and, as the plain reference, on std::string and ICU's
// own string class.

#include "ustring.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "fuzz-support.h"

namespace {

constexpr unsigned long npos = ustring::npos;

bool IsValid(const std::string &s) {
    const auto length = static_cast<int32_t>(s.size());
    UChar32 c = 0;
    for (int32_t i = 0; i < length && c >= 0;) {
        U8_NEXT(s.data(), i, length, c);
    }
    return c >= 0;
}

/// The UTF-16 form; empty for text that is not UTF-8.
icu::UnicodeString Units(const std::string &s) {
    return IsValid(s) ? icu::UnicodeString::fromUTF8(s) : icu::UnicodeString();
}

/// Back to UTF-8; empty for units that are not UTF-16.
std::string Text(const icu::UnicodeString &units) {
    std::string text;
    for (int32_t i = 0; i < units.length(); i = units.moveIndex32(i, 1)) {
        if (U_IS_SURROGATE(units.char32At(i))) {
            return text;
        }
    }
    return units.toUTF8String(text);
}

const unsigned short *Pointer(icu::UnicodeString &units) {
    return reinterpret_cast<const unsigned short *>(units.getTerminatedBuffer());
}

std::string Normalized(const std::string &s, const icu::Normalizer2 &form) {
    UErrorCode status = U_ZERO_ERROR;
    return Text(form.normalize(Units(s), status));
}

void CheckUnicode(const ustring &u, const std::string &s) {
    UErrorCode status = U_ZERO_ERROR;
    MUST(ustring::is_valid(u) == IsValid(s));
    icu::UnicodeString units = Units(s);
    MUST(std::u16string(reinterpret_cast<const char16_t *>(u.c_str_utf16())) ==
         std::u16string(units.getTerminatedBuffer()));
    if (IsValid(s)) {
        MUST(ustring(Pointer(units)).c_str() == s);
    }
    MUST(u.normalize(ustring::NFC).c_str() ==
         Normalized(s, *icu::Normalizer2::getNFCInstance(status)));
    MUST(u.normalize(ustring::NFD).c_str() ==
         Normalized(s, *icu::Normalizer2::getNFDInstance(status)));
}

/// The searches differ from those of the standard library at and behind the end of the text.
template <typename Needle, typename Plain>
void CheckSearches(const ustring &u, const std::string &s, const Needle &x, const Plain &plain,
                   unsigned long pos) {
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
    for (unsigned long i = 0; i < std::min(n, std::max(a.size(), b.size())); ++i) {
        if (at(a, i) != at(b, i)) {
            return at(a, i) - at(b, i);
        }
    }
    return 0;
}

void CheckComparison(const ustring &u, const std::string &s, const std::string &other,
                     unsigned long n) {
    const ustring x(other);
    MUST(u.compare(x) == Compare(s, other, npos, false));
    MUST(u.compare(x, n) == Compare(s, other, n, false));
    MUST(ustring::compare(u, x, true) == Compare(s, other, npos, true));
    MUST((u == x) == (s == other) && (u != x) == (s != other) && (u < x) == (s < other));
    MUST((u > x) == (s > other) && (u <= x) == (s <= other) && (u >= x) == (s >= other));
}

void CheckSubstr(const ustring &u, const std::string &s, unsigned long pos, unsigned long n) {
    try {
        MUST(u.substr(pos, n).c_str() == s.substr(pos, n));
    } catch (const std::out_of_range &error) {
        MUST(pos > s.size() && error.what() == std::string("substr"));
    }
}

#define EDIT(number, of_ustring, of_plain) \
    case number:                           \
        of_ustring;                        \
        of_plain;                          \
        break

/// Edits both alike. `x` holds no NUL.
void Edit(ustring &u, std::string &s, int what, const std::string &x, unsigned long pos,
          unsigned long n) {
    const char c = x.empty() ? '/' : x[0];
    const unsigned long at = std::min(pos, s.size()), in_x = std::min(pos, x.size()), few = n % 8;
    icu::UnicodeString units = Units(x);
    const auto unit = static_cast<unsigned short>(0xd7f0 + pos % 0x820);  // at times a surrogate
    const auto repeated = [](unsigned short value, unsigned long count) {
        const auto times = static_cast<int32_t>(count);
        return icu::UnicodeString(times, value, times);
    };
    const auto first = [](const icu::UnicodeString &text, unsigned long count) {
        return text.tempSubString(0, static_cast<int32_t>(std::min<unsigned long>(count, 4096)));
    };
    const auto trim_left = [&x](std::string &text) { text.erase(0, text.find_first_not_of(x)); };
    const auto trim_right = [&x](std::string &text) { text.erase(text.find_last_not_of(x) + 1); };
    std::istringstream words(x + " "), same(x + " ");
    std::string word;
    switch (what) {
        EDIT(0, u.append(x.c_str(), n), s.append(x.substr(0, n)));
        EDIT(1, u.append(ustring(x), in_x, n), s.append(x, in_x, n));
        EDIT(2, u.append(u.c_str() + at, n), s.append(s.substr(at, n)));
        EDIT(3, u += u, s += std::string(s));
        EDIT(4, u.append(Pointer(units), n), s = Text(Units(s) + first(units, n)));
        EDIT(5, u.append(unit, few), s = Text(Units(s) + repeated(unit, few)));
        EDIT(6, u.append(u.c_str_utf16(), n), s = Text(Units(s) + first(Units(s), n)));
        EDIT(7, u.append(c, few), s.append(few, c));
        EDIT(8, u.assign(x.c_str(), n), s = x.substr(0, n));
        EDIT(9, u.assign(u.c_str() + at, n), s = s.substr(at, n));
        EDIT(10, u.assign(u.c_str_utf16(), n), s = Text(first(Units(s), n)));
        EDIT(11, u.assign(u, at, n), s = s.substr(at, n));
        EDIT(12, u.assign(Pointer(units), n), s = Text(first(units, n)));
        EDIT(13, u.ltrim(x.c_str()), trim_left(s));
        EDIT(14, u.rtrim(ustring(x)), trim_right(s));
        EDIT(15, u.trim(x.c_str()), (trim_left(s), trim_right(s)));
        EDIT(16, u.replace(c, '/'), std::replace(s.begin(), s.end(), c, '/'));
        EDIT(17, u = ustring(s) + x.c_str() + c, s += x + c);
        EDIT(18, words >> u, (same >> word, s = word));
        EDIT(19, s.empty() || (u[at % s.size()] = c), s.empty() || (s[at % s.size()] = c));
        default:
            u.clear();
            s.clear();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    std::cerr.rdbuf(nullptr);  // text that is not UTF-8 is warned about there
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider in(data, size);
    ustring u;
    std::string s;
    while (in.remaining_bytes() > 0) {
        const int what = in.ConsumeIntegralInRange(0, 20);
        const std::string x = in.ConsumeRandomLengthString().c_str();
        const auto number = [&in] {
            const auto value = in.ConsumeIntegral<uint8_t>();
            return value == 255 ? npos : value;
        };
        const unsigned long pos = number(), n = number();
        Edit(u, s, what, x, pos, n);
        MUST(u.length() == s.size() && u.c_str() == s && u.empty() == s.empty());
        CheckUnicode(u, s);
        const ustring needle(x);
        const char c = x.empty() ? '\0' : x[0];
        CheckSearches(u, s, needle, x, pos);
        CheckSearches(u, s, x, x, pos);
        CheckSearches(u, s, x.c_str(), x, pos);
        CheckSearches(u, s, c, x.substr(0, 1), pos);
        CheckComparison(u, s, x, n);
        CheckSubstr(u, s, pos, n);
        if (s.size() > 2000) {  // doubling has no end otherwise
            break;
        }
    }
    return 0;
}
