// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// Whether a name has nothing but ASCII in it; it is then its own composed form.
bool IsAscii(const ustring &name);

/// The name under which `folder` (empty, or with a final '/') lists the entry `name`: the same
/// bytes if there are any, else a canonically equivalent name, with `fold_case` in any letter case.
/// `name` itself when the folder lists none or cannot be read.
ustring StoredName(const ustring &folder, const ustring &name, bool fold_case);
