# SPDX-License-Identifier: MIT
# Options for every target of the project.

add_compile_options(-Wall -Wextra -Wshadow -Wformat=2 -Wconversion -Wsign-conversion
                    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -fno-common)

# Debug messages and assertions name source files relative to the source folder.
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)

# No implicit conversions between text and bytes.
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                        QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)

if(LUMARIS_SANITIZE)
    add_compile_options(-fsanitize=${LUMARIS_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${LUMARIS_SANITIZE})
    # In instrumented code this warning has false positives, for example in std::regex.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# The program reads archives, so limit what a fault can do: check bounds where the compiler or the
# library knows them, and make the tables through which functions are called read-only.
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
