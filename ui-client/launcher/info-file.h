// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

/// The group of an INFO file that holds the version, and its keys in the order of a logged version.
inline constexpr char kVersionGroup[] = "Version";
inline constexpr std::array<const char *, 4> kVersionKeys = {
    "major_version", "minor_version", "build_version", "icon_overlay_version"};

/// The texts of the keys, in their order; none for a key that the file lacks.
using InfoTexts = std::array<std::optional<QString>, kVersionKeys.size()>;

/// Reads the INFO file at `path`; one that is missing or unreadable has no keys.
///
/// Returns 0, or -1 when a value of the group begins with a serialized object: the settings reader
/// would rebuild it, and a damaged one ends the program there. `texts` is empty then. Any thread.
int ReadInfoFile(const QString &path, InfoTexts &texts);
/// The same for the bytes of a file.
int ParseInfo(const QByteArray &content, InfoTexts &texts);
