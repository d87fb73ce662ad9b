#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the formatting of the C++ and Python sources (clang-format, black) and runs the static
# analysis (clang-tidy, pyflakes, mypy, shellcheck).
# usage: scripts/check-format.sh [--fix]     --fix: formats the sources instead
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# clang-format writes braces around single statements since version 15.
install_packages "${PACKAGES[@]}" git clang-format-16 clang-tidy black pyflakes3 mypy shellcheck

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
mapfile -t python < <(git ls-files '*.py')
mapfile -t shell < <(git grep -l -I -e '^#!/usr/bin/env bash' -e '^#!/bin/sh' -e '^# shellcheck shell=bash')
if [ "${1:-}" = --fix ]; then
    clang-format-16 -i "${sources[@]}"
    black -q -l 100 "${python[@]}"
    exit
fi
without_licence=$(git grep -L 'SPDX-License-Identifier: MIT' -- '*.cpp' '*.h' '*.py' '*.sh' '*.cmake' \
    '*CMakeLists.txt' || true)
[ -z "$without_licence" ] || die "no SPDX line: $without_licence"
clang-format-16 --dry-run --Werror "${sources[@]}"
say "C++: ${#sources[@]} files are formatted (clang-format)"
black -q -l 100 --check "${python[@]}"
pyflakes3 "${python[@]}"
mypy --no-error-summary "${python[@]}"
say "Python: ${#python[@]} files are formatted (black), and pass pyflakes and mypy"
shellcheck --severity=warning "${shell[@]}"
say "shell: ${#shell[@]} scripts pass shellcheck"

# The analysis needs the compile commands and moc's output of the development build.
build dev
mapfile -t units < <(git ls-files 'lib/*.cpp' 'libcommon/*.cpp' 'ui-client/*.cpp' 'packaging/*.cpp' \
    'samples/*.cpp' 'scripts/*.cpp' 'bench/*.cpp' 'tests/*.cpp' | grep -v -e '_mac\.cpp$' -e '^tests/fuzz/')
printf '%s\n' "${units[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build --quiet 2>/dev/null
say "analysis: ${#units[@]} files pass clang-tidy"
