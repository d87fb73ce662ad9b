#pragma once

#include "file-op.h"

// The steps of the public operations for a path that is already in its stored spelling: those
// operations respell their arguments once, and walks build on names that the file system listed.

namespace file_op {

/// GetFileInfo: system calls use `stored`, the spelling under which they reach `path`.
int Describe(const ustring &path, const ustring &stored, FILE_INFO &info);
/// The same; `length` is that of the real path as the file system stores it.
int Describe(const ustring &path, const ustring &stored, FILE_INFO &info, unsigned long &length);
/// FSStat, likewise.
int Stat(const ustring &path, const ustring &stored, FILE_INFO &info, bool exact);

/// A folder that a walk has described, for the entries listed in it.
struct Folder {
    ustring composed;             // its path as the walk builds it, composed (NFC)
    ustring real;                 // its stored path, composed (NFC)
    unsigned long stored_length;  // of the stored path, which composition may lengthen
};
/// Describe for an entry whose name and kind were just listed: says and fails the same, but asks
/// the system nothing, since the stored path is that of the folder plus the name.
int DescribeListed(const Folder &folder, const char *name);

int CopyFile(const ustring &src, const ustring &dst, bool remove_source);
int MakeFolder(const ustring &path, bool recursive);

}  // namespace file_op
