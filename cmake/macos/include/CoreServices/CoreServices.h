// SPDX-License-Identifier: MIT
#pragma once

// The part of Core Services that the launcher calls, for scripts/macos.sh.

#include <cstdint>

typedef unsigned char Boolean;
typedef std::uint8_t UInt8;
typedef std::uint32_t UInt32;
typedef std::uint32_t OptionBits;
typedef std::int32_t OSStatus;

enum { noErr = 0, fnfErr = -43, pathTooLongErr = -2110 };
enum { kFSPathMakeRefDefaultOptions = 0, kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

struct FSRef {
    UInt8 hidden[80];
};

extern "C" {
OSStatus FSPathMakeRef(const UInt8 *path, FSRef *ref, Boolean *isDirectory)
    __attribute__((deprecated));
OSStatus FSPathMakeRefWithOptions(const UInt8 *path, OptionBits options, FSRef *ref,
                                  Boolean *isDirectory) __attribute__((deprecated));
OSStatus FSRefMakePath(const FSRef *ref, UInt8 *path, UInt32 pathBufferSize)
    __attribute__((deprecated));
}
