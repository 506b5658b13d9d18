# shellcheck shell=bash
# What the scripts have in common. Sourced, never run: the caller has set -euo pipefail and this moves to the root.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit

# say WORD...: one line about what is going on; on the error stream, so that output stays what was asked for.
say() { printf '%s\n' "$*" >&2; }

# fail WORD...: says what went wrong and ends.
fail() {
    say "${0##*/}: $*"
    exit 1
}

# quietly COMMAND...: runs it and shows its output only when it fails, with its exit status.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" > "$log" 2>&1 < /dev/null || status=$?
    if ((status != 0)); then cat "$log" >&2; fi
    rm -f "$log"
    return "$status"
}

# configure_in PRESET: makes build/PRESET ready to be built in. Ninja looks after later changes of the CMake files itself,
# but not of the presets, nor of a clone that was moved or copied together with its build folder.
configure_in() {
    local cache=build/$1/CMakeCache.txt ninja=build/$1/build.ninja
    if [[ -f $ninja && ! CMakePresets.json -nt $ninja ]] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        return
    fi
    quietly cmake --preset "$1" --fresh || fail "the build could not be configured"
    touch "$ninja"
}

# build_in PRESET TARGET...: compiles in build/PRESET and shows the compiler's words only when it fails.
build_in() { quietly cmake --build "build/$1" --target "${@:2}" || fail "the build failed"; }

# The same for build/release.
configure() { configure_in release; }
build() { build_in release "$@"; }
