# Shared by the scripts here: where the project is, how they speak, build and test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sysroot=build/sysroot-arm64
presets=(sanitize release coverage tsan arm64 ios)

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
packagesOf() { grep -hv '^#' "$@"; }

# In seconds, as SOURCE_DATE_EPOCH, which goes before it.
dateOfLastChange() { echo "${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}"; }

requirePreset() {
    local known
    for known in "${presets[@]}"; do [[ $1 == "$known" ]] && return; done
    fail "no such preset: $1 (there are: ${presets[*]})"
}

# Copies lines to a file; of those that count, as Ninja's "[3/12]" and CTest's "3/12" do, every tenth part is told.
tellProgress() {
    local name=$1 line told=0 tenth
    while IFS= read -r line; do
        printf '%s\n' "$line" >&3
        [[ $line =~ ^[[:space:]]*\[?([0-9]+)/([0-9]+)[][:space:]] ]] || continue
        tenth=$((10 * BASH_REMATCH[1] / BASH_REMATCH[2]))
        [[ $tenth -le $told ]] || say "  $name: ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
        told=$tenth
    done 3>"$2"
}

# Configures and builds one preset (in the folder BUILD when that is set), or only the targets named after it; what the
# tools say is shown only when something goes wrong.
buildPreset() {
    local preset=$1 folder=${BUILD:-build/$1} log
    log=$folder.log
    shift
    mkdir -p build
    say "Building $preset"
    if ! cmake --preset "$preset" -B "$folder" >"$log" 2>&1 ||
        ! ninja -C "$folder" -k 0 "$@" 2>&1 | tellProgress "building $preset" "$log"; then
        grep -E 'error|Error|FAILED' -A 6 "$log" | tail -n 60 >&2 || tail -n 60 "$log" >&2
        say "Building $preset failed; everything the tools said is in $log" >&2
        return 1
    fi
}

# What runs on a simulated device: the phone's own file under emulation, or the Linux build.
useArm64() {
    configuration=arm64
    emulator="qemu-aarch64-static -L $PWD/$sysroot"
    library=build/ios/rollkeeper.dylib
    deviceFiles=build/ios/device-files
}
useNative() {
    configuration=release
    emulator=
    library=build/release/lib/librollkeeper.so
    deviceFiles=build/release/device-files
}

# Builds it, the host applications and the programs named.
buildPrograms() {
    programs=build/$configuration/bin
    buildPreset ios
    if [[ $configuration == release ]]; then set -- "$@" rollkeeper device_files; fi
    buildPreset "$configuration" host "$@"
}

# Runs the tour on them. The emulator's command is meant to fall apart into words.
# shellcheck disable=SC2086
tour() {
    $emulator "$programs/tour" --library "$library" --host "$programs/host" --device-files "$deviceFiles" "$@" \
        ${emulator:+--emulator "$emulator"}
}

passed=0
failed=0
count() { if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)); fi; }

# Reads the totals from what CTest writes for machines, so that a test that did not run counts as failed, and shows what
# the failed ones said. A test program tells each of its cases on a line.
addResults() {
    local totals
    totals=$(python3 - "$1" <<'PYTHON'
import re
import sys
import xml.etree.ElementTree as tree

passed = failed = 0
for test in tree.parse(sys.argv[1]).getroot().findall("testcase"):
    said = test.findtext("system-out") or ""
    good, bad = (len(re.findall(rf"^\[ *{word} *\] \S+ \(", said, re.MULTILINE)) for word in ("OK", "FAILED"))
    if test.get("status") != "run":
        bad = max(bad, 1)
        print(f"--- {test.get('name')}", *(said or "nothing").splitlines()[-80:], sep="\n", file=sys.stderr)
    passed += good or (0 if bad else 1)
    failed += bad
print(passed, failed)
PYTHON
    ) || return 1
    passed=$((passed + ${totals% *}))
    failed=$((failed + ${totals#* }))
}

# Builds one configuration and runs its tests, those that CTest's further arguments choose.
testConfiguration() {
    local configuration=$1 results=$PWD/build/$1/results.xml
    shift
    if ! buildPreset "$configuration"; then
        failed=$((failed + 1))
        return
    fi
    rm -f "$results"
    say "Testing $configuration"
    ctest --test-dir "build/$configuration" --parallel "$(nproc)" --no-tests=ignore --test-output-size-passed 1048576 \
        --test-output-size-failed 1048576 --output-junit "$results" "$@" 2>&1 |
        tellProgress "testing $configuration" "build/$configuration/tests.log" || true
    if ! addResults "$results"; then
        tail -n 40 "build/$configuration/tests.log"
        say "The tests of $configuration could not be run"
        failed=$((failed + 1))
    fi
}

# The last line of a command that tests.
sumUp() {
    say "$passed passed, $failed failed"
    [[ $failed -eq 0 && $passed -gt 0 ]]
}
