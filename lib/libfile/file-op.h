// SPDX-License-Identifier: MIT
#pragma once

#include <dirent.h>

#include "ustring.h"

// File operations. Every path is UTF-8, and any canonically equivalent spelling of it finds the
// entry, even on file systems that compare names byte by byte. The functions keep no state and may
// be called from any thread. Most failures are logged, under "file_op_debug". Unless a comment says
// otherwise, an int result is 0 for success and -1 for failure. A failure halfway is not rolled
// back.

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

    /// Ignores owner, group, mode and device.
    bool operator==(const _FILE_INFO_tag &other) const;
    bool operator!=(const _FILE_INFO_tag &other) const { return !(*this == other); }
};
using FILE_INFO = _FILE_INFO_tag;

/// Option of FSOpenDir: fill `mtime` and `size` of every entry.
enum { DIR_FLAG_STAT = 1 };

/// An open directory; the caller of FSOpenDir closes it with FSCloseDir.
struct DIR_HANDLE {
    ustring path;
    int flags = 0;
    DIR *dir = nullptr;  // null when closed
};

struct DIR_ENTRY {
    ustring name;
    int type = 0;        // FILE_TYPE_...; FILE_TYPE_NONE where the file system lists no types
    long mtime = 0;      // seconds since the epoch; 0 without DIR_FLAG_STAT
    long long size = 0;  // bytes; 0 without DIR_FLAG_STAT
};

/// The text before the last '/'; "/" when there is none or it is the first byte. Purely textual.
ustring FSParentPath(const ustring &path);
/// The text after the last '/', empty when the path ends with one. Purely textual.
ustring FSBaseName(const ustring &path);
/// Whether `child` is `parent` or lies beneath it. Purely textual; a final '/' counts.
bool FSIsParentFolder(const ustring &parent, const ustring &child);

/// Describes an entry without following a final symbolic link. A missing entry is a success with
/// `exists` false; an existing one whose stored path cannot be found is a failure.
int GetFileInfo(const ustring &path, _FILE_INFO_tag &info);
/// With `exact`, true only if the stored path equals `path`, letter case included. Relative paths
/// and paths through symbolic links then count as missing.
bool IsFileExist(const ustring &path, bool exact);
/// GetFileInfo for what IsFileExist finds; for a missing entry only `exists` is set. Returns -1 for
/// an empty path, -2 when GetFileInfo fails.
int FSStat(const ustring &path, _FILE_INFO_tag &info, bool exact);
/// Replaces `path` by its stored path with symbolic links resolved. A failure leaves it unchanged.
int FSGetRealPath(ustring &path);

/// Copies the content of a file, flushes it to disk and, with `remove_source`, removes the source.
/// Returns -2 when the disk or the quota is full. A failure leaves a partial destination.
int FSCopy(const ustring &src, const ustring &dst, bool remove_source);
/// Moves an entry, across volumes too (folders and regular files only; other kinds stay where they
/// are and count as moved). Returns -1 for an empty argument, -2 for a missing source, -100 for a
/// name that is too long, -3 for any other failure.
int FSRename(const ustring &src, const ustring &dst, bool exact);
/// An existing directory is a success. Returns -2 when it could not be created.
int FSMKDir(const ustring &path, bool recursive);
/// Creates a directory and its parents. `mode` 0xFFFF means 0777 minus the umask; any other mode is
/// applied exactly, and the umask of the whole process is 0 during the call. `stop`, unless null,
/// is set to where the walk ended in the text of `path`. Sets errno on failure.
int FSMKDirP(const ustring &path, char **stop, bool replace_files, unsigned short mode);
/// Creates the levels of `target` beneath the existing `root`.
int FSMKDirFromRoot(const ustring &target, const ustring &root);
/// Removes a file, a whole tree or a symbolic link (not its target); a missing entry is a success.
/// The flag has no effect. Returns -1 when the entry cannot be described, -3 when it cannot be
/// removed.
int FSRemove(const ustring &path, bool);

/// Creates an empty file of mode 0644 with a random name in `dir`.
int FSMktemp(const ustring &dir, ustring &out);
/// A random path in `dir`; nothing is created.
int FSCreateTempPath(const ustring &dir, ustring &out);
/// Sets both times (seconds since the epoch) without following a final symbolic link.
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
/// Fails for a link text of 1024 bytes or more.
int FSReadSymbolicLink(const ustring &link, ustring &target);
/// Does not follow a final symbolic link.
int FSChown(const ustring &path, unsigned int uid, unsigned int gid);
