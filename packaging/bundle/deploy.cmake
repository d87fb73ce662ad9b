# SPDX-License-Identifier: MIT
# Makes an installed bundle for macOS independent of the machine that built it: every library that is
# not the system's is copied into Contents/Frameworks and looked for there. Not with macdeployqt: it
# passes over paths that begin with @loader_path and ends with 0 when something is missing.
# usage: cmake -D BUNDLE=BUNDLE -D FOLDERS=WHERE;LIBRARIES;ARE -P deploy.cmake
set(APPLE 1)  # this also runs where the bundle was cross-built
set(BU_CHMOD_BUNDLE_ITEMS ON)
include(BundleUtilities)

# Called for each library that was looked for: here what is missing still has its name.
function(gp_resolve_item_override context item folder folders path_name found_name)
    if(NOT ${found_name})
        message(NOTICE "error: ${context} needs ${item}, which cannot be found")
        message(FATAL_ERROR)
    endif()
endfunction()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR)  # it said itself what is wrong
    endif()
endfunction()

# Nothing loads plug-ins by their path, so they are named.
file(GLOB plugins ${BUNDLE}/Contents/Frameworks/plugins/*/*.dylib)
fixup_bundle(${BUNDLE} "${plugins}" "${FOLDERS}")
# The verification at its end takes every path into the bundle for good, whatever lies there.
run(${CMAKE_CURRENT_LIST_DIR}/check-loads.sh ${BUNDLE})
# What was rewritten has lost its signature.
if(CMAKE_HOST_APPLE)
    run(${CMAKE_CURRENT_LIST_DIR}/sign.sh ${BUNDLE} -)
endif()
