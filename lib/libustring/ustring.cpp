#include "ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

/// Rows by the low half of a byte: neighbours in a set lie in different rows, so that setting one
/// does not wait for the other, and clearing 32 bytes costs next to nothing.
class byte_set {
public:
    explicit byte_set(std::string_view bytes) {
        for (char c : bytes) {
            row(c) = static_cast<uint16_t>(row(c) | bit(c));
        }
    }
    bool contains(char c) const { return (m_rows[low(c)] & bit(c)) != 0; }

private:
    static unsigned low(char c) { return static_cast<unsigned char>(c) & 15U; }
    static unsigned bit(char c) { return 1U << (static_cast<unsigned char>(c) >> 4); }
    uint16_t &row(char c) { return m_rows[low(c)]; }

    std::array<uint16_t, 16> m_rows{};
};

// ICU's UChar is char16_t here. It has the size and representation of unsigned short, and only
// the separately compiled ICU reads or writes through these pointers.
UChar *to_icu(unsigned short *units) {
    return reinterpret_cast<UChar *>(units);
}

const UChar *to_icu(const unsigned short *units) {
    return reinterpret_cast<const UChar *>(units);
}

int32_t icu_capacity(unsigned long cap) {
    return static_cast<int32_t>(std::min<unsigned long>(cap, INT32_MAX));
}

void warn(const char *call, UErrorCode status, int line) {
    std::cerr << "Warning: " << call << ": error code " << static_cast<int>(status) << " at line "
              << line << std::endl;
}

/// Exact fit; a buffer is kept while it is large enough and at most twice too large.
template <typename T>
void fit(T *&buffer, unsigned long &cap, unsigned long n) {
    if (cap >= n && cap / 2 <= n) {
        return;
    }
    void *moved = std::realloc(buffer, n * sizeof(T));
    if (moved == nullptr) {
        throw std::bad_alloc();
    }
    buffer = static_cast<T *>(moved);
    cap = n;
}

/// Capacity for `n` more characters behind `len`; no buffer holds what would overflow the sum.
unsigned long grown(unsigned long len, unsigned long n) {
    if (n >= LONG_MAX / sizeof(unsigned short) - len) {
        throw std::bad_alloc();
    }
    return len + n + 1;
}

template <typename T>
bool points_into(const T *p, const T *buffer, unsigned long cap) {
    return !std::less<>()(p, buffer) && std::less<>()(p, buffer + cap);
}

unsigned long unit_count(const unsigned short *s, unsigned long n) {
    unsigned long count = 0;
    while (count < n && s[count] != 0) {
        ++count;
    }
    return count;
}

using fold_table = std::array<unsigned char, 256>;

constexpr fold_table make_fold_table() {
    fold_table table{};
    for (unsigned i = 0; i < table.size(); ++i) {
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    }
    return table;
}

/// Folds ASCII letters only: the bytes of longer UTF-8 sequences mean nothing by themselves.
constexpr fold_table case_fold = make_fold_table();

uint64_t load_word(const char *p) {
    uint64_t word;
    std::memcpy(&word, p, sizeof(word));
    return word;
}

/// Whether all of `n` code units are ASCII and none of them is NUL.
template <typename Unit>
bool is_plain(const Unit *s, unsigned long n) {
    constexpr uint64_t ones = sizeof(Unit) == 1 ? 0x0101010101010101 : 0x0001000100010001;
    constexpr uint64_t high = sizeof(Unit) == 1 ? 0x8080808080808080 : 0xff80ff80ff80ff80;
    constexpr unsigned long step = sizeof(uint64_t) / sizeof(Unit);
    uint64_t found = 0;
    unsigned long i = 0;
    for (; i + step <= n; i += step) {
        uint64_t word;
        std::memcpy(&word, s + i, sizeof(word));
        found |= word | (word - ones);  // a unit of 0 borrows and so sets its high bits
    }
    for (; i < n; ++i) {
        found |= s[i] == 0 || s[i] > 0x7f ? high : 0;
    }
    return (found & high) == 0;
}

/// Longest text in code units that is converted in one go, on the stack; a longer one is measured
/// first.
constexpr unsigned long kShortText = 340;

/// memcmp and strcmp promise no more than a sign; callers get the difference of the bytes.
/// Everything before `end` can be read in both; a NUL ends both texts, should one lie there.
int difference(const char *a, const char *b, unsigned long end) {
    static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "the first byte is the lowest one");
    constexpr uint64_t ones = 0x0101010101010101, high = 0x8080808080808080;
    constexpr unsigned long step = sizeof(uint64_t);
    unsigned long i = 0;
    // The last word overlaps the one before, so that no byte is left over.
    for (; end >= step && i < end; i += step) {
        const unsigned long at = std::min(i, end - step);
        const uint64_t x = load_word(a + at), y = load_word(b + at);
        // Marks the lowest byte that is NUL or differs, and maybe others above it.
        const uint64_t differ = x ^ y;
        const uint64_t mark = ((x - ones) & ~x & high) | differ;
        if (mark != 0) {
            const int shift = __builtin_ctzll(mark) & ~7;
            return static_cast<int>(x >> shift & 0xff) - static_cast<int>(y >> shift & 0xff);
        }
    }
    for (; i < end; ++i) {
        if (a[i] != b[i] || a[i] == '\0') {
            return static_cast<unsigned char>(a[i]) - static_cast<unsigned char>(b[i]);
        }
    }
    return 0;
}

int str_case_cmp(const char *a, const char *b) {
    for (;; ++a, ++b) {
        const int x = case_fold[static_cast<unsigned char>(*a)];
        const int y = case_fold[static_cast<unsigned char>(*b)];
        if (x != y || x == 0) {
            return x - y;
        }
    }
}

}  // namespace

namespace ustring_search {

/// memmem never degrades to a quadratic search, but its preparation costs more than a path is long.
unsigned long find_long(std::string_view text, std::string_view s, unsigned long pos) {
    if (s.empty()) {
        return pos;
    }
    const void *hit = memmem(text.data() + pos, text.size() - pos, s.data(), s.size());
    return hit == nullptr
               ? npos
               : static_cast<unsigned long>(static_cast<const char *>(hit) - text.data());
}

unsigned long scan_forward(std::string_view text, std::string_view set, unsigned long pos,
                           bool wanted) {
    const byte_set bytes(set);
    for (; pos < text.size(); ++pos) {
        if (bytes.contains(text[pos]) == wanted) {
            return pos;
        }
    }
    return npos;
}

unsigned long scan_backward(std::string_view text, std::string_view set, unsigned long end,
                            bool wanted) {
    const byte_set bytes(set);
    while (end-- > 0) {
        if (bytes.contains(text[end]) == wanted) {
            return end;
        }
    }
    return npos;
}

}  // namespace ustring_search

ustring::ustring() {
    init();
}

ustring::~ustring() {
    std::free(m_data);
    std::free(m_wdata);
    m_data = nullptr;
    m_wdata = nullptr;
}

void ustring::init() {
    init_capacity(4);
    clear();
}

/// The buffer that an empty string would have after an append, without the detour.
void ustring::init(const char *s, unsigned long n) {
    init_capacity(n >= 1 && n <= 3 ? 4 : grown(0, n));
    std::memcpy(m_data, s, n);
    m_data_len = n;
    m_data[n] = '\0';
    clear_wdata();
}

void ustring::init_capacity(unsigned long n) {
    m_data = nullptr;
    m_wdata = nullptr;
    m_data_cap = m_wdata_cap = 0;
    realloc_data(n);
    try {
        realloc_wdata(4);
    } catch (...) {
        std::free(m_data);  // no destructor runs for an object that was never complete
        throw;
    }
}

void ustring::realloc_data(unsigned long n) {
    fit(m_data, m_data_cap, n);
}

void ustring::realloc_wdata(unsigned long n) const {
    fit(m_wdata, m_wdata_cap, n);
}

void ustring::clear_data() {
    m_data_len = 0;
    m_data[0] = '\0';
}

void ustring::clear_wdata() const {
    m_wdata_len = 0;
    m_wdata[0] = 0;
}

int ustring::convert_from_data() const {
    const unsigned long bytes = m_data_len;
    if (is_plain(reinterpret_cast<const unsigned char *>(m_data), bytes)) {
        realloc_wdata(bytes + 1);
        std::copy(m_data, m_data + bytes, m_wdata);
        m_wdata_len = bytes;
        m_wdata[bytes] = 0;
        return 0;
    }
    UChar units[kShortText];
    const bool fits = bytes < kShortText;  // no text has more units than bytes
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(fits ? units : nullptr, fits ? kShortText : 0, &len, m_data,
                  fits ? int32_t(std::strlen(m_data)) : -1, &status);
    if (!fits || U_SUCCESS(status)) {
        realloc_wdata(static_cast<unsigned long>(len) + 1);
    }
    if (!fits) {
        status = U_ZERO_ERROR;
        u_strFromUTF8(to_icu(m_wdata), icu_capacity(m_wdata_cap), &len, m_data, -1, &status);
    }
    if (U_FAILURE(status)) {
        warn("u_strFromUTF8", status, __LINE__ - 3);
        clear_wdata();
        return -1;
    }
    if (fits) {
        std::memcpy(m_wdata, units, static_cast<unsigned long>(len) * sizeof(*units));
    }
    m_wdata_len = static_cast<unsigned long>(len);
    m_wdata[m_wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata() {
    // Should the allocation throw, the UTF-16 form counts as unbuilt and the old text stands.
    const unsigned long wdata_len = std::exchange(m_wdata_len, 0);
    if (is_plain(m_wdata, wdata_len)) {
        realloc_data(wdata_len + 1);
        std::transform(m_wdata, m_wdata + wdata_len, m_data,
                       [](unsigned short unit) { return static_cast<char>(unit); });
        m_data_len = m_wdata_len = wdata_len;
        m_data[m_data_len] = '\0';
        return 0;
    }
    char bytes[kShortText * 3];
    const bool fits = wdata_len < kShortText;  // a unit makes three bytes at most
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(fits ? bytes : nullptr, fits ? int32_t(sizeof(bytes)) : 0, &len, to_icu(m_wdata),
                fits ? int32_t(unit_count(m_wdata, wdata_len)) : -1, &status);
    if (!fits || U_SUCCESS(status)) {
        realloc_data(static_cast<unsigned long>(len) + 1);
    }
    if (!fits) {
        status = U_ZERO_ERROR;
        u_strToUTF8(m_data, icu_capacity(m_data_cap), &len, to_icu(m_wdata), -1, &status);
    }
    if (U_FAILURE(status)) {
        warn("u_strToUTF8", status, __LINE__ - 3);
        clear();
        return -1;
    }
    if (fits) {
        std::memcpy(m_data, bytes, static_cast<unsigned long>(len));
    }
    m_data_len = static_cast<unsigned long>(len);
    m_data[m_data_len] = '\0';
    m_wdata_len = wdata_len;
    return 0;
}

// Assigning. A source inside the string's own buffer can only shorten the text, so it is moved in
// place; clearing first would destroy it.

ustring &ustring::assign_bytes(const char *s, unsigned long n) {
    if (!points_into(s, m_data, m_data_cap)) {
        clear();
        return append_bytes(s, n);
    }
    if (n < m_data_len) {
        keep(static_cast<unsigned long>(s - m_data), n);
    }
    return *this;
}

ustring &ustring::assign_units(const unsigned short *s, unsigned long n) {
    if (!points_into<unsigned short>(s, m_wdata, m_wdata_cap)) {
        clear();
        return append_units(s, n);
    }
    std::memmove(m_wdata, s, n * sizeof(*s));
    m_wdata_len = 0;
    end_wdata_edit(n);
    return *this;
}

ustring &ustring::assign(const ustring &s, unsigned long pos, unsigned long n) {
    if (&s == this) {
        return assign(substr(pos, n), 0, npos);
    }
    clear();
    return append(s, pos, n);
}

ustring &ustring::assign(const char *s) {
    return s == m_data ? *this : assign_bytes(s, std::strlen(s));
}

ustring &ustring::assign(const char *s, unsigned long n) {
    return assign_bytes(s, strnlen(s, n));
}

ustring &ustring::assign(const unsigned short *s) {
    return assign_units(s, unit_count(s, npos));
}

ustring &ustring::assign(const unsigned short *s, unsigned long n) {
    return assign_units(s, unit_count(s, n));
}

ustring &ustring::assign(const std::string &s, unsigned long pos, unsigned long n) {
    clear();
    return append(s, pos, n);
}

ustring &ustring::assign(char c, unsigned long n) {
    clear();
    return append(c, n);
}

ustring &ustring::assign(unsigned short u, unsigned long n) {
    clear();
    return append(u, n);
}

// Appending. A source inside the string's own buffer moves along when that buffer moves.

ustring &ustring::append_bytes(const char *s, unsigned long n) {
    const bool own = points_into(s, m_data, m_data_cap);
    const auto offset = own ? s - m_data : 0;
    realloc_data(grown(m_data_len, n));
    std::memcpy(m_data + m_data_len, own ? m_data + offset : s, n);
    m_data_len += n;
    m_data[m_data_len] = '\0';
    clear_wdata();
    return *this;
}

ustring &ustring::append_units(const unsigned short *s, unsigned long n) {
    const bool own = points_into<unsigned short>(s, m_wdata, m_wdata_cap);
    const auto offset = own ? s - m_wdata : 0;
    begin_wdata_edit(n);
    std::memcpy(m_wdata + m_wdata_len, own ? m_wdata + offset : s, n * sizeof(*s));
    end_wdata_edit(n);
    return *this;
}

/// Makes room for `n` units behind the UTF-16 form, which is built first.
void ustring::begin_wdata_edit(unsigned long n) {
    if (m_wdata_len == 0 && m_data_len != 0) {
        convert_from_data();
    }
    realloc_wdata(grown(m_wdata_len, n));
}

/// Takes in the `n` units written behind the UTF-16 form and makes the UTF-8 text follow.
void ustring::end_wdata_edit(unsigned long n) {
    m_wdata_len += n;
    m_wdata[m_wdata_len] = 0;
    convert_from_wdata();
}

ustring &ustring::append(const ustring &s, unsigned long pos, unsigned long n) {
    if (pos > s.m_data_len) {
        throw std::out_of_range("substr");
    }
    return append(s.m_data + pos, std::min(n, s.m_data_len));
}

ustring &ustring::append(const char *s) {
    return append_bytes(s, std::strlen(s));
}

ustring &ustring::append(const char *s, unsigned long n) {
    return append_bytes(s, strnlen(s, n));
}

ustring &ustring::append(const unsigned short *s) {
    return append_units(s, unit_count(s, npos));
}

ustring &ustring::append(const unsigned short *s, unsigned long n) {
    return append_units(s, unit_count(s, n));
}

ustring &ustring::append(const std::string &s, unsigned long pos, unsigned long n) {
    static_cast<void>(s.substr(pos, 0));  // throws the library's own out_of_range
    return append(s.c_str() + pos, n);
}

ustring &ustring::append(char c, unsigned long n) {
    realloc_data(grown(m_data_len, n));
    std::memset(m_data + m_data_len, c, n);
    m_data_len += n;
    m_data[m_data_len] = '\0';
    clear_wdata();
    return *this;
}

ustring &ustring::append(unsigned short u, unsigned long n) {
    begin_wdata_edit(n);
    std::fill_n(m_wdata + m_wdata_len, n, u);
    end_wdata_edit(n);
    return *this;
}

const unsigned short *ustring::c_str_utf16() const {
    if (m_wdata_len == 0) {
        convert_from_data();
    }
    return m_wdata;
}

char &ustring::operator[](unsigned long pos) {
    clear_wdata();
    return m_data[pos];
}

void ustring::clear() {
    clear_data();
    clear_wdata();
}

void ustring::swap(ustring &other) {
    std::swap(m_data, other.m_data);
    std::swap(m_data_len, other.m_data_len);
    std::swap(m_data_cap, other.m_data_cap);
    std::swap(m_wdata, other.m_wdata);
    std::swap(m_wdata_len, other.m_wdata_len);
    std::swap(m_wdata_cap, other.m_wdata_cap);
}

ustring ustring::substr(unsigned long pos, unsigned long n) const {
    ustring result;
    result.append(*this, pos, n);
    return result;
}

void ustring::replace(char from, char to) {
    std::replace(m_data, m_data + m_data_len, from, to);
    clear_wdata();
}

/// Reduces the text to the `n` bytes from `pos`, in place.
void ustring::keep(unsigned long pos, unsigned long n) {
    if (pos != 0) {
        std::memmove(m_data, m_data + pos, n);
    }
    m_data_len = n;
    m_data[n] = '\0';
    clear_wdata();
}

void ustring::ltrim(const ustring &set) {
    ltrim(set.m_data);
}

void ustring::ltrim(const char *set) {
    const unsigned long first = std::min(find_first_not_of(set, 0), m_data_len);
    keep(first, m_data_len - first);
}

void ustring::rtrim(const ustring &set) {
    rtrim(set.m_data);
}

void ustring::rtrim(const char *set) {
    keep(0, find_last_not_of(set, npos) + 1);  // npos wraps around to 0: nothing is kept
}

void ustring::trim(const ustring &set) {
    trim(set.m_data);
}

void ustring::trim(const char *set) {
    ltrim(set);
    rtrim(set);
}

int ustring::compare(const ustring &s, unsigned long n) const {
    return ::difference(m_data, s.m_data, std::min({m_data_len + 1, s.m_data_len + 1, n}));
}

int ustring::difference(const ustring &s) const {
    return ::difference(m_data, s.m_data, std::min(m_data_len, s.m_data_len) + 1);
}

int ustring::compare(const ustring &a, const ustring &b, bool ignore_case) {
    return ignore_case ? str_case_cmp(a.m_data, b.m_data) : a.compare(b);
}

ustring ustring::normalize(normalization_form form) const {
    return normalize(*this, form);
}

ustring ustring::normalize(const ustring &src, normalization_form form) {
    static constexpr UNormalization2Mode modes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring result;
    if (src.empty()) {
        return result;
    }
    // ASCII is the same in both forms, and nearly all paths are ASCII.
    if (is_plain(reinterpret_cast<const unsigned char *>(src.m_data), src.m_data_len)) {
        result.append_bytes(src.m_data, src.m_data_len);
        return result;
    }

    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2 *instance = unorm2_getInstance(nullptr, "nfc", modes[form], &status);
    if (U_FAILURE(status) || instance == nullptr) {
        warn("unorm2_getInstance", status, __LINE__ - 2);
        return result;
    }

    const UChar *text = to_icu(src.c_str_utf16());
    UChar units[4 * kShortText];  // few texts grow to more than that; those are measured first
    int32_t len = unorm2_normalize(instance, text, -1, units, int32_t(std::size(units)), &status);
    const bool fits = U_SUCCESS(status) && len < int32_t(std::size(units));
    result.realloc_wdata(static_cast<unsigned long>(len) + 1);
    UChar *out = to_icu(result.m_wdata);
    if (fits) {
        std::memcpy(out, units, static_cast<unsigned long>(len) * sizeof(*units));
    } else {
        status = U_ZERO_ERROR;
        len = unorm2_normalize(instance, text, -1, out, icu_capacity(result.m_wdata_cap), &status);
    }
    if (U_FAILURE(status)) {
        warn("unorm2_normalize", status, __LINE__ - 3);
        result.clear();
        return result;
    }
    result.m_wdata_len = static_cast<unsigned long>(len);
    result.m_wdata[len] = 0;
    result.convert_from_wdata();
    return result;
}

bool ustring::is_valid(const ustring &s) {
    if (s.empty()) {
        return true;
    }
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &len, s.m_data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

void swap(ustring &a, ustring &b) {
    a.swap(b);
}

namespace {

template <typename T>
ustring joined(const ustring &a, T b) {
    ustring result(a);
    result += b;
    return result;
}

}  // namespace

ustring operator+(const ustring &a, const ustring &b) {
    return joined<const ustring &>(a, b);
}

ustring operator+(const ustring &a, const char *b) {
    return joined(a, b);
}

ustring operator+(const ustring &a, char b) {
    return joined(a, b);
}

ustring operator+(const ustring &a, const unsigned short *b) {
    return joined(a, b);
}

ustring operator+(const ustring &a, unsigned short b) {
    return joined(a, b);
}

std::ostream &operator<<(std::ostream &out, const ustring &s) {
    return out << bytes_of(s);
}

std::istream &operator>>(std::istream &in, ustring &s) {
    std::string word;
    in >> word;
    s = word;
    return in;
}
