// SPDX-License-Identifier: MIT
#include "system-path.h"

#include <cerrno>
#include <cstring>

#include "folder-names_linux.h"

namespace {

/// Most names have only one spelling and need no system call here. The only ASCII characters with a
/// canonical equivalent outside ASCII are ';', '`' and 'K' (U+037E, U+1FEF and U+212A).
bool HasOtherSpelling(const ustring &text) {
    return !ustring::is_ascii(text) || std::strpbrk(text.c_str(), ";`K") != nullptr;
}

bool Exists(const ustring &path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

/// Respells a path component by component, each within the folder found so far.
ustring Respell(const ustring &path) {
    ustring found;
    for (unsigned long pos = 0; pos < path.length();) {
        if (path[pos] == '/') {
            found += '/';
            ++pos;
            continue;
        }
        const unsigned long slash = path.find('/', pos);
        const unsigned long end = slash == ustring::npos ? path.length() : slash;
        const ustring name = path.substr(pos, end - pos);
        const bool respell = HasOtherSpelling(name) && !Exists(found + name);
        found += respell ? StoredName(found, name, false) : name;
        pos = end;
    }
    return found;
}

}  // namespace

ustring SystemPath(const ustring &path) {
    ustring spelling = path;
    struct stat st;
    if (HasOtherSpelling(path)) {
        StatEntry(spelling, st);
    }
    return spelling;
}

int StatEntry(ustring &path, struct stat &st) {
    if (lstat(path.c_str(), &st) == 0) {
        return 0;
    }
    if (errno != ENOENT || !HasOtherSpelling(path)) {
        return errno;
    }
    path = Respell(path);
    return lstat(path.c_str(), &st) == 0 ? 0 : errno;
}
