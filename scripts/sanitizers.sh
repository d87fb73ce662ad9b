# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# How the sanitizers report; sourced by the scripts that run instrumented programs.

# Complete stacks, because the suppressions below name libraries built without frame pointers.
export ASAN_OPTIONS=detect_leaks=1:fast_unwind_on_malloc=0
export UBSAN_OPTIONS=print_stacktrace=1
# Qt's libraries are not instrumented: the sanitizer cannot see how they synchronise, and would report
# their intercepted calls as races.
export TSAN_OPTIONS=ignore_noninstrumented_modules=1:halt_on_error=1
export LSAN_OPTIONS=suppressions=$ROOT/scripts/lsan.supp:print_suppressions=0
