#!/usr/bin/env bash
# The part of scripts/fresh-system that root does:
#
#   fresh_system.sh CACHE SUITE TAR COUNT SHARED... COMMAND...
#
# TAR is what /quillon will hold; nothing when empty. COUNT folders are shared.
set -euo pipefail
# shellcheck source=scripts/lib/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

cache=$1 suite=$2 tree=$3 count=$4
shift 4
shared=("${@:1:count}")
shift "$count"

# mirror_of LABEL: where this system's apt finds what has that label ("Debian", "Debian-Security").
mirror_of() {
    apt-get indextargets --format "\$(REPO_URI)" "Label: $1" "Created-By: Packages" "Component: main" | head -n 1
}

# Writes where apt finds packages inside of the system at $1: where this system finds its own.
use_our_mirrors() {
    local main security
    main=$(mirror_of Debian)
    security=$(mirror_of Debian-Security)
    {
        echo "deb $main $suite main"
        echo "deb $main $suite-updates main"
        [[ -z $security ]] || echo "deb $security $suite-security main"
    } >"$1/etc/apt/sources.list"
    apt-config dump Acquire >"$1/etc/apt/apt.conf.d/90acquire"
}

# Fetches the system into $1.
fetch() {
    local main proxy=
    main=$(mirror_of Debian)
    [[ -n $main ]] || fail "this system's apt knows no Debian mirror; run apt-get update first"
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [[ -z $proxy ]] || export http_proxy=$proxy
    say "fetching $suite, for the next runs as well"
    debootstrap --variant=minbase "$suite" "$1" "$main" >"$cache/$suite.log" 2>&1 ||
        fail "debootstrap failed, see $cache/$suite.log"
    use_our_mirrors "$1"
}

# Has the system in the cache, at most a week old.
have_system() {
    exec {lock}>"$cache/$suite.lock"
    flock "$lock"
    if [[ -n $(find "$cache/$suite" -maxdepth 0 -mtime -7 2>/dev/null) ]]; then
        return
    fi
    rm -rf --one-file-system -- "${cache:?}/$suite" "$cache/$suite.new"
    fetch "$cache/$suite.new"
    touch "$cache/$suite.new"
    mv "$cache/$suite.new" "$cache/$suite"
}

have_system
copy=$(mktemp --directory "$cache/$suite.run.XXXXXX")
trap 'rm -rf --one-file-system -- "$copy"' EXIT
cp --archive --reflink=auto "$cache/$suite/." "$copy"
exec {lock}>&-
home=/
if [[ -n $tree ]]; then
    home=/quillon
    mkdir "$copy$home"
    tar --extract --no-same-owner --file "$tree" --directory "$copy$home"
fi
cp --dereference /etc/resolv.conf "$copy/etc/resolv.conf" 2>/dev/null || true

# Mounts belong to the namespace: whatever way the command ends, they end with it.
unshare --mount --pid --ipc --fork --kill-child --propagation private \
    bash "$root/scripts/lib/enter_system.sh" "$copy" "$home" "$count" "${shared[@]}" "$@"
