// SPDX-License-Identifier: MIT
#include "real-path.h"

#include <CoreServices/CoreServices.h>

// These functions are marked as deprecated, but their successors do not tell the stored form of a
// path without following a final symbolic link.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

const UInt8 *Bytes(const ustring &text) {
    return reinterpret_cast<const UInt8 *>(text.c_str());
}

}  // namespace

int RealPathOnce(const ustring &path, Leaf leaf, ustring &real) {
    FSRef ref;
    // An entry itself is asked for in the composed form, to which its real path is compared.
    OSStatus status =
        leaf == Leaf::kItself
            ? FSPathMakeRefWithOptions(Bytes(path.normalize(ustring::NFC)),
                                       kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr)
            : FSPathMakeRef(Bytes(path), &ref, nullptr);
    if (status != noErr) {
        return static_cast<int>(status);
    }
    UInt8 buffer[kRealPathSize] = {};
    status = FSRefMakePath(&ref, buffer, kRealPathSize);
    real = reinterpret_cast<const char *>(buffer);
    return status == fnfErr ? kRealPathVanished : static_cast<int>(status);
}
