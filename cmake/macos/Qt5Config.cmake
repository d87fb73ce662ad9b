# SPDX-License-Identifier: MIT
# Qt for toolchain-macos.cmake: the headers and tools of this machine's Qt 5, and stand-ins for its
# frameworks and plug-ins.
set(Qt5_VERSION 5.15)
set(Qt5Core_VERSION_MAJOR 5)
set(Qt5Core_VERSION_MINOR 15)
set(headers ${LUMARIS_MACOS_KIT}/include/qt5)
set(qt ${LUMARIS_MACOS_KIT}/${LUMARIS_MACOS_PROCESSOR}/qt)

foreach(module Core Gui Widgets Test)
    add_library(Qt5::${module} UNKNOWN IMPORTED)
    set_target_properties(Qt5::${module} PROPERTIES
        IMPORTED_LOCATION ${qt}/lib/Qt${module}.framework/Versions/5/Qt${module}.tbd
        INTERFACE_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${module}")
    add_library(Qt::${module} ALIAS Qt5::${module})
    set(Qt5${module}_FOUND ON)
endforeach()
target_link_libraries(Qt5::Gui INTERFACE Qt5::Core)
target_link_libraries(Qt5::Widgets INTERFACE Qt5::Gui)
target_link_libraries(Qt5::Test INTERFACE Qt5::Core)
# Without these QtTest declares nothing that deals with windows.
target_compile_definitions(Qt5::Widgets INTERFACE QT_GUI_LIB QT_WIDGETS_LIB)

foreach(plugin QCocoaIntegrationPlugin:platforms/libqcocoa
        QOffscreenIntegrationPlugin:platforms/libqoffscreen QMacStylePlugin:styles/libqmacstyle)
    string(REGEX MATCH "(.*):(.*)" _ ${plugin})
    add_library(Qt5::${CMAKE_MATCH_1} MODULE IMPORTED)
    set_target_properties(Qt5::${CMAKE_MATCH_1} PROPERTIES
                          IMPORTED_LOCATION ${qt}/plugins/${CMAKE_MATCH_2}.dylib)
endforeach()

foreach(tool moc rcc qmake)
    add_executable(Qt5::${tool} IMPORTED)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION /usr/lib/qt5/bin/${tool})
endforeach()
