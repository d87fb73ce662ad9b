# SPDX-License-Identifier: MIT
# Compiles and links for macOS on a Linux machine. scripts/macos.sh puts the compiler, the headers and
# stubs of the libraries into the folder LUMARIS_MACOS_KIT. LUMARIS_MACOS_PROCESSOR is x86_64 or aarch64.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LUMARIS_MACOS_KIT LUMARIS_MACOS_PROCESSOR)

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${LUMARIS_MACOS_PROCESSOR})
set(CMAKE_OSX_SYSROOT "" CACHE STRING "The compiler brings its own")

if(NOT EXISTS "${LUMARIS_MACOS_KIT}/bin/c++-${LUMARIS_MACOS_PROCESSOR}")
    message(FATAL_ERROR "no compiler for macOS in '${LUMARIS_MACOS_KIT}': scripts/macos.sh fetches it")
endif()
set(CMAKE_CXX_COMPILER ${LUMARIS_MACOS_KIT}/bin/c++-${LUMARIS_MACOS_PROCESSOR})
set(CMAKE_AR ${LUMARIS_MACOS_KIT}/bin/ar CACHE FILEPATH "")
set(CMAKE_RANLIB ${LUMARIS_MACOS_KIT}/bin/ranlib CACHE FILEPATH "")
set(CMAKE_INSTALL_NAME_TOOL ${LUMARIS_MACOS_KIT}/tools/install_name_tool CACHE FILEPATH "")

# Never find a library of this machine by accident.
set(CMAKE_FIND_ROOT_PATH ${LUMARIS_MACOS_KIT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(Qt5_DIR ${CMAKE_CURRENT_LIST_DIR}/macos)
set(GTest_DIR ${CMAKE_CURRENT_LIST_DIR}/macos)
foreach(library LibArchive:libarchive/lib/libarchive ICU:icu4c/lib/libicuuc)
    string(REGEX MATCH "(.*):(.*)" _ ${library})
    set(${CMAKE_MATCH_1}_INCLUDE_DIR ${LUMARIS_MACOS_KIT}/include CACHE PATH "")
    set(${CMAKE_MATCH_1}_LIBRARY
        ${LUMARIS_MACOS_KIT}/${LUMARIS_MACOS_PROCESSOR}/${CMAKE_MATCH_2}.tbd CACHE FILEPATH "")
endforeach()
set(ICU_UC_LIBRARY_RELEASE ${ICU_LIBRARY} CACHE FILEPATH "")

# As system headers, which cause no warnings. All of /usr/include would bring in those of Linux.
add_compile_options(-isystem ${CMAKE_CURRENT_LIST_DIR}/macos/include)
