# SPDX-License-Identifier: MIT
# Writes CONTENTS/Info.plist with the version in the package's INFO file: macOS recognises an update
# by its version.
# usage: cmake -D CONTENTS=FOLDER -D MINIMUM=OLDEST_MACOS -P info-plist.cmake
set(info ${CONTENTS}/Resources/INFO)
foreach(part major minor build)
    file(STRINGS ${info} line REGEX "^ *${part}_version *= *[0-9]+ *$")
    if(NOT line MATCHES "([0-9]+) *$")
        message(FATAL_ERROR " ${info} has no line ${part}_version=NUMBER")
    endif()
    set(${part} ${CMAKE_MATCH_1})
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/Info.plist.in ${CONTENTS}/Info.plist @ONLY)
