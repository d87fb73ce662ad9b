# SPDX-License-Identifier: MIT
# What `cpack` makes of the installed files: a disk image with the launcher, or a Debian package with
# the launcher and the tools.
set(CPACK_PACKAGE_NAME lumaris-launcher)
set(CPACK_PACKAGE_VENDOR "Lumaris Backup")
set(CPACK_PACKAGE_CONTACT "Lumaris Backup <support@lumaris.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Installs, upgrades and opens the Lumaris Backup client")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)

if(APPLE)
    set(CPACK_GENERATOR DragNDrop)
    # A person drags the launcher out of the image and has no use for the tools. Nothing is stripped:
    # the bundle is signed already.
    set(CPACK_INSTALL_CMAKE_PROJECTS ${CMAKE_BINARY_DIR} ${PROJECT_NAME} launcher /)
    set(CPACK_PACKAGE_FILE_NAME LumarisLauncher-${PROJECT_VERSION})
    set(CPACK_DMG_VOLUME_NAME "Lumaris Backup")
    # There is one licence text and nothing to agree to before the image opens.
    set(CPACK_DMG_SLA_USE_RESOURCE_FILE_LICENSE OFF)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /opt/lumaris)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION utils)
    # Qt, ICU and libarchive are the system's.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
include(CPack)
