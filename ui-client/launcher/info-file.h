// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

#include "ustring.h"

/// The group of an INFO file that holds the version, and its keys in the order of the log.
inline constexpr char kVersionGroup[] = "Version";
inline constexpr std::array<const char *, 4> kVersionKeys = {
    "major_version", "minor_version", "build_version", "icon_overlay_version"};

/// The values in the order of the keys, without one for a key that the file lacks.
using InfoTexts = std::array<std::optional<QString>, kVersionKeys.size()>;

/// Reads the INFO file at `path`. A file that is missing, unreadable, not regular or larger than
/// 1 MiB yields no values. Any thread.
InfoTexts ReadInfoFile(const ustring &path);
/// The same for the content of a file.
InfoTexts ParseInfo(const QByteArray &content);
