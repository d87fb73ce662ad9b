// SPDX-License-Identifier: MIT
// Bytes as an INFO file: whatever they are, the settings reader survives, and what is refused has
// no texts.

#undef NDEBUG  // an assertion ends the run, so that the input is kept as a finding

#include <cassert>

#include "info-file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    InfoTexts texts;
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<int>(size));
    assert(ParseInfo(content, texts) == 0 || texts == InfoTexts());
    return 0;
}
