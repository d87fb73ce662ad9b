// SPDX-License-Identifier: MIT
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <QString>
#include <algorithm>
#include <array>
#include <string_view>

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

/// One search in every path; `search` takes a ustring or a string_view.
template <typename Search>
void CompareSearch(const char *name, Search search) {
    Compare(
        name,
        [search] {
            for (const Path &path : Paths()) {
                DoNotOptimize(search(path.own));
            }
        },
        [search] {
            for (const Path &path : Paths()) {
                DoNotOptimize(search(std::string_view(path.text)));
            }
        });
}

void CompareSearches() {
    CompareSearch("ustring-find-byte", [](const auto &s) { return s.find('.', 0); });
    CompareSearch("ustring-find-text", [](const auto &s) { return s.find("Contents", 0); });
    CompareSearch("ustring-rfind-byte", [](const auto &s) { return s.rfind('/', ustring::npos); });
    CompareSearch("ustring-rfind-text",
                  [](const auto &s) { return s.rfind("/Contents", ustring::npos); });
    CompareSearch("ustring-find-first-of", [](const auto &s) { return s.find_first_of(":.", 0); });
    CompareSearch("ustring-find-first-not-of", [](const auto &s) {
        return s.find_first_not_of("/ABCDEUabcdefghijklmnopqrstu", 0);
    });
    CompareSearch("ustring-find-last-of",
                  [](const auto &s) { return s.find_last_of("/\\", ustring::npos); });
    CompareSearch("ustring-find-last-not-of", [](const auto &s) {
        return s.find_last_not_of("abcdefghijklmnopqrstuvwxyz", ustring::npos);
    });
}

/// Every path with its neighbour and with an equal one in another place of the memory.
void CompareComparing() {
    static const std::vector<Path> copies = Paths();
    const auto each = [](auto view) {
        const std::vector<Path> &paths = Paths();
        for (size_t i = 0; i < paths.size(); ++i) {
            const auto &one = view(paths[i]), &copy = view(copies[i]);
            const auto &next = view(copies[(i + 1) % paths.size()]);
            DoNotOptimize(one.compare(copy));
            DoNotOptimize(one.compare(next));
        }
    };
    Compare(
        "ustring-compare", [each] { each([](const Path &p) -> const ustring & { return p.own; }); },
        [each] { each([](const Path &p) { return std::string_view(p.text); }); });
    const auto equal = [](auto view) {
        const std::vector<Path> &paths = Paths();
        for (size_t i = 0; i < paths.size(); ++i) {
            DoNotOptimize(view(paths[i]) == view(copies[i]));
            DoNotOptimize(view(paths[i]) < view(copies[(i + 1) % paths.size()]));
        }
    };
    Compare(
        "ustring-operators",
        [equal] { equal([](const Path &p) -> const ustring & { return p.own; }); },
        [equal] { equal([](const Path &p) { return std::string_view(p.text); }); });
}

/// ICU with buffers that exist already and are large enough, and with known lengths.
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
    // Objects of their own for every path: what they hold fits already, as the peer's buffers do.
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
    CompareSearches();
    CompareComparing();
    CompareRoundTrip();
    CompareNormalize("ustring-normalize-nfc", ustring::NFC, UNORM2_COMPOSE);
    CompareNormalize("ustring-normalize-nfd", ustring::NFD, UNORM2_DECOMPOSE);
}
