#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "stored-path.h"

namespace {

struct CloseDir {
    void operator()(DIR *dir) const { closedir(dir); }
};

bool IsAscii(const char *text) {
    while (*text != '\0' && static_cast<unsigned char>(*text) < 0x80) {
        ++text;
    }
    return *text == '\0';
}

/// Most names have one spelling only, which saves every system call here. Within ASCII, ';', '`'
/// and 'K' alone have an equivalent outside it (U+037E, U+1FEF and U+212A).
bool HasOtherSpelling(const ustring &text) {
    return !IsAscii(text.c_str()) || std::strpbrk(text.c_str(), ";`K") != nullptr;
}

bool Exists(const ustring &path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

/// The name of the entry in `folder` that is `name` in another spelling; `name` when there is none.
ustring FindEquivalent(const ustring &folder, const ustring &name) {
    const std::unique_ptr<DIR, CloseDir> dir(opendir(folder.empty() ? "." : folder.c_str()));
    if (!dir || !ustring::is_valid(name)) {
        return name;
    }
    const ustring wanted = name.normalize(ustring::NFC);
    while (const dirent *entry = readdir(dir.get())) {
        const ustring stored(static_cast<const char *>(entry->d_name));
        // A name in ASCII is its own composed form.
        const bool equivalent =
            IsAscii(entry->d_name)
                ? stored == wanted
                : ustring::is_valid(stored) && stored.normalize(ustring::NFC) == wanted;
        if (equivalent) {
            return stored;
        }
    }
    return name;
}

}  // namespace

ustring StoredPath(const ustring &path) {
    if (!HasOtherSpelling(path) || Exists(path) || errno != ENOENT) {
        return path;
    }
    ustring stored;
    for (unsigned long pos = 0; pos < path.length();) {
        if (path[pos] == '/') {
            stored += '/';
            ++pos;
            continue;
        }
        const unsigned long slash = path.find('/', pos);
        const unsigned long end = slash == ustring::npos ? path.length() : slash;
        const ustring name = path.substr(pos, end - pos);
        stored +=
            HasOtherSpelling(name) && !Exists(stored + name) ? FindEquivalent(stored, name) : name;
        pos = end;
    }
    return stored;
}

const ustring &LookupPath(const ustring &, const ustring &stored) {
    return stored;
}
