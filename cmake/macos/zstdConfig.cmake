# SPDX-License-Identifier: MIT
# Zstandard for toolchain-macos.cmake: this machine's headers, and a stub in place of the library.
add_library(zstd::libzstd_shared UNKNOWN IMPORTED)
set_target_properties(zstd::libzstd_shared PROPERTIES
    IMPORTED_LOCATION ${LUMARIS_MACOS_KIT}/lib/libzstd.tbd
    INTERFACE_INCLUDE_DIRECTORIES ${LUMARIS_MACOS_KIT}/include)
