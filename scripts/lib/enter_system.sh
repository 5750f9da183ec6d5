#!/usr/bin/env bash
# Mounts what a system needs in a folder and runs a command there, in namespaces that fresh_system.sh made:
#
#   enter_system.sh ROOT HOME COUNT SHARED... COMMAND...
set -euo pipefail

root=$1 home=$2 count=$3
shift 3
shared=("${@:1:count}")
shift "$count"

mount --bind "$root" "$root"
mount -t proc proc "$root/proc"
mount -t tmpfs -o mode=755 devices "$root/dev"
mkdir "$root/dev/pts" "$root/dev/shm"
mount -t devpts -o newinstance,ptmxmode=0666,mode=620 terminals "$root/dev/pts"
mount -t tmpfs -o mode=1777 memory "$root/dev/shm"
for device in null zero full random urandom tty; do
    touch "$root/dev/$device"
    mount --bind "/dev/$device" "$root/dev/$device"
done
ln -s pts/ptmx "$root/dev/ptmx"
ln -s /proc/self/fd "$root/dev/fd"
for name in 0:stdin 1:stdout 2:stderr; do
    ln -s "/proc/self/fd/${name%:*}" "$root/dev/${name#*:}"
done
for folder in "${shared[@]}"; do
    mkdir -p "$root$folder"
    mount --bind "$folder" "$root$folder"
done

# shellcheck disable=SC2016 # the inner shell expands it
exec env --ignore-environment PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    HOME=/root LANG=C.UTF-8 TERM="${TERM:-dumb}" ${CI:+CI="$CI"} \
    chroot "$root" bash -c 'cd "$1" && shift && exec "$@"' bash "$home" "$@"
