// SPDX-License-Identifier: MIT
// Bytes as an INFO file: whatever they are, the settings reader survives.

#include "info-file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<int>(size));
    // Escapes can spell a serialized object, which is no more than its writer could do anyway.
    if (!content.contains('\\')) {
        ParseInfo(content);
    }
    return 0;
}
