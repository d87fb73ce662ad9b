// SPDX-License-Identifier: MIT
#include "lumaris-service.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <tuple>

#include "client-layout.h"
#include "extractor.h"
#include "file-op.h"
#include "info-file.h"
#include "install-paths.h"
#include "log-macros.h"
#include "qt-text.h"
#include "sync-volume.h"

#define LOG_MODULE "lumaris-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const int kBackupNames = 10;

/// Name under which the bundle is kept during an upgrade: "_tmp", "_tmp1" to "_tmp9".
ustring GetAppBackupDir(const ustring &app, int index) {
    const ustring backup = app + "_tmp";
    if (index == 0) {
        return backup;
    }
    char postfix[8];
    if (snprintf(postfix, sizeof(postfix), "%d", index) < 0) {
        MSG_ERROR("snprintf failed (continuing without postfix)");
        return backup;
    }
    return backup + postfix;
}

/// Reads the keys that the INFO file at `path` holds into their members, in the order of the keys.
void LoadVersion(const ustring &path,
                 const std::array<ustring *, std::tuple_size<InfoTexts>::value> &members) {
    InfoTexts texts;
    if (ReadInfoFile(ToQString(path), texts) != 0) {
        MSG_WARNING("ignored '%s': it holds more than text\n", path.c_str());
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (texts[i]) {
            *members[i] = ToUString(*texts[i]);
        }
    }
}

/// Moves the bundle to the first backup name that is free. Returns its index and sets `backup`,
/// or returns -1 when every name is taken.
int BackupApp(const ustring &app, ustring &backup) {
    for (int index = 0; index < kBackupNames; ++index) {
        backup = GetAppBackupDir(app, index);
        if (FSRename(app, backup, false) == 0) {
            return index;
        }
        MSG_ERROR("failed to backup app from '%s' -> '%s'\n", app.c_str(), backup.c_str());
    }
    MSG_ERROR("failed to backup app from '%s' -> '%s' at max retries, exiting\n", app.c_str(),
              backup.c_str());
    return -1;
}

/// 2 for a whole client. A package ends with the executable and then INFO, so an extraction that
/// was cut short lacks INFO, or both and then gives 0.
int Completeness(const ustring &bundle) {
    const auto has = [&bundle](const std::string &file) {
        return access((bundle + "/" + file).c_str(), F_OK) == 0;
    };
    return !has(kClientExecutable) ? 0 : has(std::string(kResources) + "/" + kInfoFile) ? 2 : 1;
}

/// After two failed upgrades in a row the bundle can be a partial one, while the last whole client
/// lies in a backup of the first: the most complete backup then takes the bundle's place. Nothing
/// happens when no backup is more complete than the bundle.
void RestoreClient(const ustring &app) {
    ustring best = app;
    for (int index = 0; index < kBackupNames; ++index) {
        const ustring backup = GetAppBackupDir(app, index);
        if (Completeness(backup) > Completeness(best)) {
            best = backup;
        }
    }
    if (best == app) {
        return;
    }
    MSG_WARNING("no whole client in '%s', restoring '%s'\n", app.c_str(), best.c_str());
    if (FSRemove(app, false) != 0 || FSRename(best, app, false) != 0) {
        MSG_ERROR("failed to restore '%s' from '%s'\n", app.c_str(), best.c_str());
    }
}

/// Puts the old bundle back in place of whatever the extraction left. An empty `backup` means that
/// there was no old bundle.
void Rollback(const ustring &app, const ustring &backup) {
    if (backup.empty()) {
        MSG_ERROR("Failed to extract package, and no old installation to rollback\n");
        return;
    }
    MSG_ERROR("Failed to extract package, rollback to old installation\n");
    FSRemove(app, false);
    FSRename(backup, app, false);
}

}  // namespace

Service::~Service() = default;

void Service::SetTimeout(int timeout) {
    m_timeout = timeout;
}

void Service::LoadTargetVersion() {
    LoadVersion(GetRootLumarisResourceInstallPath() + "/" + kInfoFile,
                {&m_target_major_version, &m_target_minor_version, &m_target_build_version,
                 &m_target_icon_overlay_version});
    MSG_INFO("target_version = (%s, %s, %s, %s)\n", m_target_major_version.c_str(),
             m_target_minor_version.c_str(), m_target_build_version.c_str(),
             m_target_icon_overlay_version.c_str());
}

void Service::LoadSourceVersion() {
    const ustring path = GetUserLumarisAppInstallPath() + "/" + kResources + "/" + kInfoFile;
    if (!IsFileExist(path, false)) {
        MSG_INFO("source does not exist\n");
        return;
    }
    LoadVersion(path, {&m_source_major_version, &m_source_minor_version, &m_source_build_version,
                       &m_source_icon_overlay_version});
    MSG_INFO("source_version = (%s, %s, %s, %s)\n", m_source_major_version.c_str(),
             m_source_minor_version.c_str(), m_source_build_version.c_str(),
             m_source_icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
    const ustring app = m_user_app_path;
    ustring backup;
    int index = 0;

    if (IsFileExist(app, false)) {
        index = BackupApp(app, backup);
        if (index < 0) {
            RestoreClient(app);
            return -1;
        }
    }
    if (ExtractPackage() != 0) {
        Rollback(app, backup);
        RestoreClient(app);
        return -1;
    }
    // A power failure must not find the backups removed and the new files still in memory.
    if (SyncVolume(app) != 0) {
        const int error = errno;
        MSG_WARNING("failed to write '%s' to disk: %s (%d)\n", app.c_str(), strerror(error), error);
    }
    MSG_INFO("user installation is ready, removing backup app\n");
    for (int used = 0; used <= index; ++used) {
        FSRemove(GetAppBackupDir(app, used), false);
    }
    return 0;
}

int Service::ExtractPackage() {
    const ustring package = GetRootLumarisResourceInstallPath() + "/" + kPackageFile;
    const ustring dest = GetUserLumarisAppInstallPath();
    if (FSMKDir(dest, true) < 0) {
        MSG_ERROR("failed to create folder: '%s'\n", dest.c_str());
        return -1;
    }
    MSG_INFO("extract package: '%s' -> '%s'\n", package.c_str(), dest.c_str());
    Extractor extractor;
    extractor.m_src_path = package;
    extractor.m_dest_path = dest;
    return extractor.Extract();
}

void Service::RemoveAgedFolders() {
    const ustring path = GetUserLumarisInstallPath() + "/app";
    MSG_INFO("removing aged app folder %s\n", path.c_str());
    FSRemove(path, false);
}

int Service::FSCopyPath(const ustring &src, const ustring &dst) {
    MSG_DEBUG("copy from '%s' to '%s'\n", src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) < 0) {
        MSG_ERROR("FSCopyPath: failed to stat source '%s'\n", src.c_str());
        return -1;
    }
    if (!info.exists) {
        MSG_ERROR("FSCopyPath: source path '%s' does not exist\n", src.c_str());
        return -1;
    }
    if (info.type != FILE_TYPE_DIRECTORY) {
        return FSCopy(src, dst, false) == 0 ? 0 : -1;
    }

    if (FSMKDir(dst, true) < 0) {
        MSG_ERROR("FSCopyPath: failed to create dest folder '%s'\n", dst.c_str());
        return -1;
    }
    DIR_HANDLE dir;
    if (FSOpenDir(src, 0, dir) < 0) {
        MSG_WARNING("FSCopyPath: failed to create handle  for src '%s' failed\n", src.c_str());
        return 0;
    }
    int result = 0;
    DIR_ENTRY entry;
    while (result == 0 && FSReadDir(dir, entry) > 0) {
        if (entry.name == "." || entry.name == "..") {
            continue;
        }
        const ustring from = src + "/" + entry.name, to = dst + "/" + entry.name;
        result = entry.type == FILE_TYPE_DIRECTORY ? FSCopyPath(from, to) : FSCopy(from, to, false);
        if (result != 0) {
            MSG_ERROR("FSCopyPath: failed to copy from '%s' to '%s'\n", from.c_str(), to.c_str());
            result = -1;
        }
    }
    FSCloseDir(dir);
    return result;
}

ustring Service::GetUserInstallPath() {
    return InstallPaths::Home();
}

ustring Service::GetUserLumarisInstallPath() {
    return InstallPaths::UserFolder();
}

ustring Service::GetUserLumarisAppInstallPath() {
    return InstallPaths::UserBundle();
}

ustring Service::GetUserLumarisDataInstallPath() {
    return InstallPaths::UserData();
}

ustring Service::GetRootLumarisInstallPath() {
    return InstallPaths::LauncherBundle();
}

ustring Service::GetRootLumarisResourceInstallPath() {
    return InstallPaths::LauncherResources();
}

PackageInfo::PackageInfo()
    : images(InstallPaths::ApplicationFolder() + "/images"),
      log(InstallPaths::Home() + "/.Lumaris_log"),
      debug_file(InstallPaths::ApplicationFolder() + "/log/launcher.debug"),
      package(InstallPaths::ApplicationFolder() + "/" + kPackageFile),
      conf(InstallPaths::ApplicationFolder() + "/conf") {}
