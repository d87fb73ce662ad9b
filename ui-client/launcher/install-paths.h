// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The paths of the launcher and of what it installs. Any thread, once the application object
/// exists.
namespace InstallPaths {

ustring Home();               // {home}
ustring UserFolder();         // {home}/.LumarisBackup
ustring UserBundle();         // {home}/.LumarisBackup/Lumaris.app
ustring UserData();           // {home}/.LumarisBackup/data
ustring ApplicationFolder();  // of the launcher's executable
ustring LauncherBundle();     // the launcher's own bundle
ustring LauncherResources();  // {launcher bundle}/Contents/Resources

}  // namespace InstallPaths
