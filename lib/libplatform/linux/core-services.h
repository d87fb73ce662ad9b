#pragma once

#include <cstdint>

#include "ustring.h"

// What the launcher uses of Core Services, for a system that has none. Names, numbers and
// behaviour are those of the original, so that callers need no second version.

using UInt8 = std::uint8_t;
using UInt32 = std::uint32_t;
using OptionBits = std::uint32_t;
using OSStatus = std::int32_t;
using Boolean = unsigned char;

enum : OSStatus {
    noErr = 0,
    ioErr = -36,
    bdNamErr = -37,  // a name longer than the file system takes
    tmfoErr = -42,   // too many files open
    fnfErr = -43,
    paramErr = -50,
    permErr = -54,
    memFullErr = -108,
    dirNFErr = -120,         // a parent is not a folder
    pathTooLongErr = -2110,  // a path longer than the system or the buffer takes
};

enum : OptionBits {
    kFSPathMakeRefDefaultOptions = 0,
    kFSPathMakeRefDoNotFollowLeafSymlink = 1,
};

/// An existing entry. Holds its stored path; the original's is opaque.
struct FSRef {
    ustring path;
};

/// Finds an existing entry. `path` is NUL-terminated UTF-8 in any canonically equivalent spelling;
/// an entry whose name matches byte for byte is preferred. `isDirectory` may be null.
/// Letter case is not folded: where a file system ignores it, the case asked for comes back.
OSStatus FSPathMakeRefWithOptions(const UInt8 *path, OptionBits options, FSRef *ref,
                                  Boolean *isDirectory);
/// The same with symbolic links followed.
OSStatus FSPathMakeRef(const UInt8 *path, FSRef *ref, Boolean *isDirectory);

/// Writes the stored path (absolute, NUL-terminated); one that does not fit is an error.
OSStatus FSRefMakePath(const FSRef *ref, UInt8 *path, UInt32 pathBufferSize);
