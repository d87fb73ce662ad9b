#pragma once

#include <algorithm>
#include <string_view>

/// The searches of `ustring` over plain bytes. Inline, as those of the standard library are: in a
/// path the call and the length of a constant needle would cost as much as the search.
namespace ustring_search {

constexpr unsigned long npos = ~0UL;

/// The same as the loops beside them, for texts and sets that pay for a preparation.
unsigned long find_long(std::string_view text, std::string_view s, unsigned long pos);
unsigned long scan_forward(std::string_view text, std::string_view set, unsigned long pos,
                           bool wanted);
unsigned long scan_backward(std::string_view text, std::string_view set, unsigned long end,
                            bool wanted);

constexpr unsigned long kLongText = 256;  // bytes; few paths are longer
constexpr unsigned long kProbes = 4;      // bytes looked at before a set becomes a table

inline bool contains(std::string_view set, char c) {
    return set.find(c) != npos;
}

/// Where a backward search starts.
inline unsigned long last(std::string_view text, unsigned long pos) {
    return std::min(pos, text.size() - 1);
}

inline unsigned long find(std::string_view text, std::string_view s, unsigned long pos) {
    // Unlike the standard search, this one finds no empty needle behind the last byte.
    if (pos >= text.size()) {
        return npos;
    }
    if (s.size() == 1) {
        return text.find(s[0], pos);
    }
    return text.size() < kLongText ? text.find(s, pos) : find_long(text, s, pos);
}

inline unsigned long rfind(std::string_view text, std::string_view s, unsigned long pos) {
    if (text.size() < s.size() || text.empty()) {
        return npos;
    }
    // An empty needle is found at the last byte, not behind it.
    if (s.empty()) {
        return last(text, pos);
    }
    if (s.size() == 1) {
        return text.rfind(s[0], pos);
    }
    for (unsigned long end = std::min(pos, text.size() - s.size()) + 1; end-- > 0;) {
        if (text[end] == s[0] && text.substr(end, s.size()) == s) {
            return end;
        }
    }
    return npos;
}

/// First position from `pos` on whose membership in `set` is `wanted`.
inline unsigned long first(std::string_view text, std::string_view set, unsigned long pos,
                           bool wanted) {
    for (unsigned long probe = 0; probe < kProbes; ++probe, ++pos) {
        if (pos >= text.size()) {
            return npos;
        }
        if (contains(set, text[pos]) == wanted) {
            return pos;
        }
    }
    return scan_forward(text, set, pos, wanted);
}

/// Last position up to `pos` whose membership in `set` is `wanted`.
inline unsigned long last(std::string_view text, std::string_view set, unsigned long pos,
                          bool wanted) {
    unsigned long end = text.empty() ? 0 : last(text, pos) + 1;
    for (unsigned long probe = 0; probe < kProbes; ++probe) {
        if (end == 0) {
            return npos;
        }
        if (contains(set, text[--end]) == wanted) {
            return end;
        }
    }
    return scan_backward(text, set, end, wanted);
}

inline unsigned long find_first_of(std::string_view text, std::string_view set, unsigned long pos) {
    return set.size() == 1 ? text.find(set[0], pos) : first(text, set, pos, true);
}

inline unsigned long find_first_not_of(std::string_view text, std::string_view set,
                                       unsigned long pos) {
    return first(text, set, pos, false);
}

inline unsigned long find_last_of(std::string_view text, std::string_view set, unsigned long pos) {
    return set.size() == 1 ? text.rfind(set[0], pos) : last(text, set, pos, true);
}

inline unsigned long find_last_not_of(std::string_view text, std::string_view set,
                                      unsigned long pos) {
    return last(text, set, pos, false);
}

}  // namespace ustring_search
