// SPDX-License-Identifier: MIT
#include "config.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <sstream>

#include "regular-file.h"

namespace {

bool is_blank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool is_key_char(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

/// True also for the NUL that ends the line, and false for bytes from 128 up.
bool is_control(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

char *skip_blanks(char *p) {
    while (is_blank(*p)) {
        ++p;
    }
    return p;
}

}  // namespace

int Config::read(const ustring &path) {
    if (path.empty()) {
        return -1;
    }
    const int descriptor = OpenTextFile(path);
    if (descriptor < 0) {
        return -1;
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(fdopen(descriptor, "r"),
                                                                std::fclose);
    if (file == nullptr) {
        close(descriptor);
        return -1;
    }

    ustring key, value;  // outside the loop to reuse their buffers
    char line[8192];     // a longer line counts as several lines
    while (std::fgets(line, sizeof(line), file.get()) != nullptr) {
        const int result = parse(line, static_cast<int>(std::strlen(line)), key, value);
        if (result == 0) {
            (*this)[key] = value;
        } else if (result == 2) {
            clear();
            return -1;
        }
    }
    return 0;
}

int Config::parse(char *line, int /*length*/, ustring &key, ustring &value) {
    char *const key_begin = skip_blanks(line);
    char *key_end = key_begin;
    while (is_key_char(*key_end)) {
        ++key_end;
    }
    if (*key_end == '\0' || *key_end == '#') {
        return 1;
    }

    char *const equals = skip_blanks(key_end);
    if (*equals != '=' || *skip_blanks(equals + 1) == '\0') {
        return 2;
    }

    char *const text = skip_blanks(equals + 1);
    const bool quoted = *text == '"' || *text == '\'';
    const char end_mark = quoted ? *text : ' ';
    char *const value_begin = quoted ? text + 1 : text;
    char *value_end = value_begin;
    while (!is_control(*value_end) && *value_end != end_mark) {
        ++value_end;
    }
    if (quoted && *value_end != end_mark) {
        return 2;
    }

    const char *const rest = skip_blanks(quoted ? value_end + 1 : value_end);
    if (*rest != '\0' && *rest != '#') {
        return 2;
    }

    *key_end = '\0';
    *value_end = '\0';
    key = key_begin;
    value = value_begin;
    return 0;
}

int Config::get_int(const ustring &key) {
    std::istringstream text((*this)[key].c_str());
    int number = 0;
    text >> number;  // leaves 0 behind when there is no number
    return number;
}
