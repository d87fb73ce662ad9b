# SPDX-License-Identifier: MIT
# `cpack` makes a Debian package of the launcher and the tools. Nothing for macOS: the disk image there
# needs a signed bundle, and cpack does not sign.
if(APPLE)
    return()
endif()
set(CPACK_PACKAGE_NAME lumaris-launcher)
set(CPACK_PACKAGE_VENDOR "Lumaris Backup")
set(CPACK_PACKAGE_CONTACT "Lumaris Backup <support@lumaris.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Installs, upgrades and opens the Lumaris Backup client")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/packaging/copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /opt/lumaris)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
# Depend on the Qt, ICU and libarchive of the system.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "zstd")  # which lumaris-pack calls
# Debian expects the licences outside of the prefix.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian-copyright.cmake)
include(CPack)
