# What the scripts share. Sourced, never run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

say() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
}

fail() {
    say "$*"
    exit 1
}

# wrong_use MESSAGE: for arguments that make no sense.
wrong_use() {
    say "$*"
    exit 2
}

processors() {
    nproc 2>/dev/null || echo 2
}

# The comment at the head of the running script is its help text.
show_help() {
    awk 'NR == 1 { next } !/^#/ { exit } { sub(/^# ?/, ""); print }' "$0"
}

# build PRESET [TARGET...]: configures the preset if that is due, and builds it (into build/PRESET).
build() {
    local preset=$1
    shift
    local -a targets=()
    if (($# > 0)); then
        targets=(--target "$@")
    fi
    if [[ -z ${CMAKE_CXX_COMPILER_LAUNCHER:-} ]] && command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    (
        cd "$root" || exit
        cmake --preset "$preset" >&2
        cmake --build "build/$preset" --parallel "$(processors)" "${targets[@]}" >&2
    )
}
