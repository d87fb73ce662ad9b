# SPDX-License-Identifier: MIT
# cpack runs this once the files of the package are in the staging folder.
file(COPY ${CPACK_RESOURCE_FILE_LICENSE}
     DESTINATION ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/${CPACK_PACKAGE_NAME})
