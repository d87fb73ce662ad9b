// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The desktop's handling of application bundles. Worker thread; calls block until done.
namespace LaunchServices {

/// Removes the bundle at that path from the desktop's registry. Returns 0, or the result of the
/// tool that failed (negative when it could not be started).
int UnregisterBundle(const QString &bundle);

/// Starts the application bundle at that path. Returns false when it cannot be started.
bool OpenBundle(const QString &bundle);

}  // namespace LaunchServices
