// SPDX-License-Identifier: MIT
#include "folder-names_linux.h"

#include <dirent.h>
#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <memory>

namespace {

/// Both names are composed. ustring and ICU hold the same UTF-16 units under different type names.
bool EqualButForCase(const ustring &a, const ustring &b) {
    return u_strcasecmp(reinterpret_cast<const UChar *>(a.c_str_utf16()),
                        reinterpret_cast<const UChar *>(b.c_str_utf16()), U_FOLD_CASE_DEFAULT) == 0;
}

bool SameName(const ustring &listed, const ustring &composed, bool fold_case) {
    if (!ustring::is_valid(listed)) {
        return false;
    }
    const ustring form = listed.normalize(ustring::NFC);
    return form == composed || (fold_case && EqualButForCase(form, composed));
}

}  // namespace

ustring StoredName(const ustring &folder, const ustring &name, bool fold_case) {
    const std::unique_ptr<DIR, int (*)(DIR *)> dir(opendir(folder.empty() ? "." : folder.c_str()),
                                                   closedir);
    if (!dir || !ustring::is_valid(name)) {
        return name;
    }
    const ustring composed = name.normalize(ustring::NFC);
    ustring found = name;
    while (const dirent *entry = readdir(dir.get())) {
        const ustring listed(static_cast<const char *>(entry->d_name));
        if (listed == name) {
            return name;
        }
        if (SameName(listed, composed, fold_case)) {
            found = listed;
        }
    }
    return found;
}
