# SPDX-License-Identifier: MIT
# Called by cpack when the files of the package lie in its folder.
file(COPY ${CPACK_RESOURCE_FILE_LICENSE}
     DESTINATION ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/${CPACK_PACKAGE_NAME})
