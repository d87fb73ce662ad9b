// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "ustring.h"

/// Conversions at the border between Qt's strings and the UTF-8 strings of the service.
inline ustring ToUString(const QString &text) {
    return ustring(text.toUtf8().constData());
}

inline QString ToQString(const ustring &text) {
    return QString::fromUtf8(text.c_str());
}
