#!/usr/bin/env bash
# Installs the package, runs the program and removes it, in a system of which nothing is needed any more:
#
#   try_package.sh PACKAGE
set -euo pipefail
# shellcheck source=scripts/lib/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

package=$1
export DEBIAN_FRONTEND=noninteractive

# quietly COMMAND...: its output only when it fails.
quietly() {
    "$@" >/tmp/output 2>&1 </dev/null || { cat /tmp/output >&2; fail "failed: $*"; }
}

# Every file of the system but those of package lists, logs, caches, homes and this check.
files() {
    find / -xdev \( -path /proc -o -path /dev -o -path /sys -o -path /tmp -o -path /run -o -path /root \
        -o -path /quillon -o -path /var/log -o -path /var/cache -o -path /var/lib/dpkg -o -path /var/lib/apt \
        -o -path "$(dirname "$package")" \) -prune -o ! -type d -print | LC_ALL=C sort
}

# What a package lists that is no folder.
listed_files() {
    dpkg --listfiles quillon | while read -r name; do
        [[ -d $name && ! -L $name ]] || echo "$name"
    done | LC_ALL=C sort
}

# same WHAT EXPECTED FOUND
same() {
    diff <(echo "$2") <(echo "$3") >&2 || fail "$1"
}

# Whatever it needs comes by its dependencies: nothing else is here yet.
check_libraries() {
    local plugin missing
    plugin=$(find /usr/lib -name libqxcb.so)
    [[ -n $plugin ]] || fail "Qt's plugin for X11 is missing"
    missing=$(ldd /usr/bin/quillon /usr/lib/quillon/modules/*.so "$plugin" | grep 'not found' || true)
    [[ -z $missing ]] || fail "libraries are missing: $missing"
    [[ -n $(find /usr/lib -name libqsvg.so) ]] || fail "Qt's plugin for SVG is missing"
}

# On a desktop without a tray, which is what its owner has to be told.
check_program() {
    "$root/scripts/private-desktop" --no-wm -- bash "$root/scripts/lib/use_program.sh"
}

quietly apt-get update
quietly apt-get install --yes --no-install-recommends "$package"
say "it brought $(dpkg-query --show | wc -l) packages in all"
check_libraries
[[ $(quillon --version) == *"$(dpkg-query --show --showformat='${Version}' quillon)"* ]] || fail "another version"
dpkg --verify quillon || fail "files differ from those of the package"

quietly apt-get install --yes --no-install-recommends python3 xvfb x11-utils dbus at-spi2-core
check_program
with=$(files)
listed=$(listed_files)
quietly apt-get remove --yes quillon
without=$(files)
same "removing it took other files than its own" "$listed" "$(LC_ALL=C comm -23 <(echo "$with") <(echo "$without"))"
same "removing it added files" "" "$(LC_ALL=C comm -13 <(echo "$with") <(echo "$without"))"
left=$(find / -xdev \( -path /proc -o -path /quillon -o -path /tmp -o -path "$(dirname "$package")" \) -prune -o -iname '*quillon*' -print)
same "something of it is left" "" "$left"
if dpkg-query --show quillon >/dev/null 2>&1; then
    fail "it is still known after its removal: it has files under /etc"
fi
