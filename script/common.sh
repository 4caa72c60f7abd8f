# Shared by the scripts here: where the project is, and how they speak.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sysroot=build/sysroot-arm64
presets=(sanitize release tsan arm64 ios)

if command -v ccache >/dev/null; then
    export CCACHE_SLOPPINESS=pch_defines,time_macros # it asks for this where headers are precompiled
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache CMAKE_OBJCXX_COMPILER_LAUNCHER=ccache
fi

say() { printf '%s\n' "$*"; }
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The package names of a list file, without its comments.
packagesOf() { grep -v '^#' "$1"; }

requirePreset() {
    local known
    for known in "${presets[@]}"; do [[ $1 == "$known" ]] && return; done
    fail "no such preset: $1 (there are: ${presets[*]})"
}

# Configures and builds one preset, or only the targets named after it; what the tools say is shown only when something
# goes wrong.
buildPreset() {
    local preset=$1 log=build/$1.log
    shift
    mkdir -p build
    say "Building $preset"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"} -- -k 0; } >"$log" 2>&1; then
        grep -E 'error|Error|FAILED' -A 6 "$log" | tail -n 60 >&2 || tail -n 60 "$log" >&2
        say "Building $preset failed; everything the tools said is in $log" >&2
        return 1
    fi
}
