#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Feeds the extractor with random packages. Replays earlier findings first and keeps new ones in
# build-fuzz/findings.
# usage: scripts/fuzz.sh [SECONDS]     default: 60
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source scripts/sanitizers.sh
readonly seconds=${1:-60}

install_packages "${PACKAGES[@]}" clang libclang-rt-dev llvm bubblewrap
build fuzz
# Some containers forbid user namespaces, and nothing here runs without.
if ! bwrap --unshare-user --unshare-net --ro-bind / / true; then
    say "skipped: this machine has no user namespaces to fuzz in"
    exit
fi

# Fast unwinding may lose part of a stack, but makes fuzzing many times faster.
ASAN_OPTIONS+=:fast_unwind_on_malloc=1:quarantine_size_mb=8
export ASAN_SYMBOLIZER_PATH=/usr/bin/llvm-symbolizer
FINDINGS=$ROOT/build-fuzz/findings
WORK=$(mktemp -d "$ROOT/build-fuzz/work.XXXXXX")
LOG=$WORK/log
trap 'rm -rf "$WORK"' EXIT

# A package may write through links to wherever the user can write. Here that is only a small tmpfs and
# the work folder. Without a PATH, libarchive cannot start the programs that it uses for rare filters, so
# a run means the same on every machine.
sandboxed() { # sandboxed ARGUMENT...
    bwrap --unshare-user --unshare-net --die-with-parent --ro-bind / / --dev /dev \
        --size $((128 << 20)) --tmpfs /mnt --dir /mnt/tmp --bind "$WORK" /mnt/work \
        --setenv TMPDIR /mnt/tmp --setenv PATH /none --chdir /mnt/tmp \
        "$ROOT/build-fuzz/tests/fuzz/extractor_fuzzer" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix=/mnt/work/ "$@" >"$LOG" 2>&1
}
coverage() { grep -o 'cov: [0-9]* ft: [0-9]*' "$LOG" | "$1" -n 1; }

mkdir "$WORK/corpus"
mapfile -t crashes < <(find "$ROOT/tests/fuzz/crashes" -type f)
status=0
# Without a file to replay, the target would begin to draw, and not end.
[ ${#crashes[@]} -eq 0 ] || sandboxed "${crashes[@]}" || status=1
[ $status -ne 0 ] || sandboxed -max_total_time="$seconds" -print_final_stats=1 \
    /mnt/work/corpus "$ROOT/tests/fuzz/corpus" || status=1
say "$(sed -n 's/^stat::number_of_executed_units: *//p' "$LOG") executions in $seconds s," \
    "$(coverage head) to $(coverage tail), ${#crashes[@]} earlier findings replayed, new findings: $status"
if [ $status -ne 0 ]; then
    mkdir -p "$FINDINGS"
    find "$WORK" -maxdepth 1 -type f -exec cp {} "$FINDINGS" \;
    grep -m 5 -E 'Assertion|Failure|ERROR|SUMMARY|runtime error' "$LOG" || tail -n 5 "$LOG"
    say "kept in ${FINDINGS#"$ROOT"/}"
fi
exit $status
