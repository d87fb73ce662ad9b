#!/bin/sh
# Parses the files that only macOS compiles, against declared prototypes.
# usage: apple_syntax_test.sh COMPILER SOURCE_ROOT [FILE | -IDIR | -DNAME]...
# Files and folders are relative to the source root unless absolute.
set -u
compiler=$1
root=$2
shift 2
cd "$root" || exit 1

files="lib/libplatform/stored-path_mac.cpp lib/libplatform/file-system-type_mac.cpp"
# The neutral callers see the system's own header there.
files="$files lib/libfile/file-op.cpp lib/libfile/file-op-tree.cpp lib/libfile/file-op-dir.cpp"
flags="-std=c++17 -fsyntax-only -Wall -Wextra -Wshadow -Werror -isystem tests/lib/apple-prototypes"
flags="$flags -Ilib/libplatform/mac"
for library in platform ustring logger tmpname file; do
    flags="$flags -Ilib/lib$library"
done
for argument in "$@"; do
    case $argument in
        -*) flags="$flags $argument" ;;
        *) files="$files $argument" ;;
    esac
done

failed=0
for file in $files; do
    # shellcheck disable=SC2086 # a list of flags
    "$compiler" $flags "$file" || { echo "does not parse: $file"; failed=1; }
done
exit $failed
