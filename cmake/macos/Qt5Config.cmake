# SPDX-License-Identifier: MIT
# Qt for toolchain-macos.cmake: the headers and the tools of this machine's Qt 5, and stubs in place
# of the frameworks.
set(Qt5_VERSION 5.15)
set(Qt5Core_VERSION_MAJOR 5)
set(Qt5Core_VERSION_MINOR 15)
set(headers ${LUMARIS_MACOS_KIT}/include/qt5)

foreach(module Core Gui Widgets)
    add_library(Qt5::${module} UNKNOWN IMPORTED)
    set_target_properties(Qt5::${module} PROPERTIES
        IMPORTED_LOCATION ${LUMARIS_MACOS_KIT}/lib/Qt${module}.tbd
        INTERFACE_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${module}")
    add_library(Qt::${module} ALIAS Qt5::${module})
    set(Qt5${module}_FOUND ON)
endforeach()
target_link_libraries(Qt5::Gui INTERFACE Qt5::Core)
target_link_libraries(Qt5::Widgets INTERFACE Qt5::Gui)
set(Qt5Test_FOUND ON)

foreach(tool moc rcc qmake)
    add_executable(Qt5::${tool} IMPORTED)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION /usr/lib/qt5/bin/${tool})
endforeach()
