// SPDX-License-Identifier: MIT
#pragma once

#include "ustring.h"

/// The name under which `folder` (empty, or with a final '/') lists the entry `name`. An exact
/// match wins over a canonically equivalent name; with `fold_case`, letter case does not matter
/// either. Returns `name` itself when the folder lists no such entry or cannot be read.
ustring StoredName(const ustring &folder, const ustring &name, bool fold_case);
