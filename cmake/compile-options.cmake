# SPDX-License-Identifier: MIT
# Options that hold for every target of the project.

add_compile_options(-Wall -Wextra -Wshadow -Wformat=2 -Wconversion -Wsign-conversion
                    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -fno-common)

# Debug messages and assertions show paths relative to the sources, whatever folder was built in.
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)

# Text and bytes are converted where the code says so, never implicitly.
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                        QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)

if(LUMARIS_SANITIZE)
    add_compile_options(-fsanitize=${LUMARIS_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${LUMARIS_SANITIZE})
    # GCC's manual: this warning has false positives in instrumented code (std::regex, for one).
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# What a program that reads archives can do about its own faults: bounds are checked where the
# compiler and the library know them, and nothing that is called through tables can be overwritten.
if(LUMARIS_HARDEN)
    add_compile_options(-fstack-protector-strong)
    add_compile_definitions(_FORTIFY_SOURCE=2 _GLIBCXX_ASSERTIONS)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
        add_link_options(LINKER:-z,relro LINKER:-z,now)
    endif()
endif()
