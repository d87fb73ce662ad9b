// SPDX-License-Identifier: MIT
#pragma once

// Names and paths inside the client's bundle and the launcher's. The launcher, the package builder
// and the tests all build their paths from these.

/// The bundle of the client in the per-user folder.
inline constexpr char kClientBundle[] = "Lumaris.app";
/// The client's executable, relative to its bundle. If it is missing, the launcher upgrades.
inline constexpr char kClientExecutable[] = "Contents/MacOS/lumaris-backup-ui";
/// The resources, relative to either bundle.
inline constexpr char kResources[] = "Contents/Resources";
/// The version file, relative to the resources.
inline constexpr char kInfoFile[] = "INFO";
/// The package of the client, relative to the launcher's resources.
inline constexpr char kPackageFile[] = "package/lumaris.wpk";
