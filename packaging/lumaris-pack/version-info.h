// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "info-file.h"

/// The values, in the order of the keys.
using VersionInfo = std::array<std::string, kVersionKeys.size()>;

/// The text of an INFO file, the same bytes for the same version.
std::string InfoText(const VersionInfo &version);

/// How the INFO file at `path`, read as the launcher reads it, differs from `version`; empty when
/// all four values agree.
std::string InfoDifference(const std::string &path, const VersionInfo &version);
