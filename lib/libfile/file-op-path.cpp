// SPDX-License-Identifier: MIT
#include <cstring>

#include "file-op.h"

ustring FSParentPath(const ustring &path) {
    const unsigned long slash = path.rfind('/', ustring::npos);
    return slash == ustring::npos || slash == 0 ? ustring("/") : path.substr(0, slash);
}

ustring FSBaseName(const ustring &path) {
    const unsigned long slash = path.rfind('/', ustring::npos);
    return slash == ustring::npos ? path : path.substr(slash + 1, ustring::npos);
}

bool FSIsParentFolder(const ustring &parent, const ustring &child) {
    const unsigned long length = parent.length();
    if (child.length() < length) {
        return false;
    }
    const char next = child.c_str()[length];
    if (next != '\0' && next != '/') {
        return false;
    }
    return std::memcmp(child.c_str(), parent.c_str(), length) == 0;
}
