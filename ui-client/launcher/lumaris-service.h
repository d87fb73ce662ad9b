// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Base of the install and upgrade service: knows all paths, loads the two versions and replaces
/// the per-user bundle, with rollback.
///
/// Source means the installed per-user copy, target the package that the launcher ships. One object
/// serves one run, on one thread; the static path operations may be called from any thread once
/// the application object exists. Failures are logged where they are found; nothing throws.
class Service {
public:
    Service() = default;
    virtual ~Service();
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;

    virtual void StopService() = 0;
    virtual void SetTimeout(int timeout);
    virtual int HandlePackageUpgrade() = 0;
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;
    /// Extracts the shipped package into the per-user bundle folder. 0 for success.
    virtual int ExtractPackage();
    /// Reads the version of the installed copy. A member whose key is missing keeps its value.
    virtual void LoadSourceVersion();
    /// Reads the version of the shipped package. A member whose key is missing keeps its value.
    virtual void LoadTargetVersion();
    /// Replaces the per-user bundle by the shipped package; a failed extraction is rolled back to
    /// the old bundle. 0 when the bundle now holds the package, otherwise -1.
    virtual int PrepareUserEnv();

    /// Undoes an interrupted upgrade, or finishes it if the new bundle is complete. Call this
    /// before the versions are read.
    void RecoverUserEnv();
    /// Removes the application folder of an older layout; a failure is ignored.
    void RemoveAgedFolders();
    /// Copies a file or a folder tree. 0 for success, -1 for failure (copied entries stay).
    int FSCopyPath(const ustring &src, const ustring &dst);

    static ustring GetUserInstallPath();             // {home}
    static ustring GetUserLumarisInstallPath();      // {home}/.LumarisBackup
    static ustring GetUserLumarisAppInstallPath();   // {home}/.LumarisBackup/Lumaris.app
    static ustring GetUserLumarisDataInstallPath();  // {home}/.LumarisBackup/data
    static ustring GetRootLumarisInstallPath();      // the launcher's own bundle
    static ustring GetRootLumarisResourceInstallPath();

protected:
    int m_timeout = 0;  // milliseconds; no step of the upgrade uses it
    ustring m_user_app_path;
    ustring m_target_major_version;
    ustring m_target_minor_version;
    ustring m_target_build_version;
    ustring m_target_icon_overlay_version;
    ustring m_source_major_version;
    ustring m_source_minor_version;
    ustring m_source_build_version;
    ustring m_source_icon_overlay_version;
};

/// Paths of an application that keeps its data beside its executable.
struct PackageInfo {
    PackageInfo();

    ustring images;
    ustring log;
    ustring debug_file;
    ustring package;
    ustring conf;
};
