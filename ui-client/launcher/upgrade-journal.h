// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Records beside the bundle what an upgrade is about to do, so that the next start knows how far
/// an interrupted one came. The record is a symbolic link, which is made, renamed and removed
/// whole:
///
///     Lumaris.app_upgrade  -> Lumaris.app_tmp   The bundle is being replaced. While the backup
///                                               exists, what the bundle's name holds is
///                                               unfinished.
///     Lumaris.app_upgraded -> Lumaris.app_tmp   The bundle is new. Backups remain to be removed.
///
/// A first installation has no backup; its link names "first-installation" instead.
///
/// One thread. A step that fails is logged here, once, with its cause.
class UpgradeJournal {
public:
    explicit UpgradeJournal(const ustring &app);

    /// To be called before the bundle is moved to the path `backup`; empty for a first
    /// installation. Nothing is recorded when something exists where nothing must: the record would
    /// have the next start take it for the old bundle, or remove it. Without a record the upgrade
    /// goes on.
    void Begin(const ustring &backup);
    /// The new bundle is whole and on disk. False when the record could not be changed: the backup
    /// must stay then, since the next start goes back to it.
    bool Commit();
    /// The bundle was put back, or the backups are gone. False when a record could not be removed.
    bool End();

    /// What earlier starts left: whether there is a record of an upgrade that was begun or
    /// committed. `backup` becomes the path that it names, empty for a first installation.
    bool IsBegun(ustring &backup) const;
    bool IsCommitted(ustring &backup) const;

private:
    bool Read(const ustring &link, ustring &backup) const;

    const ustring m_app;
    const ustring m_begun;
    const ustring m_committed;
};
