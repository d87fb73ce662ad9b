// SPDX-License-Identifier: MIT
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <QString>
#include <algorithm>
#include <array>

#include "compare.h"

namespace {

using benchmark::DoNotOptimize;

void CompareBuilding() {
    Compare(
        "ustring-construct-append",
        [] {
            for (const Path &path : Paths()) {
                ustring text(path.text.c_str());
                text.append("/");
                text.append("Contents");
                DoNotOptimize(text.c_str());
            }
        },
        [] {
            for (const Path &path : Paths()) {
                QString text = QString::fromUtf8(path.text.c_str());
                text.append(QString::fromUtf8("/"));
                text.append(QString::fromUtf8("Contents"));
                DoNotOptimize(text.constData());
            }
        });
}

/// ICU with buffers that exist and are large enough, and with known lengths.
struct Icu {
    std::array<UChar, 256> units;
    std::array<UChar, 256> normal;
    std::array<char, 768> bytes;

    int32_t FromUtf8(const std::string &text) {
        int32_t length = 0;
        UErrorCode status = U_ZERO_ERROR;
        u_strFromUTF8(units.data(), int32_t(units.size()), &length, text.data(),
                      int32_t(text.size()), &status);
        return length;
    }
    void ToUtf8(const UChar *text, int32_t length) {
        int32_t written = 0;
        UErrorCode status = U_ZERO_ERROR;
        u_strToUTF8(bytes.data(), int32_t(bytes.size()), &written, text, length, &status);
        DoNotOptimize(bytes.data());
    }
    int32_t Normalize(const UNormalizer2 *form, int32_t length) {
        UErrorCode status = U_ZERO_ERROR;
        return unorm2_normalize(form, units.data(), length, normal.data(), int32_t(normal.size()),
                                &status);
    }
};

void CompareRoundTrip() {
    // One object per path: after the first run its buffers fit, as the peer's do.
    static std::vector<ustring> there(Paths().size()), back(Paths().size());
    static Icu icu;
    Compare(
        "ustring-utf16",
        [] {
            for (size_t i = 0; i < Paths().size(); ++i) {
                there[i].assign(Paths()[i].text.c_str());
                back[i].assign(there[i].c_str_utf16());
                DoNotOptimize(back[i].c_str());
            }
        },
        [] {
            for (const Path &path : Paths()) {
                icu.ToUtf8(icu.units.data(), icu.FromUtf8(path.text));
            }
        });
}

void CompareNormalize(const char *name, ustring::normalization_form form,
                      UNormalization2Mode mode) {
    static Icu icu;
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2 *const icu_form = unorm2_getInstance(nullptr, "nfc", mode, &status);
    Compare(
        name,
        [form] {
            for (const Path &path : Paths()) {
                DoNotOptimize(path.own.normalize(form).c_str());
            }
        },
        [icu_form] {
            for (const Path &path : Paths()) {
                const int32_t length = icu.Normalize(icu_form, icu.FromUtf8(path.text));
                icu.ToUtf8(icu.normal.data(), length);
            }
        });
}

}  // namespace

void CompareStrings() {
    CompareBuilding();
    CompareRoundTrip();
    CompareNormalize("ustring-normalize-nfc", ustring::NFC, UNORM2_COMPOSE);
    CompareNormalize("ustring-normalize-nfd", ustring::NFD, UNORM2_DECOMPOSE);
}
