// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Records beside the bundle what an upgrade is about to do, so that the next start knows how far
/// an interrupted upgrade got. The record is a symbolic link, since a link is created, renamed and
/// removed in a single step:
///
///     Lumaris.app_upgrade  -> Lumaris.app_tmp   The bundle is being replaced. While the backup
///                                               exists, Lumaris.app is incomplete.
///     Lumaris.app_upgraded -> Lumaris.app_tmp   The new bundle is complete. The backups have yet
///                                               to be removed.
///
/// A first installation has no backup; its link names "first-installation" instead.
///
/// One thread. A step that fails is logged here, once, with its cause.
class UpgradeJournal {
public:
    explicit UpgradeJournal(const ustring &app);

    /// Call this before the bundle is moved to the path `backup`, which is empty for a first
    /// installation. Returns false and records nothing if an entry exists at `backup` (at the
    /// bundle's path for a first installation), or may exist: the next start would take it for the
    /// old bundle, or remove it. A record that cannot be made is logged; the upgrade goes on.
    bool Begin(const ustring &backup);
    /// Call this when the new bundle is complete and on disk. False when the record could not be
    /// changed: keep the backup then, since the next start goes back to it.
    bool Commit();
    /// Removes the record that this object made or found, if any. Call this when the old bundle is
    /// back or the backups are gone. False when it could not be removed.
    bool End();

    /// Whether an earlier start left the record of a begun or of a committed upgrade. `backup`
    /// becomes the path that the record names, empty for a first installation.
    bool IsBegun(ustring &backup);
    bool IsCommitted(ustring &backup);

private:
    bool Read(const ustring &link, ustring &backup);

    const ustring m_app;
    const ustring m_begun;
    const ustring m_committed;
    ustring m_record;  // the link that this object made or found; empty when there is none
    bool m_warned = false;
};
