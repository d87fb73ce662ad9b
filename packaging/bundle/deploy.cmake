# SPDX-License-Identifier: MIT
# Copies every library that is not part of macOS into Contents/Frameworks of an installed bundle and
# makes the programs load it from there. macdeployqt cannot do it: it skips paths that begin with
# @loader_path, and exits with 0 when a library is missing.
# usage: cmake -D BUNDLE=BUNDLE -D FOLDERS=FOLDER;... -P deploy.cmake
set(APPLE 1)  # for BundleUtilities, also where the bundle was cross-built
set(BU_CHMOD_BUNDLE_ITEMS ON)
include(BundleUtilities)

# Called for each library after the search. Later errors would not name the missing one.
function(gp_resolve_item_override context item folder folders path_name found_name)
    if(NOT ${found_name})
        message(NOTICE "error: ${context} needs ${item}, which cannot be found")
        message(FATAL_ERROR)
    endif()
endfunction()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR)  # the command has said what is wrong
    endif()
endfunction()

# No load path leads to the plug-ins, so list them.
file(GLOB plugins ${BUNDLE}/Contents/Frameworks/plugins/*/*.dylib)
fixup_bundle(${BUNDLE} "${plugins}" "${FOLDERS}")
# fixup_bundle() accepts every path into the bundle, even when nothing is there.
run(${CMAKE_CURRENT_LIST_DIR}/check-loads.sh ${BUNDLE})
# Changing the load paths has broken the signatures.
if(CMAKE_HOST_APPLE)
    run(${CMAKE_CURRENT_LIST_DIR}/sign.sh ${BUNDLE} -)
endif()
