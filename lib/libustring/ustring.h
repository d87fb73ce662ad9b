// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstring>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

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
    /// As a result: nothing found. As a count: up to the end. As the start of a backward search:
    /// from the last byte.
    static constexpr unsigned long npos = ~0UL;

    /// Canonical forms of Unicode Standard Annex #15.
    enum normalization_form { NFC = 0, NFD = 1 };

    /// What a search looks for or a trim removes. Texts stay with the caller; a single byte is kept
    /// here, so this type is not copied.
    struct bytes : std::string_view {
        bytes(const ustring &s) : std::string_view(s.m_data, s.m_data_len) {}
        bytes(const std::string &s) : std::string_view(s) {}
        bytes(const char *s) : std::string_view(s) {}
        bytes(char c) : std::string_view(&m_byte, c == '\0' ? 0 : 1), m_byte(c) {}
        bytes(const bytes &) = delete;

    private:
        const char m_byte = '\0';  // NUL stands for no byte at all
    };

    ustring();
    ustring(const ustring &s) : ustring() { append(s, 0, npos); }
    ustring(const char *s) : ustring() { append(s); }            // UTF-8
    ustring(const unsigned short *s) : ustring() { append(s); }  // UTF-16, 0-terminated
    ustring(const std::string &s) : ustring() { append(s, 0, npos); }
    ustring(char c) : ustring() { append(c, 1); }
    ~ustring();

    // A source may lie in the string's own buffers. Counted forms take at most `n` bytes or units
    // and stop at a NUL, unless the source is the string's own text from its start; the std::string
    // forms stop at a NUL, too. A position beyond the source throws
    // std::out_of_range. Malformed UTF-16 empties the string.
    ustring &assign(const ustring &s, unsigned long pos, unsigned long n);
    ustring &assign(const char *s) { return assign(s, npos); }
    ustring &assign(const char *s, unsigned long n);
    ustring &assign(const unsigned short *s) { return assign(s, npos); }
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
    ustring &append(const char *s) { return append(s, npos); }
    ustring &append(const char *s, unsigned long n);
    ustring &append(const unsigned short *s) { return append(s, npos); }
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
    // `set` is a set of bytes, not of characters.
    void ltrim(const bytes &set);
    void rtrim(const bytes &set);
    void trim(const bytes &set);

    // The searches of std::string_view, except that nothing, not even an empty text, is found at
    // the end or beyond. Inline: on short paths a call would cost as much as the search.
    unsigned long find(const bytes &s, unsigned long pos) const {
        return pos >= m_data_len ? npos : bytes(*this).find(s, pos);
    }
    unsigned long rfind(const bytes &s, unsigned long pos) const {
        return empty() ? npos : bytes(*this).rfind(s, std::min(pos, m_data_len - 1));
    }
    unsigned long find_first_of(const bytes &set, unsigned long pos) const {
        return bytes(*this).find_first_of(set, pos);
    }
    unsigned long find_first_not_of(const bytes &set, unsigned long pos) const {
        return bytes(*this).find_first_not_of(set, pos);
    }
    unsigned long find_last_of(const bytes &set, unsigned long pos) const {
        return bytes(*this).find_last_of(set, pos);
    }
    unsigned long find_last_not_of(const bytes &set, unsigned long pos) const {
        return bytes(*this).find_last_not_of(set, pos);
    }

    /// Difference of the first pair of bytes (as unsigned values) that differs; 0 when equal.
    int compare(const ustring &s) const { return compare(s, npos); }
    int compare(const ustring &s, unsigned long n) const;
    /// With `ignore_case`, ASCII letters fold; bytes of longer UTF-8 sequences do not.
    static int compare(const ustring &a, const ustring &b, bool ignore_case);

    ustring normalize(normalization_form form) const { return normalize(*this, form); }
    /// Empty when `src` is empty or not valid UTF-8 (a warning goes to standard error then).
    static ustring normalize(const ustring &src, normalization_form form);
    static bool is_valid(const ustring &s);
    /// Whether the text is ASCII without NUL bytes; it is then its own normalized form.
    static bool is_ascii(const ustring &s);

private:
    void init();
    void realloc_data(unsigned long n);
    void realloc_wdata(unsigned long n) const;
    void clear_data();
    void clear_wdata() const;
    int convert_from_data() const;
    int convert_from_wdata();
    int icu_from_data() const;
    int icu_from_wdata();
    static ustring icu_normalize(const ustring &src, normalization_form form);
    void begin_wdata_edit(unsigned long n);
    void end_wdata_edit(unsigned long n);
    void keep(unsigned long pos, unsigned long n);

    char *m_data;
    unsigned long m_data_len;
    unsigned long m_data_cap;
    mutable unsigned short *m_wdata;
    mutable unsigned long m_wdata_len;
    mutable unsigned long m_wdata_cap;
};

inline void swap(ustring &a, ustring &b) {
    a.swap(b);
}

inline ustring operator+(const ustring &a, const ustring &b) {
    return ustring(a) += b;
}

inline ustring operator+(const ustring &a, const char *b) {
    return ustring(a) += b;
}

inline ustring operator+(const ustring &a, char b) {
    return ustring(a) += b;
}

inline ustring operator+(const ustring &a, const unsigned short *b) {
    return ustring(a) += b;
}

inline ustring operator+(const ustring &a, unsigned short b) {
    return ustring(a) += b;
}

// The same order as `compare`.

inline bool operator==(const ustring &a, const ustring &b) {
    return std::strcmp(a.c_str(), b.c_str()) == 0;
}

inline bool operator!=(const ustring &a, const ustring &b) {
    return !(a == b);
}

inline bool operator<(const ustring &a, const ustring &b) {
    return std::strcmp(a.c_str(), b.c_str()) < 0;
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
