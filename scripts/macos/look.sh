# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Checks what was built for macOS; sourced by macos.sh.

readonly ARCHITECTURES=(x86_64 arm64) # the names of the processors inside a program

# look_at_program FILE RUN_PATH LIBRARY...: fails unless the program is for both processors and the oldest
# system, has that run path, and links exactly these libraries besides those of C and C++
look_at_program() {
    local file=$1 architecture
    shift
    for architecture in "${ARCHITECTURES[@]}"; do
        lipo "$file" -verify_arch "$architecture" || die "$file has no part for $architecture"
        look_at_part "$file" "$architecture" "$@"
    done
    say "$(basename "$file"): $(lipo -archs "$file" | xargs), macOS $MINIMUM or later; links ${*:2}"
}

look_at_part() {
    local file=$1 architecture=$2 run_path=$3 commands minimum linked expected paths
    shift 3
    commands=$(llvm-objdump-14 --macho --arch="$architecture" --private-headers "$file")
    minimum=$(awk '$1 == "minos" || $1 == "version" && last ~ /VERSION_MIN/ { print $2; exit }
                   $1 == "cmd" { last = $2 }' <<<"$commands")
    [ "$minimum" = "$MINIMUM" ] || die "$file ($architecture) is for macOS '$minimum'"

    linked=$(awk '$1 == "cmd" { load = $2 == "LC_LOAD_DYLIB" } load && $1 == "name" { print $2 }' \
        <<<"$commands" | grep -v -e '^/usr/lib/libSystem\.' -e '^/usr/lib/libc++' |
        sed 's,.*/,,; s,\.dylib$,,' | sort -u)
    expected=$(printf '%s\n' "$@" | sort)
    [ "$linked" = "$expected" ] ||
        die "$file ($architecture) links $(tr '\n' ' ' <<<"$linked"), not $*"

    paths=$(awk '$1 == "cmd" { load = $2 == "LC_RPATH" } load && $1 == "path" { print $2 }' \
        <<<"$commands" | sort -u)
    [ "$paths" = "$run_path" ] ||
        die "$file ($architecture) looks for libraries in '$paths'"

    # A symbol that only Linux has would be missing at run time.
    ! llvm-nm-14 --arch="$architecture" -u "$file" | grep -E '_(syncfs|__errno_location|__xstat|_ZNSt7__cxx11)' ||
        die "$file ($architecture) needs a symbol of Linux"
}

# look_at_bundle BUNDLE PACKAGE: fails unless the bundle is complete, for both processors, and has the
# version of the package
look_at_bundle() {
    local file plist=$OUT/Info.plist
    for file in MacOS/launcher Info.plist Resources/INFO Resources/package/lumaris.wpk \
        Resources/images/ico_72_lumaris.png Resources/lumaris.icns Resources/copyright \
        Frameworks/plugins/{platforms/libqcocoa,styles/libqmacstyle}.dylib; do
        [ -s "$1/Contents/$file" ] || die "$1 lacks Contents/$file"
    done
    while IFS= read -r file; do
        case $(lipo -archs "$file" 2>/dev/null | xargs) in
        "" | "${ARCHITECTURES[*]}") ;;
        *) die "$file is for one processor only" ;;
        esac
    done < <(find "$1/Contents/MacOS" "$1/Contents/Frameworks" -type f)
    # plistutil exits with 0 whatever it reads, so look at its output.
    rm -f "$plist"
    plistutil -i "$1/Contents/Info.plist" -o "$plist" 2>/dev/null || true
    grep -qa CFBundleExecutable "$plist" 2>/dev/null ||
        die "$1/Contents/Info.plist is no valid property list"
    [ "$(value_of LSMinimumSystemVersion "$1")" = "$MINIMUM" ] ||
        die "$1/Contents/Info.plist and the programs name different oldest systems"
    grep -q "^build_version=$(value_of CFBundleVersion "$1")\$" "$2/INFO" ||
        die "$1/Contents/Info.plist names another build than the package"
    say "$(basename "$1"): complete; Info.plist is valid and names the version of the package"
}

# look_at_tests: prints how many test programs there are
look_at_tests() {
    local programs
    programs=$(find "$OUT/aarch64/tests" -path '*.app/Contents/MacOS/*' -type f | wc -l)
    [ "$programs" -gt 0 ] || die "no test program was built"
    echo "$programs test programs"
}

# value_of KEY BUNDLE: prints the number under KEY in Info.plist
value_of() {
    sed -n "/<key>$1</{n;s/[^0-9.]*//g;p}" "$2/Contents/Info.plist"
}
