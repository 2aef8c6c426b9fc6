# shellcheck shell=bash
# Shared by the scripts beside it, which source it first: they stop at the first failure, run in the
# checkout's root wherever they are called from, and print one line a step.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

JOBS=${JOBS:-$(nproc)}
LOG=$PWD/build/last-step.log
mkdir -p build

# The library's precompiled header needs these to be answered from the compiler cache.
export CCACHE_SLOPPINESS=pch_defines,time_macros
CONFIGURE_FLAGS=()
if command -v ccache >/dev/null; then
    CONFIGURE_FLAGS+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

say() {
    printf '==> %s\n' "$*"
}

# step TEXT COMMAND...: says TEXT and runs COMMAND in a shell of its own, which stops at the first
# failure too; what it prints is shown when it fails.
step() {
    local text=$1 status
    shift
    say "$text"
    set +e # a shell in an "if" would go on after a failure
    (
        set -e
        "$@"
    ) >"$LOG" 2>&1
    status=$?
    set -e
    if [[ $status != 0 ]]; then
        cat "$LOG" >&2
        printf '==> FAILED: %s\n' "$text" >&2
        exit 1
    fi
}

# build PRESET [TARGET...]: configures and builds a preset.
build() {
    local preset=$1
    shift
    step "Configure $preset" cmake --preset "$preset" "${CONFIGURE_FLAGS[@]}"
    step "Build $preset" cmake --build "build/$preset" --parallel "$JOBS" ${1:+--target "$@"}
}

# run_tests PRESET: runs all tests of a built preset and shows ctest's closing lines.
run_tests() {
    step "Test $1" ctest --preset "$1" --parallel "$JOBS" --no-tests=error
    tail -n 3 "$LOG"
}
