// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the desktop knows about application bundles. Worker thread; calls block until done.
namespace LaunchServices {

/// Makes the desktop forget the bundle at that path. Returns 0, or the result of the tool that
/// failed (negative when it could not be started).
int UnregisterBundle(const QString &bundle);

/// Starts the application bundle at that path. Returns false when it cannot be started.
bool OpenBundle(const QString &bundle);

}  // namespace LaunchServices
