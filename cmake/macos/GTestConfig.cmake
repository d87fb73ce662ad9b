# SPDX-License-Identifier: MIT
# GoogleTest for toolchain-macos.cmake, built from the sources that Debian ships.
set(sources /usr/src/googletest/googletest)
foreach(name gtest gtest_main)
    add_library(${name} STATIC ${sources}/src/gtest_main.cc)
    target_include_directories(${name} SYSTEM PUBLIC ${sources}/include PRIVATE ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    add_library(GTest::${name} ALIAS ${name})
endforeach()
set_property(TARGET gtest PROPERTY SOURCES ${sources}/src/gtest-all.cc)
target_link_libraries(gtest_main PUBLIC gtest)
