# shellcheck shell=bash
# For the scripts beside this file, which source it.

# shellcheck disable=SC2034 # used by those who source this file
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
jobs="$(nproc)"

fail() {
    echo "$*" >&2
    exit 1
}

# configure SOURCE_DIR BUILD_DIR [ARGUMENT...]
configure() {
    "$CMAKE_COMMAND" -S "$1" -B "$2" -G "$CMAKE_GENERATOR" "${@:3}"
}

build() {
    "$CMAKE_COMMAND" --build "$1" --parallel "$jobs"
}

mkdir -p "$LVDATA_WORK_DIR"
