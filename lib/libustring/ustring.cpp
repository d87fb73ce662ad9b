// SPDX-License-Identifier: MIT
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
#include <utility>

namespace {

/// Size of the stack buffers that conversions try first; nearly every path fits.
constexpr int32_t kShortText = 1024;

// ICU's UChar is char16_t, which has the size and representation of unsigned short. Only ICU, which
// is compiled separately, reads or writes through these pointers.
UChar *to_icu(unsigned short *units) {
    return reinterpret_cast<UChar *>(units);
}

const UChar *to_icu(const unsigned short *units) {
    return reinterpret_cast<const UChar *>(units);
}

void warn(const char *call, UErrorCode status, int line) {
    std::cerr << "Warning: " << call << ": error code " << static_cast<int>(status) << " at line "
              << line << std::endl;
}

/// Reallocates to exactly `n` elements, unless the buffer is large enough and at most twice too
/// large.
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

/// The capacity for `n` more elements after `len`, with the terminator. Throws instead of
/// overflowing.
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

/// Whether all of `n` code units are ASCII and none of them is NUL.
template <typename Unit>
bool is_plain(const Unit *s, unsigned long n) {
    return std::all_of(s, s + n, [](int unit) { return unit > 0 && unit < 0x80; });
}

using fold_table = std::array<unsigned char, 256>;

constexpr fold_table make_fold_table() {
    fold_table table{};
    for (unsigned i = 0; i < table.size(); ++i) {
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    }
    return table;
}

/// Folds ASCII letters only: a single byte of a longer UTF-8 sequence means nothing.
constexpr fold_table case_fold = make_fold_table();

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
    m_data = nullptr;
    m_wdata = nullptr;
    m_data_cap = m_wdata_cap = 0;
    realloc_data(4);
    try {
        realloc_wdata(4);
    } catch (...) {
        std::free(m_data);  // the destructor does not run when a constructor throws
        throw;
    }
    clear();
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
    if (!is_plain(m_data, m_data_len)) {
        return icu_from_data();
    }
    realloc_wdata(m_data_len + 1);
    std::copy(m_data, m_data + m_data_len, m_wdata);
    m_wdata_len = m_data_len;
    m_wdata[m_wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata() {
    if (!is_plain(m_wdata, m_wdata_len)) {
        return icu_from_wdata();
    }
    // If the allocation throws, the old text stays and the UTF-16 form counts as not built.
    const unsigned long len = std::exchange(m_wdata_len, 0);
    realloc_data(len + 1);
    std::transform(m_wdata, m_wdata + len, m_data,
                   [](unsigned short unit) { return static_cast<char>(unit); });
    m_data_len = m_wdata_len = len;
    m_data[m_data_len] = '\0';
    return 0;
}

// ICU converts into a buffer on the stack. If the text does not fit, that call returns its length,
// and a second call converts it into the string's own buffer.

int ustring::icu_from_data() const {
    UChar units[kShortText];
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    int line = __LINE__ + 1;
    u_strFromUTF8(units, kShortText, &len, m_data, -1, &status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        realloc_wdata(static_cast<unsigned long>(len) + 1);
        status = U_ZERO_ERROR;
        line = __LINE__ + 1;
        u_strFromUTF8(to_icu(m_wdata), len, &len, m_data, -1, &status);
    } else if (U_SUCCESS(status)) {
        realloc_wdata(static_cast<unsigned long>(len) + 1);
        std::memcpy(m_wdata, units, static_cast<unsigned long>(len) * sizeof(*units));
    }
    if (U_FAILURE(status)) {
        warn("u_strFromUTF8", status, line);
        clear_wdata();
        return -1;
    }
    m_wdata_len = static_cast<unsigned long>(len);
    m_wdata[m_wdata_len] = 0;
    return 0;
}

int ustring::icu_from_wdata() {
    // If an allocation throws, the UTF-16 form counts as not built.
    const unsigned long wdata_len = std::exchange(m_wdata_len, 0);
    char text[kShortText];
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    int line = __LINE__ + 1;
    u_strToUTF8(text, kShortText, &len, to_icu(m_wdata), -1, &status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        realloc_data(static_cast<unsigned long>(len) + 1);
        status = U_ZERO_ERROR;
        line = __LINE__ + 1;
        u_strToUTF8(m_data, len, &len, to_icu(m_wdata), -1, &status);
    } else if (U_SUCCESS(status)) {
        realloc_data(static_cast<unsigned long>(len) + 1);
        std::memcpy(m_data, text, static_cast<unsigned long>(len));
    }
    if (U_FAILURE(status)) {
        warn("u_strToUTF8", status, line);
        clear();
        return -1;
    }
    m_data_len = static_cast<unsigned long>(len);
    m_data[m_data_len] = '\0';
    m_wdata_len = wdata_len;
    return 0;
}

// A source inside the string's own buffer can only shorten the text, so it is moved in place:
// clearing the string first would destroy it.

ustring &ustring::assign(const ustring &s, unsigned long pos, unsigned long n) {
    if (&s == this) {
        return assign(substr(pos, n), 0, npos);
    }
    clear();
    return append(s, pos, n);
}

ustring &ustring::assign(const char *s, unsigned long n) {
    if (!points_into(s, m_data, m_data_cap)) {
        clear();
        return append(s, n);
    }
    if (s != m_data) {  // the whole text keeps its NUL bytes; a part ends at its first one
        n = strnlen(s, n);
    }
    if (n < m_data_len) {
        keep(static_cast<unsigned long>(s - m_data), n);
    }
    return *this;
}

ustring &ustring::assign(const unsigned short *s, unsigned long n) {
    if (!points_into<unsigned short>(s, m_wdata, m_wdata_cap)) {
        clear();
        return append(s, n);
    }
    n = unit_count(s, n);
    std::memmove(m_wdata, s, n * sizeof(*s));
    m_wdata_len = 0;
    end_wdata_edit(n);
    return *this;
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

// A source inside the string's own buffer moves with it when the buffer is reallocated.

ustring &ustring::append(const ustring &s, unsigned long pos, unsigned long n) {
    if (pos > s.m_data_len) {
        throw std::out_of_range("substr");
    }
    return append(s.m_data + pos, std::min(n, s.m_data_len));
}

ustring &ustring::append(const char *s, unsigned long n) {
    n = strnlen(s, n);
    const bool own = points_into(s, m_data, m_data_cap);
    const auto offset = own ? s - m_data : 0;
    realloc_data(grown(m_data_len, n));
    std::memcpy(m_data + m_data_len, own ? m_data + offset : s, n);
    m_data_len += n;
    m_data[m_data_len] = '\0';
    clear_wdata();
    return *this;
}

ustring &ustring::append(const unsigned short *s, unsigned long n) {
    n = unit_count(s, n);
    const bool own = points_into<unsigned short>(s, m_wdata, m_wdata_cap);
    const auto offset = own ? s - m_wdata : 0;
    begin_wdata_edit(n);
    std::memcpy(m_wdata + m_wdata_len, own ? m_wdata + offset : s, n * sizeof(*s));
    end_wdata_edit(n);
    return *this;
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

/// Builds the UTF-16 form and makes room for `n` more units.
void ustring::begin_wdata_edit(unsigned long n) {
    if (m_wdata_len == 0 && m_data_len != 0) {
        convert_from_data();
    }
    realloc_wdata(grown(m_wdata_len, n));
}

/// Counts the `n` units that were added to the UTF-16 form and rebuilds the UTF-8 text from it.
void ustring::end_wdata_edit(unsigned long n) {
    m_wdata_len += n;
    m_wdata[m_wdata_len] = 0;
    convert_from_wdata();
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

void ustring::ltrim(const bytes &set) {
    const unsigned long first = std::min(find_first_not_of(set, 0), m_data_len);
    keep(first, m_data_len - first);
}

void ustring::rtrim(const bytes &set) {
    keep(0, find_last_not_of(set, npos) + 1);  // npos + 1 is 0: nothing is kept
}

void ustring::trim(const bytes &set) {
    ltrim(set);
    rtrim(set);
}

int ustring::compare(const ustring &s, unsigned long n) const {
    for (unsigned long i = 0; i < n; ++i) {
        if (m_data[i] != s.m_data[i] || m_data[i] == '\0') {
            return static_cast<unsigned char>(m_data[i]) - static_cast<unsigned char>(s.m_data[i]);
        }
    }
    return 0;
}

int ustring::compare(const ustring &a, const ustring &b, bool ignore_case) {
    return ignore_case ? str_case_cmp(a.m_data, b.m_data) : a.compare(b);
}

ustring ustring::normalize(const ustring &src, normalization_form form) {
    return is_ascii(src) ? src : icu_normalize(src, form);
}

ustring ustring::icu_normalize(const ustring &src, normalization_form form) {
    static constexpr UNormalization2Mode modes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring result;
    UErrorCode status = U_ZERO_ERROR;
    int line = __LINE__ + 1;
    const UNormalizer2 *instance = unorm2_getInstance(nullptr, "nfc", modes[form], &status);
    if (U_FAILURE(status) || instance == nullptr) {
        warn("unorm2_getInstance", status, line);
        return result;
    }

    const UChar *text = to_icu(src.c_str_utf16());
    UChar units[kShortText];
    line = __LINE__ + 1;
    int32_t len = unorm2_normalize(instance, text, -1, units, kShortText, &status);
    result.realloc_wdata(static_cast<unsigned long>(len) + 1);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        status = U_ZERO_ERROR;
        line = __LINE__ + 1;
        unorm2_normalize(instance, text, -1, to_icu(result.m_wdata), len, &status);
    } else if (U_SUCCESS(status)) {
        std::memcpy(result.m_wdata, units, static_cast<unsigned long>(len) * sizeof(*units));
    }
    if (U_FAILURE(status)) {
        warn("unorm2_normalize", status, line);
        result.clear();
        return result;
    }
    result.m_wdata_len = static_cast<unsigned long>(len);
    result.m_wdata[len] = 0;
    result.convert_from_wdata();
    return result;
}

bool ustring::is_valid(const ustring &s) {
    int32_t len = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &len, s.m_data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

bool ustring::is_ascii(const ustring &s) {
    return is_plain(s.m_data, s.m_data_len);
}

std::ostream &operator<<(std::ostream &out, const ustring &s) {
    return out << ustring::bytes(s);
}

std::istream &operator>>(std::istream &in, ustring &s) {
    std::string word;
    in >> word;
    s = word;
    return in;
}
