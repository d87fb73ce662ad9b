// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

#include "ustring.h"

/// The group of an INFO file that holds the version, and its keys in the order of a logged version.
inline constexpr char kVersionGroup[] = "Version";
inline constexpr std::array<const char *, 4> kVersionKeys = {
    "major_version", "minor_version", "build_version", "icon_overlay_version"};

/// The texts of the keys, in their order; none for a key that the file lacks.
using InfoTexts = std::array<std::optional<QString>, kVersionKeys.size()>;

/// Reads the INFO file at `path`. One that is missing, unreadable, no regular file or larger than
/// 1 MiB has no keys. Any thread.
InfoTexts ReadInfoFile(const ustring &path);
/// The same for the bytes of a file.
InfoTexts ParseInfo(const QByteArray &content);
