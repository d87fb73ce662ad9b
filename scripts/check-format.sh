#!/usr/bin/env bash
# Checks the formatting of the C++ and Python sources (clang-format, black) and runs the static
# analysis (clang-tidy, pyflakes).
# usage: scripts/check-format.sh [--fix]     --fix: formats the sources instead
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

install_packages "${PACKAGES[@]}" git clang-format clang-tidy black pyflakes3

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
# The Python programs carry no ending, as commands.
mapfile -t python < <(git grep -l -I -e '^#!/usr/bin/env python3' && git ls-files '*.py')
if [ "${1:-}" = --fix ]; then
    clang-format -i "${sources[@]}"
    black -q -l 100 "${python[@]}"
    exit
fi
clang-format --dry-run --Werror "${sources[@]}"
say "format: ${#sources[@]} files are as clang-format leaves them"
black -l 100 --check "${python[@]}"
pyflakes3 "${python[@]}"
say "Python: ${#python[@]} files are as black leaves them and pass pyflakes"

# The database of the development build says how each file is compiled; moc's output is needed too.
[ -f build/compile_commands.json ] || build dev
mapfile -t units < <(git ls-files 'lib/*.cpp' 'libcommon/*.cpp' 'ui-client/*.cpp' 'packaging/*.cpp' \
    'samples/*.cpp' | grep -v '_mac\.cpp$')
printf '%s\n' "${units[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build --quiet 2>/dev/null
say "analysis: ${#units[@]} files pass clang-tidy"
