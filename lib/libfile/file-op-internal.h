// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <vector>

#include "file-op.h"
#include "log-macros.h"

// Shared by the files of this library. The log macros expect the next two names.

#define LOG_MODULE "file-op"
inline const ustring LOG_COMPONENT("file_op_debug");

namespace file_op {

// One path has up to four spellings. Say that the caller asks for Grüße in /home/me, a symbolic
// link to /data, and that the disk stores the "ü" as "u" with a combining diaeresis, here "u~":
//
//     asked     /home/me/Grüße     what the caller passed; messages name it
//     system    /home/me/Gru~ße    what system calls need: every name as its folder lists it
//     stored    /data/Gru~ße       the real path: no links, every name as its folder lists it
//     real      /data/Grüße        the real path, composed (NFC): what FILE_INFO holds

/// A path in the two spellings that operations need.
struct Place {
    ustring asked;
    ustring system;

    /// `system` is not looked up yet: RespellAndDescribe does that. Other code uses Respelled.
    explicit Place(const ustring &path) : asked(path), system(path) {}
    Place(const ustring &asked_path, const ustring &system_path)
        : asked(asked_path), system(system_path) {}

    static Place Respelled(const ustring &path);
    /// The entry that this folder lists under `name`.
    Place Child(const ustring &name) const;
};

/// The FILE_TYPE_... of a mode word; FILE_TYPE_NONE for kinds without a code.
int TypeOfMode(mode_t mode);

/// GetFileInfo that also looks up `place.system` and the real path as it is stored.
int RespellAndDescribe(Place &place, FILE_INFO &info, ustring &stored);
int RespellAndDescribe(Place &place, FILE_INFO &info);
/// FSStat that also looks up `place.system`.
int RespellAndStat(Place &place, FILE_INFO &info, bool exact);

/// A folder that a walk has described.
struct Folder {
    ustring asked;  // composed (NFC)
    ustring real;
    ustring stored;
};
/// RespellAndDescribe for an entry that was just listed and is not a folder. It logs and fails
/// alike, but makes no system call: the real path is that of the folder plus the name. Removing a
/// file thus takes a single call.
int DescribeListed(const Folder &folder, const ustring &name);

/// FSOpenDir for a place that has been respelled.
int OpenFolder(const Place &place, int flags, DIR_HANDLE &handle);
/// Lists all entries except "." and "..", and closes the stream before it returns: a walk holds no
/// descriptor per level and may change the folder. A read error counts as the end. Returns 0, or -1
/// when the folder cannot be opened.
int ListFolder(const Place &place, std::vector<DIR_ENTRY> &entries);

/// FSCopy for places that have been respelled.
int CopyFile(const Place &src, const Place &dst, bool remove_source);
/// FSMKDir that also looks up `place.system`.
int MakeFolder(Place &place, bool recursive);

}  // namespace file_op
