# Shared by the scripts here: where the project is, and how they speak.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

jobs=$(nproc)
sysroot=build/sysroot-arm64

say() { printf '%s\n' "$*"; }
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The package names of a list file, without its comments.
packagesOf() { grep -v '^#' "$1"; }
