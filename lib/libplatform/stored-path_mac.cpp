#include "stored-path.h"

// The file system compares names by canonical equivalence: every spelling reaches the entry.

ustring StoredPath(const ustring &path) {
    return path;
}

const ustring &LookupPath(const ustring &composed, const ustring &) {
    return composed;
}
