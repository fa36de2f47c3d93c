# shellcheck shell=bash
# For the scripts beside this folder, which source it. Sets what they share:
#   source_dir  the root of the source tree
#   build_root  the folder of the build trees: LVDATA_BUILD_ROOT, or build/ in the source tree
#   jobs        how many processes to run at a time

source_dir="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
# shellcheck disable=SC2034 # used by those who source this file
build_root="${LVDATA_BUILD_ROOT:-$source_dir/build}"
# shellcheck disable=SC2034
jobs="$(nproc)"

# fail MESSAGE...
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# heading TEXT...
heading() {
    printf '\n== %s\n' "$*"
}

# The C++ files of the project, relative to its root; one a line.
cpp_files() {
    find "$source_dir"/{lvdata,tools,python,examples,benchmarks,tests,fuzz} -name '*.h' -o -name '*.cpp' |
        sed "s|^$source_dir/||" | LC_ALL=C sort
}

# The headers of the library as they are included ("lvdata/xml/property.h"); one a line.
library_headers() {
    cpp_files | grep -E '^lvdata/.*\.h$' | grep -v /windows/
}
