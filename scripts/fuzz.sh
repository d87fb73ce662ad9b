#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the fuzz targets of tests/fuzz, as many at once as there are cores. Replays earlier findings
# first and keeps new ones in build-fuzz/findings.
# usage: scripts/fuzz.sh [SECONDS] [TARGET...]     default: 60 seconds for each target
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source scripts/sanitizers.sh

seconds=60
if [[ "${1:-}" =~ ^[0-9]+$ ]]; then
    seconds=$1
    shift
fi
targets=("$@")
[ $# -gt 0 ] || targets=(extractor info)

install_packages "${PACKAGES[@]}" clang libclang-rt-dev llvm bubblewrap
build fuzz

# Fast unwinding may lose part of a stack, but makes fuzzing many times faster.
ASAN_OPTIONS+=:fast_unwind_on_malloc=1:quarantine_size_mb=8
export ASAN_SYMBOLIZER_PATH=/usr/bin/llvm-symbolizer
FINDINGS=$ROOT/build-fuzz/findings
WORK=$(mktemp -d "$ROOT/build-fuzz/work.XXXXXX")
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$WORK"' EXIT

# A package may write through links to wherever the user can write. Here that is only a small tmpfs and
# the target's own work folder. Without a PATH, libarchive cannot start the programs that it uses for
# rare filters, so a run means the same on every machine.
sandboxed() { # sandboxed TARGET ARGUMENT...
    local target=$1
    shift
    mkdir -p "$WORK/$target/corpus"
    bwrap --unshare-user --unshare-net --die-with-parent --ro-bind / / --dev /dev \
        --size $((128 << 20)) --tmpfs /mnt --dir /mnt/tmp --bind "$WORK/$target" /mnt/work \
        --setenv TMPDIR /mnt/tmp --setenv PATH /none --chdir /mnt/tmp \
        "$ROOT/build-fuzz/tests/fuzz/${target}_fuzzer" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix=/mnt/work/ "$@"
}

fuzz() { # fuzz TARGET: prints a summary; returns 1 when something was found
    local target=$1 log=$WORK/$1.log status=0 crashes=() corpus=(/mnt/work/corpus)
    [ ! -d "$ROOT/tests/fuzz/corpus/$target" ] || corpus+=("$ROOT/tests/fuzz/corpus/$target")
    coverage() { grep -o 'cov: [0-9]* ft: [0-9]*' "$log" | "$1" -n 1; }
    mapfile -t crashes < <(find "$ROOT/tests/fuzz/crashes/$target" -type f 2>/dev/null)
    [ ${#crashes[@]} -eq 0 ] || sandboxed "$target" "${crashes[@]}" >"$log" 2>&1 || status=1
    [ $status -ne 0 ] || sandboxed "$target" -max_total_time="$seconds" -print_final_stats=1 \
        "${corpus[@]}" >"$log" 2>&1 || status=1
    say "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions in" \
        "$seconds s, $(coverage head) to $(coverage tail)," \
        "${#crashes[@]} earlier findings replayed, new findings: $status"
    [ $status -eq 0 ] && return
    mkdir -p "$FINDINGS"
    cp "$log" "$FINDINGS/$target.log"
    find "$WORK/$target" -maxdepth 1 -type f -exec cp {} "$FINDINGS" \;
    grep -m 5 -E 'Assertion|Failure|ERROR|SUMMARY|runtime error' "$log" || tail -n 5 "$log"
    say "kept in ${FINDINGS#"$ROOT"/}"
    return 1
}

# Some containers forbid user namespaces, and nothing here runs without.
if ! bwrap --unshare-user --unshare-net --ro-bind / / true; then
    say "skipped: this machine has no user namespaces to fuzz in"
    exit
fi
failed=0
for target in "${targets[@]}"; do
    [ "$(jobs -rp | wc -l)" -lt "$(nproc)" ] || wait -n || failed=1
    fuzz "$target" &
done
while [ -n "$(jobs -p)" ]; do
    wait -n || failed=1
done
exit $failed
