// SPDX-License-Identifier: MIT
#pragma once

#include <dirent.h>

#include "ustring.h"

// File operations. Every path is UTF-8; where names are bytes on disk, any canonically equivalent
// spelling of a path finds the entry. All functions may be called from any thread, keep no state;
// failures are logged under "file_op_debug" where a message helps. Unless a comment says otherwise,
// int results are 0 for success and -1 for failure. Nothing is rolled back after a failure half
// way.

/// File types; also used by DIR_ENTRY.
enum {
    FILE_TYPE_NONE = 0,  // missing, or unknown
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIRECTORY = 2,
    FILE_TYPE_SYMLINK = 3,
    FILE_TYPE_DEVICE = 5,  // character or block
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7
};

struct _FILE_INFO_tag {
    ustring path;        // of an existing entry: its stored path, composed (NFC)
    ustring name;        // last component of `path`
    int type = 0;        // FILE_TYPE_...
    long mtime = 0;      // seconds since the epoch
    long long size = 0;  // bytes
    bool exists = false;
    unsigned int uid = 0;
    unsigned int gid = 0;
    unsigned int mode = 0;  // file type and permission bits
    long long dev = 0;

    /// Compares what tells whether a file changed: not owner, group, mode and device.
    bool operator==(const _FILE_INFO_tag &other) const;
    bool operator!=(const _FILE_INFO_tag &other) const { return !(*this == other); }
};
using FILE_INFO = _FILE_INFO_tag;

/// Option of FSOpenDir: fill `mtime` and `size` of every entry.
enum { DIR_FLAG_STAT = 1 };

/// An open directory; whoever opens it closes it with FSCloseDir.
struct DIR_HANDLE {
    ustring path;
    int flags = 0;
    DIR *dir = nullptr;  // null when closed
};

struct DIR_ENTRY {
    ustring name;
    int type = 0;        // FILE_TYPE_..., NONE where the file system does not tell
    long mtime = 0;      // seconds since the epoch; 0 without DIR_FLAG_STAT
    long long size = 0;  // bytes; 0 without DIR_FLAG_STAT
};

/// Text before the last '/'; "/" when there is none or it comes first. Purely textual.
ustring FSParentPath(const ustring &path);
/// Text after the last '/', empty when the path ends with one. Purely textual.
ustring FSBaseName(const ustring &path);
/// Whether `child` is `parent` or lies beneath it. Purely textual; a final '/' counts.
bool FSIsParentFolder(const ustring &parent, const ustring &child);

/// Describes an entry, a symbolic link itself. A missing entry is a success with `exists` false; an
/// existing one whose stored path cannot be told is a failure.
int GetFileInfo(const ustring &path, _FILE_INFO_tag &info);
/// With `exact`, only when the stored path is the one asked for, letter case included (which makes
/// relative paths and paths through symbolic links count as missing).
bool IsFileExist(const ustring &path, bool exact);
/// GetFileInfo for what IsFileExist finds; of a missing entry only `exists` is set. Returns -1 for
/// an empty path, -2 when the information cannot be had.
int FSStat(const ustring &path, _FILE_INFO_tag &info, bool exact);
/// Replaces `path` by the stored path with symbolic links resolved; left alone on failure.
int FSGetRealPath(ustring &path);

/// Copies the content of a file, flushes it to disk and, with `remove_source`, removes the source.
/// Returns -2 when the disk or the quota is full; a partial destination stays.
int FSCopy(const ustring &src, const ustring &dst, bool remove_source);
/// Moves an entry, across volumes too (folders and regular files only; other kinds stay where they
/// are and count as moved). Returns -1 for an empty argument, -2 for a missing source, -100 for a
/// name that is too long, -3 for the rest.
int FSRename(const ustring &src, const ustring &dst, bool exact);
/// An existing directory is a success. Returns -2 when it could not be created.
int FSMKDir(const ustring &path, bool recursive);
/// Makes a directory and its parents. `mode` 0xFFFF means 0777 less the umask; another one is
/// applied exactly, with the umask of the whole process at 0 meanwhile. `stop` (may be null) is set
/// to where in the text of `path` the walk ended. Sets errno on failure.
int FSMKDirP(const ustring &path, char **stop, bool replace_files, unsigned short mode);
/// Makes the levels of `target` beneath the existing `root`.
int FSMKDirFromRoot(const ustring &target, const ustring &root);
/// Removes a file, a symbolic link itself or a whole tree; a missing entry is a success. The flag
/// changes nothing. Returns -1 when the entry cannot be described, -3 when it cannot be removed.
int FSRemove(const ustring &path, bool);

/// Creates an empty file of mode 0644 with a random name in `dir`.
int FSMktemp(const ustring &dir, ustring &out);
/// A random path in `dir`; nothing is created.
int FSCreateTempPath(const ustring &dir, ustring &out);
/// Sets both times (seconds since the epoch) of the entry itself, not of a link's target.
int FSUTime(const ustring &path, long atime, long mtime);

int FSOpenDir(const ustring &path, int flags, DIR_HANDLE &handle);
/// Returns 1 for an entry ("." and ".." included), 0 at the end, -1 for an error.
int FSReadDir(DIR_HANDLE &handle, DIR_ENTRY &entry);
void FSCloseDir(DIR_HANDLE &handle);

/// Equal to the second.
bool FSTimeEqual(long a, long b);
/// `mode` is that of access(). True only when access is denied; a missing entry is not locked.
bool isFileLocked(const ustring &path, int mode);
/// `mode` is that of access(). False only when access is denied; a missing entry gives true.
bool hasFilePermission(const ustring &path, int mode);
/// Whether `path` lies on a network file system.
bool isMountPoint(const ustring &path);
/// Whether `path` lies on a FAT file system.
bool IsMSDOS(const ustring &path);

int FSCreateSymbolicLink(const ustring &target, const ustring &link);
/// A link text of 1024 bytes or more is a failure.
int FSReadSymbolicLink(const ustring &link, ustring &target);
/// Changes a symbolic link itself.
int FSChown(const ustring &path, unsigned int uid, unsigned int gid);
