// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <vector>

#include "file-op.h"
#include "log-macros.h"

// What the files of this library share. The log macros expect these two names.

#define LOG_MODULE "file-op"
inline const ustring LOG_COMPONENT("file_op_debug");

namespace file_op {

/// A path in two spellings: the one asked for, which messages name, and the one for system calls.
struct Place {
    ustring asked;
    ustring system;

    /// In the spelling asked for. Describe finds the other one; code that does not describe the
    /// entry starts with Respelled.
    explicit Place(const ustring &path) : asked(path), system(path) {}
    Place(const ustring &asked_path, const ustring &system_path)
        : asked(asked_path), system(system_path) {}

    static Place Respelled(const ustring &path);
    /// An entry that the folder lists under this name.
    Place Child(const ustring &name) const;
};

/// The FILE_TYPE_... of a mode word, NONE for kinds that have no number.
int TypeOfMode(mode_t mode);

/// GetFileInfo; respells the place. `stored` becomes the real path before it is composed.
int Describe(Place &place, FILE_INFO &info, ustring &stored);
int Describe(Place &place, FILE_INFO &info);
/// FSStat, likewise.
int Stat(Place &place, FILE_INFO &info, bool exact);

/// A folder that a walk has described.
struct Folder {
    ustring asked;   // composed (NFC)
    ustring real;    // the real path, composed (NFC)
    ustring stored;  // the real path as the file system stores it
};
/// Describe for an entry other than a folder that was just listed: writes the same messages and
/// fails in the same cases, but asks the system nothing, since the real path of the entry is that
/// of its folder and its name. So a removal makes one call per file.
int DescribeListed(const Folder &folder, const ustring &name);

/// FSOpenDir for a place that has been respelled.
int OpenFolder(const Place &place, int flags, DIR_HANDLE &handle);
/// Lists all entries but "." and "..". The stream is closed before the caller looks at the first
/// entry, so a walk needs no descriptor for each level and may change the folder. A read error
/// counts as the end. Returns 0, or -1 when the folder does not open.
int ListFolder(const Place &place, std::vector<DIR_ENTRY> &entries);

/// FSCopy for places that have been respelled.
int CopyFile(const Place &src, const Place &dst, bool remove_source);
/// FSMKDir; respells the place.
int MakeFolder(Place &place, bool recursive);

}  // namespace file_op
