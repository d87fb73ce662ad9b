// SPDX-License-Identifier: MIT
#pragma once

// Where things lie inside a client bundle and inside the launcher's own. One home for these names:
// the launcher, the package builder and the tests build their paths from them.

/// The bundle of the client in the per-user folder.
inline constexpr char kClientBundle[] = "Lumaris.app";
/// The client's executable, below its bundle. The launcher starts an upgrade when it is missing.
inline constexpr char kClientExecutable[] = "Contents/MacOS/lumaris-backup-ui";
/// Resources, below any bundle.
inline constexpr char kResources[] = "Contents/Resources";
/// The version file, below the resources.
inline constexpr char kInfoFile[] = "INFO";
/// The package of the client, below the launcher's resources.
inline constexpr char kPackageFile[] = "package/lumaris.wpk";
