# Short runs of the fuzz targets. Sourced, never run.
# shellcheck shell=bash disable=SC2154 # root is set by common.sh

# build_fuzzers: builds them into build/fuzz/bin.
build_fuzzers() {
    build fuzz fuzzers
}

# run_fuzzers SECONDS: runs each target for that long, two at a time as processors allow; fails when one does.
# What a target found is kept beside its log in build/fuzz/found.
run_fuzzers() {
    local seconds=$1 found=$root/build/fuzz/found target failed=0
    local -a running=() names=()
    mkdir -p "$found"
    for target in "$root"/build/fuzz/bin/*; do
        [[ -f $target && -x $target ]] || continue
        start_fuzzer "$target" "$seconds" "$found" &
        running+=($!)
        names+=("${target##*/}")
        if ((${#running[@]} == $(processors))); then
            finish_fuzzers || failed=1
        fi
    done
    finish_fuzzers || failed=1
    return $failed
}

# Waits for the runs in `running` and tells how each went.
finish_fuzzers() {
    local at failed=0
    for at in "${!running[@]}"; do
        if wait "${running[at]}"; then
            say "fuzz ${names[at]}: $(grep -E '^Done [0-9]+ runs' "$found/${names[at]}.log" || echo 'done')"
        else
            say "fuzz ${names[at]} failed:"
            tail -n 40 "$found/${names[at]}.log" >&2
            failed=1
        fi
    done
    running=()
    names=()
    return $failed
}

start_fuzzer() {
    local target=$1 seconds=$2 found=$3
    local name=${target##*/} corpus status=0
    local seeds=$root/fuzz/corpus/$name words
    words=$(find "$root/fuzz" -name "${name#fuzz_}.dict")
    [[ -d $seeds ]] || seeds=
    [[ -f $words ]] || words=
    corpus=$(mktemp -d)
    "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -artifact_prefix="$found/$name-" \
        ${words:+"-dict=$words"} "$corpus" ${seeds:+"$seeds"} >"$found/$name.log" 2>&1 || status=$?
    rm -rf "$corpus"
    return $status
}
