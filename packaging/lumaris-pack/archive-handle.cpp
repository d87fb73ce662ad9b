// SPDX-License-Identifier: MIT
#include "archive-handle.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <ctime>

void PinArchiveEnvironment() {
    // In the plain C locale names stay the bytes they are. It is also the strictest reader: what it
    // accepts, the launcher can read in every locale.
    std::setlocale(LC_ALL, "C");
    // zip stores local time.
    setenv("TZ", "UTC0", 1);
    tzset();
}

std::string ArchiveErrorText(archive *handle) {
    const char *text = archive_error_string(handle);
    std::string message = text == nullptr ? "unknown error" : text;
    // Some texts end with a line break, and some quote the archive.
    std::replace_if(
        message.begin(), message.end(), [](char c) { return c < ' ' && c >= 0; }, ' ');
    message.erase(message.find_last_not_of(' ') + 1);
    // These two texts leave out why; elsewhere the number says no more than the text.
    const bool incomplete = message == "Write error" || message.rfind("Failed to open", 0) == 0;
    return incomplete ? message + ": " + std::strerror(archive_errno(handle)) : message;
}
