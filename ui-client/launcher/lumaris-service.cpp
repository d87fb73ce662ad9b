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
#include "upgrade-journal.h"

#define LOG_MODULE "lumaris-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const int kBackupNames = 10;
const int kAsideNames = 100;  // more than kBackupNames: all backup names may be taken

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

/// Reads the INFO file at `path` into `members`, which have the order of `kVersionKeys`. A member
/// whose key is missing keeps its value.
void LoadVersion(const ustring &path,
                 const std::array<ustring *, std::tuple_size<InfoTexts>::value> &members) {
    const InfoTexts texts = ReadInfoFile(path);
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (texts[i]) {
            *members[i] = ToUString(*texts[i]);
        }
    }
}

/// Moves the bundle to the first free backup name and records the move in the journal. Sets
/// `backup` and returns the index of the name, or -1 when all names are taken.
int BackupApp(const ustring &app, UpgradeJournal &journal, ustring &backup) {
    for (int index = 0; index < kBackupNames; ++index) {
        backup = GetAppBackupDir(app, index);
        rmdir(backup.c_str());  // the rename would replace an empty folder, too
        if (journal.Begin(backup) && FSRename(app, backup, false) == 0) {
            return index;
        }
        journal.End();
        MSG_ERROR("failed to backup app from '%s' -> '%s'\n", app.c_str(), backup.c_str());
    }
    MSG_ERROR("failed to backup app from '%s' -> '%s' at max retries, exiting\n", app.c_str(),
              backup.c_str());
    return -1;
}

/// Removes the backups with the indices 0 to `last`. The record stays until all are gone, so that
/// the next start tries again.
void RemoveBackups(const ustring &app, int last, UpgradeJournal &journal) {
    bool removed = true;
    for (int index = 0; index <= last; ++index) {
        removed = FSRemove(GetAppBackupDir(app, index), false) == 0 && removed;
    }
    if (removed) {
        journal.End();
    }
}

/// The index of the last backup to remove after an upgrade that used `backup`. An empty `backup`
/// (a first installation) gives 0, so that a stale backup goes; -1 means not a backup name.
int LastBackup(const ustring &app, const ustring &backup) {
    if (backup.empty()) {
        return 0;
    }
    for (int index = 0; index < kBackupNames; ++index) {
        if (GetAppBackupDir(app, index) == backup) {
            return index;
        }
    }
    return -1;
}

/// Makes room for the new bundle. Sets `backup` if there is an old bundle. Returns the index of the
/// last backup to remove at the end, or -1 when there is no room.
int MoveAside(const ustring &app, UpgradeJournal &journal, ustring &backup) {
    if (journal.IsBegun(backup)) {
        // Recovery could not put the old bundle back, so its backup also serves this upgrade.
        return IsFileExist(app, false) ? -1 : LastBackup(app, backup);
    }
    if (IsFileExist(app, false)) {
        return BackupApp(app, journal, backup);
    }
    journal.Begin(backup);
    return 0;
}

/// Removes what an extraction left at `app`, or renames what cannot be removed: the old bundle must
/// get its name back, whatever the package contained. Returns the new name after a rename, else an
/// empty string.
ustring Discard(const ustring &app) {
    if (FSRemove(app, false) == 0) {
        return ustring();
    }
    for (int index = 0; index < kAsideNames; ++index) {
        const ustring aside = GetAppBackupDir(app, index);
        if (!IsFileExist(aside, false) && FSRename(app, aside, false) == 0) {
            MSG_WARNING("cannot remove '%s', renamed it to '%s'\n", app.c_str(), aside.c_str());
            return aside;
        }
    }
    MSG_ERROR("cannot remove '%s'\n", app.c_str());
    return ustring();
}

/// Puts the old bundle back in place of what an extraction left. If that fails, the record stays
/// and the next start tries again.
void PutBack(const ustring &app, const ustring &backup, UpgradeJournal &journal) {
    const ustring aside = Discard(app);
    if (FSRename(backup, app, false) != 0) {
        MSG_ERROR("failed to rename '%s' back to '%s'\n", backup.c_str(), app.c_str());
        return;
    }
    if (journal.End() && !aside.empty()) {
        FSRename(aside, backup, false);  // the next successful upgrade removes backups
    }
}

/// Handles a failed extraction. An empty `backup` means that there was no old bundle; the extracted
/// files then stay.
void Rollback(const ustring &app, const ustring &backup, UpgradeJournal &journal) {
    if (backup.empty()) {
        MSG_ERROR("Failed to extract package, and no old installation to rollback\n");
        journal.End();
        return;
    }
    MSG_ERROR("Failed to extract package, rollback to old installation\n");
    PutBack(app, backup, journal);
}

/// Undoes an upgrade that an earlier start began. An empty `backup` means a first installation. If
/// the backup cannot be looked up, the record stays and the next start tries again.
void GoBack(const ustring &app, const ustring &backup, UpgradeJournal &journal) {
    FILE_INFO info;
    rmdir(backup.c_str());  // an empty folder is no client
    if (backup.empty()) {
        Discard(app);
        journal.End();
    } else if (LastBackup(app, backup) < 0) {
        journal.End();  // not a name that we use
    } else if (GetFileInfo(backup, info) == 0) {
        if (info.exists) {
            PutBack(app, backup, journal);
        } else {
            journal.End();  // the old bundle was not moved yet, or is back already
        }
    }
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

void Service::RecoverUserEnv() {
    const ustring app = m_user_app_path;
    UpgradeJournal journal(app);
    ustring backup;
    if (journal.IsBegun(backup)) {
        MSG_WARNING("the last upgrade of '%s' was not finished, going back\n", app.c_str());
        GoBack(app, backup, journal);
    } else if (journal.IsCommitted(backup)) {
        RemoveBackups(app, LastBackup(app, backup), journal);
    }
}

int Service::PrepareUserEnv() {
    const ustring app = m_user_app_path;
    UpgradeJournal journal(app);
    ustring backup;
    const int index = MoveAside(app, journal, backup);
    if (index < 0) {
        return -1;
    }
    if (ExtractPackage() != 0) {
        Rollback(app, backup, journal);
        return -1;
    }
    // If the power fails after the backups are removed, the new files must already be on disk.
    if (SyncVolume(app) != 0) {
        const int error = errno;
        MSG_WARNING("failed to write '%s' to disk: %s (%d)\n", app.c_str(), strerror(error), error);
    }
    MSG_INFO("user installation is ready, removing backup app\n");
    if (journal.Commit()) {
        RemoveBackups(app, index, journal);
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
