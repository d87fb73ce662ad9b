// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The user-interface texts. Each has a numeric ID (0 to 259), a key and an English text.
namespace StrTable {

// The texts that the launcher itself shows.
inline constexpr int kReadyText = 39;       // the label after an upgrade
inline constexpr int kNameText = 217;       // the title of the dialog
inline constexpr int kPreparingText = 218;  // the label during an upgrade

/// Fills the table; called once, before any other thread asks for a text.
void InitStrTable();

/// The text with that ID, translated by the translator that is installed at the time of the call.
/// Empty for an unknown ID and before `InitStrTable`. Any thread.
QString LoadStr(int id);

/// The ID of `key`, whatever its letter case; -1 when there is no such key.
int LookupStrID(QString key);

}  // namespace StrTable
