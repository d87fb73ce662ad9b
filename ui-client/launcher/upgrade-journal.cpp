// SPDX-License-Identifier: MIT
#include "upgrade-journal.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "file-op.h"
#include "log-macros.h"

#define LOG_MODULE "lumaris-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const char kFirstInstallation[] = "first-installation";

/// False also when the path cannot be looked up: the user's only client may be there.
bool IsMissing(const ustring &path) {
    FILE_INFO info;
    return GetFileInfo(path, info) == 0 && !info.exists;
}

/// Succeeds as well when the link is missing.
bool Remove(const ustring &link) {
    if (unlink(link.c_str()) == 0 || errno == ENOENT) {
        return true;
    }
    const int error = errno;
    MSG_WARNING("failed to remove '%s': %s (%d)\n", link.c_str(), strerror(error), error);
    return false;
}

}  // namespace

UpgradeJournal::UpgradeJournal(const ustring &app)
    : m_app(app), m_begun(app + "_upgrade"), m_committed(app + "_upgraded") {}

bool UpgradeJournal::Begin(const ustring &backup) {
    if (!IsMissing(backup.empty() ? m_app : backup)) {
        return false;
    }
    // Left by an earlier upgrade, it would have the next start remove this one's backup.
    ustring stale;
    if (IsCommitted(stale)) {
        End();
    }
    const ustring target = backup.empty() ? ustring(kFirstInstallation) : FSBaseName(backup);
    if (symlink(target.c_str(), m_begun.c_str()) == 0) {
        m_record = m_begun;
    } else if (!m_warned) {
        const int error = errno;
        MSG_WARNING("upgrading without a record, '%s': %s (%d)\n", m_begun.c_str(), strerror(error),
                    error);
        m_warned = true;
    }
    return true;
}

bool UpgradeJournal::Commit() {
    if (m_record.empty()) {
        return true;
    }
    if (rename(m_record.c_str(), m_committed.c_str()) == 0) {
        m_record = m_committed;
        return true;
    }
    // If the name of the second record is taken, only remove the first one. The backup may then
    // stay behind, but the next start does not put it back.
    return End();
}

bool UpgradeJournal::End() {
    if (!m_record.empty() && !Remove(m_record)) {
        return false;
    }
    m_record.clear();
    return true;
}

bool UpgradeJournal::IsBegun(ustring &backup) {
    return Read(m_begun, backup);
}

bool UpgradeJournal::IsCommitted(ustring &backup) {
    return Read(m_committed, backup);
}

bool UpgradeJournal::Read(const ustring &link, ustring &backup) {
    FILE_INFO info;
    ustring target;
    if (FSStat(link, info, false) != 0 || info.type != FILE_TYPE_SYMLINK ||
        FSReadSymbolicLink(link, target) != 0) {
        return false;
    }
    backup = target == kFirstInstallation ? ustring() : FSParentPath(m_app) + "/" + target;
    m_record = link;
    return true;
}
