#include "lumaris-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QVariant>
#include <cstdio>

#include "extractor.h"
#include "file-op.h"
#include "log-macros.h"
#include "qt-text.h"

#define LOG_MODULE "lumaris-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const int kBackupNames = 10;

/// Name under which the bundle is kept during an upgrade: "_tmp", "_tmp1" to "_tmp9".
ustring GetAppBackupDir(const ustring &app, int index) {
    const ustring backup = app + "_tmp";
    if (index == 0)
        return backup;
    char postfix[8];
    if (snprintf(postfix, sizeof(postfix), "%d", index) < 0) {
        MSG_ERROR("snprintf failed (continuing without postfix)");
        return backup;
    }
    return backup + postfix;
}

struct Version {
    ustring &major;
    ustring &minor;
    ustring &build;
    ustring &icon_overlay;
};

/// The settings reader rebuilds whole objects from values such as "@Variant(...)", and a damaged
/// one ends the program. Looked for is the "@" before such a name, however quoted or escaped.
bool HoldsSerializedObject(const QString &path) {
    static const QRegularExpression object(
        QStringLiteral(R"((@|\\x[0-9a-fA-F]*40|\\[0-7]*100)["\s]*[VD\\])"));
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && QString::fromLatin1(file.readAll()).contains(object);
}

/// Reads the keys that the INFO file at `path` holds; a missing file holds none, and neither does
/// one that is more than text.
void ReadVersion(const ustring &path, const Version &version) {
    if (HoldsSerializedObject(ToQString(path))) {
        MSG_WARNING("ignored '%s': it holds more than text\n", path.c_str());
        return;
    }
    QSettings info(ToQString(path), QSettings::IniFormat);
    info.beginGroup(QStringLiteral("Version"));
    const auto read = [&info](const QString &key, ustring &member) {
        if (info.contains(key))
            member = ToUString(info.value(key).toString());
    };
    read(QStringLiteral("major_version"), version.major);
    read(QStringLiteral("minor_version"), version.minor);
    read(QStringLiteral("build_version"), version.build);
    read(QStringLiteral("icon_overlay_version"), version.icon_overlay);
}

/// Moves the bundle to the first backup name that is free. Returns its index and sets `backup`,
/// or returns -1 when every name is taken.
int BackupApp(const ustring &app, ustring &backup) {
    for (int index = 0; index < kBackupNames; ++index) {
        backup = GetAppBackupDir(app, index);
        if (FSRename(app, backup, false) == 0)
            return index;
        MSG_ERROR("failed to backup app from '%s' -> '%s'\n", app.c_str(), backup.c_str());
    }
    MSG_ERROR("failed to backup app from '%s' -> '%s' at max retries, exiting\n", app.c_str(),
              backup.c_str());
    return -1;
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

ustring ApplicationDir() {
    return ToUString(QCoreApplication::applicationDirPath());
}

}  // namespace

Service::~Service() = default;

void Service::SetTimeout(int timeout) {
    m_timeout = timeout;
}

void Service::LoadTargetVersion() {
    ReadVersion(GetRootLumarisResourceInstallPath() + "/" + "INFO",
                {m_target_major_version, m_target_minor_version, m_target_build_version,
                 m_target_icon_overlay_version});
    MSG_INFO("target_version = (%s, %s, %s, %s)\n", m_target_major_version.c_str(),
             m_target_minor_version.c_str(), m_target_build_version.c_str(),
             m_target_icon_overlay_version.c_str());
}

void Service::LoadSourceVersion() {
    const ustring path = GetUserLumarisAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        MSG_INFO("source does not exist\n");
        return;
    }
    ReadVersion(path, {m_source_major_version, m_source_minor_version, m_source_build_version,
                       m_source_icon_overlay_version});
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
        if (index < 0)
            return -1;
    }
    if (ExtractPackage() != 0) {
        Rollback(app, backup);
        return -1;
    }
    MSG_INFO("user installation is ready, removing backup app\n");
    for (int used = 0; used <= index; ++used)
        FSRemove(GetAppBackupDir(app, used), false);
    return 0;
}

int Service::ExtractPackage() {
    const ustring package = GetRootLumarisResourceInstallPath() + "/package/lumaris.wpk";
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
    if (info.type != FILE_TYPE_DIRECTORY)
        return FSCopy(src, dst, false) == 0 ? 0 : -1;

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
        if (entry.name == "." || entry.name == "..")
            continue;
        const ustring from = src + "/" + entry.name;
        const ustring to = dst + "/" + entry.name;
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
    return ToUString(QDir::homePath());
}

ustring Service::GetUserLumarisInstallPath() {
    return GetUserInstallPath() + "/" + ".LumarisBackup";
}

ustring Service::GetUserLumarisAppInstallPath() {
    return GetUserLumarisInstallPath() + "/" + "Lumaris.app";
}

ustring Service::GetUserLumarisDataInstallPath() {
    return GetUserLumarisInstallPath() + "/" + "data";
}

ustring Service::GetRootLumarisInstallPath() {
    const QString bundle =
        QCoreApplication::applicationDirPath() + QStringLiteral("/") + QStringLiteral("../..");
    return ToUString(QDir::cleanPath(bundle));
}

ustring Service::GetRootLumarisResourceInstallPath() {
    return GetRootLumarisInstallPath() + "/Contents/Resources";
}

PackageInfo::PackageInfo()
    : images(ApplicationDir() + "/images"),
      log(Service::GetUserInstallPath() + "/.Lumaris_log"),
      debug_file(ApplicationDir() + "/log/launcher.debug"),
      package(ApplicationDir() + "/package/lumaris.wpk"),
      conf(ApplicationDir() + "/conf") {}
