#pragma once

#include <cstring>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include "ustring-search.h"

/// Unicode string of all non-GUI code.
///
/// The text is NUL-terminated UTF-8; a UTF-16 copy is built on demand and dropped by every edit.
/// Positions, lengths and counts are byte offsets into the UTF-8 form. Ordering and equality are
/// byte-wise and case-sensitive. Buffers are owned and never shared.
///
/// No locks: const operations may write the UTF-16 cache (`c_str_utf16`, `normalize`), so a string
/// that several threads read needs its owner's lock. Throws std::bad_alloc when memory runs out
/// and std::out_of_range ("substr") for a position beyond the text; nothing else.
/// Null pointers are not accepted anywhere.
class ustring {
public:
    /// Nothing found (as a result), up to the end (as a count), from the last byte (as the start
    /// of a backward search).
    static constexpr unsigned long npos = ~0UL;

    /// Canonical forms of Unicode Standard Annex #15.
    enum normalization_form { NFC = 0, NFD = 1 };

    ustring();
    ustring(const ustring &s) { init(s.m_data, strnlen(s.m_data, s.m_data_len)); }
    ustring(const char *s) { init(s, std::strlen(s)); }          // UTF-8
    ustring(const unsigned short *s) : ustring() { append(s); }  // UTF-16, 0-terminated
    ustring(const std::string &s) : ustring() { append(s, 0, npos); }
    ustring(char c) : ustring() { append(c, 1); }
    ~ustring();

    // Sources may lie in the string's own buffers. Counted forms take at most `n` bytes or units
    // and stop at a NUL; so do the std::string forms. Positions beyond the source throw
    // std::out_of_range. UTF-16 that is not well-formed empties the string.
    ustring &assign(const ustring &s, unsigned long pos, unsigned long n);
    ustring &assign(const char *s);
    ustring &assign(const char *s, unsigned long n);
    ustring &assign(const unsigned short *s);
    ustring &assign(const unsigned short *s, unsigned long n);
    ustring &assign(const std::string &s, unsigned long pos, unsigned long n);
    ustring &assign(char c, unsigned long n);
    ustring &assign(unsigned short u, unsigned long n);

    ustring &operator=(const ustring &s) { return assign(s, 0, npos); }
    ustring &operator=(const std::string &s) { return assign(s, 0, npos); }
    ustring &operator=(const char *s) { return assign(s); }
    ustring &operator=(const unsigned short *s) { return assign(s); }
    ustring &operator=(char c) { return assign(c, 1); }
    ustring &operator=(unsigned short u) { return assign(u, 1); }

    ustring &append(const ustring &s, unsigned long pos, unsigned long n);
    ustring &append(const char *s);
    ustring &append(const char *s, unsigned long n);
    ustring &append(const unsigned short *s);
    ustring &append(const unsigned short *s, unsigned long n);
    ustring &append(const std::string &s, unsigned long pos, unsigned long n);
    ustring &append(char c, unsigned long n);
    ustring &append(unsigned short u, unsigned long n);

    ustring &operator+=(const ustring &s) { return append(s, 0, npos); }
    ustring &operator+=(const std::string &s) { return append(s, 0, npos); }
    ustring &operator+=(const char *s) { return append(s); }
    ustring &operator+=(const unsigned short *s) { return append(s); }
    ustring &operator+=(char c) { return append(c, 1); }
    ustring &operator+=(unsigned short u) { return append(u, 1); }

    const char *c_str() const { return m_data; }
    const char *c_str_utf8() const { return m_data; }
    /// The UTF-16 form, valid until the next edit; empty when the text is not valid UTF-8.
    const unsigned short *c_str_utf16() const;

    unsigned long length() const { return m_data_len; }
    unsigned long size() const { return m_data_len; }
    bool empty() const { return m_data_len == 0; }

    const char &operator[](unsigned long pos) const { return m_data[pos]; }
    /// Drops the UTF-16 form, since the caller may write through the reference.
    char &operator[](unsigned long pos);

    void clear();
    void swap(ustring &other);

    /// At most `n` bytes from `pos`; throws std::out_of_range("substr") when pos > length().
    ustring substr(unsigned long pos, unsigned long n) const;

    void replace(char from, char to);
    /// `set` is a set of bytes, not of characters.
    void ltrim(const ustring &set);
    void ltrim(const char *set);
    void rtrim(const ustring &set);
    void rtrim(const char *set);
    void trim(const ustring &set);
    void trim(const char *set);

    unsigned long find(const std::string &s, unsigned long pos) const;
    unsigned long find(const char *s, unsigned long pos) const;
    unsigned long find(const ustring &s, unsigned long pos) const;
    unsigned long find(char c, unsigned long pos) const;

    unsigned long rfind(const std::string &s, unsigned long pos) const;
    unsigned long rfind(const char *s, unsigned long pos) const;
    unsigned long rfind(const ustring &s, unsigned long pos) const;
    unsigned long rfind(char c, unsigned long pos) const;

    unsigned long find_first_of(const std::string &set, unsigned long pos) const;
    unsigned long find_first_of(const char *set, unsigned long pos) const;
    unsigned long find_first_of(const ustring &set, unsigned long pos) const;
    unsigned long find_first_of(char c, unsigned long pos) const;

    unsigned long find_first_not_of(const std::string &set, unsigned long pos) const;
    unsigned long find_first_not_of(const char *set, unsigned long pos) const;
    unsigned long find_first_not_of(const ustring &set, unsigned long pos) const;
    unsigned long find_first_not_of(char c, unsigned long pos) const;

    unsigned long find_last_of(const std::string &set, unsigned long pos) const;
    unsigned long find_last_of(const char *set, unsigned long pos) const;
    unsigned long find_last_of(const ustring &set, unsigned long pos) const;
    unsigned long find_last_of(char c, unsigned long pos) const;

    unsigned long find_last_not_of(const std::string &set, unsigned long pos) const;
    unsigned long find_last_not_of(const char *set, unsigned long pos) const;
    unsigned long find_last_not_of(const ustring &set, unsigned long pos) const;
    unsigned long find_last_not_of(char c, unsigned long pos) const;

    /// Difference of the first pair of bytes (as unsigned values) that differs; 0 when equal.
    int compare(const ustring &s) const;
    int compare(const ustring &s, unsigned long n) const;
    /// With `ignore_case`, ASCII letters fold; bytes of longer UTF-8 sequences do not.
    static int compare(const ustring &a, const ustring &b, bool ignore_case);

    ustring normalize(normalization_form form) const;
    /// Empty when `src` is empty or not valid UTF-8 (a warning goes to standard error then).
    static ustring normalize(const ustring &src, normalization_form form);
    static bool is_valid(const ustring &s);

private:
    friend struct ustring_test_access;

    void init();
    void init(const char *s, unsigned long n);
    void init_capacity(unsigned long n);
    void realloc_data(unsigned long n);
    void realloc_wdata(unsigned long n) const;
    void clear_data();
    void clear_wdata() const;
    int convert_from_data() const;
    int convert_from_wdata();
    ustring &assign_bytes(const char *s, unsigned long n);
    ustring &assign_units(const unsigned short *s, unsigned long n);
    ustring &append_bytes(const char *s, unsigned long n);
    ustring &append_units(const unsigned short *s, unsigned long n);
    void begin_wdata_edit(unsigned long n);
    void end_wdata_edit(unsigned long n);
    void keep(unsigned long pos, unsigned long n);
    int difference(const ustring &s) const;

    char *m_data;
    unsigned long m_data_len;
    unsigned long m_data_cap;
    mutable unsigned short *m_wdata;
    mutable unsigned long m_wdata_len;
    mutable unsigned long m_wdata_cap;
};

// The four argument forms of a search differ only in where their bytes lie.

inline std::string_view bytes_of(const ustring &s) {
    return {s.c_str(), s.length()};
}

/// A NUL stands for no byte at all.
inline std::string_view bytes_of(const char &c) {
    return {&c, c == '\0' ? 0UL : 1UL};
}

inline std::string_view bytes_of(const std::string &s) {
    return s;
}

inline std::string_view bytes_of(const char *s) {
    return s;
}

#define DEFINE_SEARCH(name)                                                             \
    inline unsigned long ustring::name(const std::string &s, unsigned long pos) const { \
        return ustring_search::name(bytes_of(*this), bytes_of(s), pos);                 \
    }                                                                                   \
    inline unsigned long ustring::name(const char *s, unsigned long pos) const {        \
        return ustring_search::name(bytes_of(*this), bytes_of(s), pos);                 \
    }                                                                                   \
    inline unsigned long ustring::name(const ustring &s, unsigned long pos) const {     \
        return ustring_search::name(bytes_of(*this), bytes_of(s), pos);                 \
    }                                                                                   \
    inline unsigned long ustring::name(char c, unsigned long pos) const {               \
        return ustring_search::name(bytes_of(*this), bytes_of(c), pos);                 \
    }

DEFINE_SEARCH(find)
DEFINE_SEARCH(rfind)
DEFINE_SEARCH(find_first_of)
DEFINE_SEARCH(find_first_not_of)
DEFINE_SEARCH(find_last_of)
DEFINE_SEARCH(find_last_not_of)
#undef DEFINE_SEARCH

void swap(ustring &a, ustring &b);

ustring operator+(const ustring &a, const ustring &b);
ustring operator+(const ustring &a, const char *b);
ustring operator+(const ustring &a, char b);
ustring operator+(const ustring &a, const unsigned short *b);
ustring operator+(const ustring &a, unsigned short b);

// The order of `compare`, of which only the sign matters here.

/// Equal bytes; texts that end at a NUL within them may be equal without.
inline bool same_bytes(const ustring &a, const ustring &b) {
    return a.length() == b.length() && std::memcmp(a.c_str(), b.c_str(), a.length()) == 0;
}

inline int ustring::compare(const ustring &s) const {
    return same_bytes(*this, s) ? 0 : difference(s);
}

// The first bytes or the lengths often tell, and memcmp is faster than strcmp.

inline bool operator==(const ustring &a, const ustring &b) {
    return same_bytes(a, b) || (a[0] == b[0] && std::strcmp(a.c_str(), b.c_str()) == 0);
}

inline bool operator!=(const ustring &a, const ustring &b) {
    return !(a == b);
}

inline bool operator<(const ustring &a, const ustring &b) {
    const auto x = static_cast<unsigned char>(a[0]), y = static_cast<unsigned char>(b[0]);
    return x != y ? x < y : !same_bytes(a, b) && std::strcmp(a.c_str(), b.c_str()) < 0;
}

inline bool operator>(const ustring &a, const ustring &b) {
    return b < a;
}

inline bool operator<=(const ustring &a, const ustring &b) {
    return !(b < a);
}

inline bool operator>=(const ustring &a, const ustring &b) {
    return !(a < b);
}

std::ostream &operator<<(std::ostream &out, const ustring &s);
/// Reads one word delimited by white space.
std::istream &operator>>(std::istream &in, ustring &s);
