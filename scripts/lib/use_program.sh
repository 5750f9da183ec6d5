#!/usr/bin/env bash
# Uses the installed program on the present display, on which nothing else runs: it starts, is found by a second
# start, opens a window, says what the desktop lacks, and ends.
set -euo pipefail
# shellcheck source=scripts/lib/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# until_true WHAT COMMAND...
until_true() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || fail "$what"
        sleep 0.1
    done
}

has_name() {
    dbus-send --session --print-reply=literal --dest=org.freedesktop.DBus /org/freedesktop/DBus \
        org.freedesktop.DBus.NameHasOwner string:app.quillon.Quillon | grep -q true
}

sees_window() {
    xwininfo -root -tree | grep -qi quillon
}

has_ended() {
    ! kill -0 "$program" 2>/dev/null
}

quillon &
program=$!
until_true "it does not start" has_name
quillon show --sample
until_true "it shows no window" sees_window
quillon doctor || true
quillon quit
until_true "it does not end" has_ended
wait "$program" || fail "it ended with $?"
