// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "ustring.h"

/// Key=value text file read into a sorted map.
///
/// The grammar is strict: one malformed line makes the whole file unreadable and empties the map.
/// Logs nothing; the caller decides what an unreadable file means.
class Config : public std::map<ustring, ustring> {
public:
    /// Adds every key of the file at `path`. Later keys replace earlier ones; entries of earlier
    /// reads stay. Returns 0, or -1 when the path is empty, the file cannot be opened, is no
    /// regular file or is larger than 1 MiB, or a line is malformed, which also empties the map.
    int read(const ustring &path);

    /// Parses one NUL-terminated line of `length` bytes and writes NUL bytes after its key and its
    /// value. Returns 0 for a key and a value, 1 for a blank line or comment, 2 for a malformed
    /// line.
    int parse(char *line, int length, ustring &key, ustring &value);

    /// The value of `key` as a decimal int; 0 when it is not a number. Adds a missing key with an
    /// empty value.
    int get_int(const ustring &key);
};
