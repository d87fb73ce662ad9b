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
    for (int32_t i = 0; i < length && c >= 0;)
        U8_NEXT(s.data(), i, length, c);
    return c >= 0;
}

/// The UTF-16 form; empty for text that is not UTF-8.
icu::UnicodeString Units(const std::string &s) {
    return IsValid(s) ? icu::UnicodeString::fromUTF8(s) : icu::UnicodeString();
}

/// Back to UTF-8; empty for units that are not UTF-16.
std::string Text(const icu::UnicodeString &units) {
    std::string text;
    for (int32_t i = 0; i < units.length(); i = units.moveIndex32(i, 1))
        if (U_IS_SURROGATE(units.char32At(i)))
            return text;
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
    if (IsValid(s))
        MUST(ustring(Pointer(units)).c_str() == s);
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
    for (unsigned long i = 0; i < std::min(n, std::max(a.size(), b.size())); ++i)
        if (at(a, i) != at(b, i))
            return at(a, i) - at(b, i);
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

/// Edits both alike. `x` holds no NUL.
void Edit(ustring &u, std::string &s, int what, const std::string &x, unsigned long pos,
          unsigned long n) {
    const char c = x.empty() ? '/' : x[0];
    const unsigned long at = std::min(pos, s.size());
    icu::UnicodeString units = Units(x);
    // A lone surrogate now and then.
    const auto unit = static_cast<unsigned short>(0xd7f0 + pos % 0x820);
    const auto few = static_cast<int32_t>(n % 8);
    const auto take = [](const icu::UnicodeString &text, unsigned long count) {
        return text.tempSubString(0, static_cast<int32_t>(std::min(count, 1UL << 30)));
    };
    switch (what) {
        case 0:
            u.append(x.c_str(), n);
            s.append(x.substr(0, n));
            break;
        case 1:
            u.append(ustring(x), std::min(pos, x.size()), n);
            s.append(x, std::min(pos, x.size()), n);
            break;
        case 2:
            u.append(u.c_str() + at, n);
            s.append(s.substr(at, n));
            break;
        case 3:
            u += u;
            s += std::string(s);
            break;
        case 4:
            u.append(Pointer(units), n);
            s = Text(Units(s) + take(units, n));
            break;
        case 5:
            u.append(unit, static_cast<unsigned long>(few));
            s = Text(Units(s) + icu::UnicodeString(few, unit, few));
            break;
        case 6:
            u.append(u.c_str_utf16(), n);
            s = Text(Units(s) + take(Units(s), n));
            break;
        case 7:
            u.append(c, n % 64);
            s.append(n % 64, c);
            break;
        case 8:
            u.assign(x.c_str(), n);
            s = x.substr(0, n);
            break;
        case 9:
            u.assign(u.c_str() + at, n);
            s = s.substr(at, n);
            break;
        case 10:
            u.assign(u.c_str_utf16(), n);
            s = Text(take(Units(s), n));
            break;
        case 11:
            u.assign(u, at, n);
            s = s.substr(at, n);
            break;
        case 12:
            u.assign(Pointer(units), n);
            s = Text(take(units, n));
            break;
        case 13:
            u.ltrim(x.c_str());
            s.erase(0, s.find_first_not_of(x));
            break;
        case 14:
            u.rtrim(ustring(x));
            s.erase(s.find_last_not_of(x) + 1);
            break;
        case 15:
            u.trim(x.c_str());
            s.erase(0, s.find_first_not_of(x));
            s.erase(s.find_last_not_of(x) + 1);
            break;
        case 16:
            u.replace(c, '/');
            std::replace(s.begin(), s.end(), c, '/');
            break;
        case 17: {
            ustring other(x);
            swap(u, other);
            MUST(other.c_str() == s);
            s = x;
            break;
        }
        case 18: {
            std::istringstream in(s), same(s);
            in >> u;
            same >> s;
            break;
        }
        case 19:
            if (!s.empty()) {
                u[at % s.size()] = c;
                s[at % s.size()] = c;
            }
            break;
        case 20:
            u = ustring(s) + x.c_str() + c;
            s += x + c;
            break;
        default:
            u.clear();
            s.clear();
            break;
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
        const int what = in.ConsumeIntegralInRange(0, 21);
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
        if (s.size() > 2000)  // doubling has no end otherwise
            break;
    }
    return 0;
}
