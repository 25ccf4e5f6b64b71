#!/usr/bin/env bash
# Installs the package in a fresh Debian 12 and uses it there, by hand and as root:
#     packaging/linux/test-package.sh [--base FOLDER] [DEB]
#
# First in a folder, then in a virtual machine that boots this folder with systemd, udev and logind, where the
# simulated supply is plugged in and read by a plain user. DEB is what build.sh made unless named; FOLDER is one of
# debootstrap's to start from, copied, instead of a new one. Takes 4 to 30 minutes.
set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
. "$root/tools/setup.sh"

suite=bookworm
# What the test uses, beside what the package asks for.
inside=systemd-sysv,udev,libpam-systemd,dbus,login,acl,man-db,bash-completion,zsh,fish
host_packages=(debootstrap qemu-system-x86 busybox-static cpio kmod xz-utils util-linux)

fail() { # STATUS TEXT
    printf 'test-package.sh: %s\n' "$2" >&2
    exit "$1"
}
base=''
if [ "${1-}" = --base ]; then
    base=${2:?--base needs a folder}
    shift 2
fi
newest() { find "$root/build-package" -maxdepth 1 -name 'zpsg_*.deb' -printf '%T@ %p\n' | sort -n | tail -n 1 | cut -d ' ' -f 2-; }
deb=${1:-$(newest)}
[ -f "$deb" ] || fail 2 "there is no package ${deb:-in build-package}: run packaging/linux/build.sh"
supply=$root/build-package/bin/zpsg-vusb
[ -x "$supply" ] || fail 2 "$supply is missing: run packaging/linux/build.sh"
[ "$(id -u)" -eq 0 ] || fail 2 'this must be run as root'
install_missing "${host_packages[@]}"

work=$(mktemp -d "${TMPDIR:-/tmp}/zpsg-package.XXXXXX")
system=$work/system machine=''
clean_up() {
    if [ -n "$machine" ]; then { kill -KILL "$machine" && wait "$machine"; } 2>/dev/null || true; fi
    if mountpoint -q "$system/proc"; then umount "$system/proc"; fi
    rm -rf --one-file-system -- "$work"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

echo "== A fresh system"
sources() { apt-get indextargets --format "\$(ORIGIN) $1" 'Created-By: Packages' | sed -n 's/^Debian //p' | sort -u; }
if [ -n "$base" ]; then
    cp -a --reflink=auto "$base" "$system"
else
    mirror=$(sources '$(RELEASE) $(REPO_URI)' | sed -n "s/^$suite //p" | head -n 1)
    [ -n "$mirror" ] || fail 1 "apt knows no archive of $suite: run apt-get update"
    debootstrap --variant=minbase --include="$inside" "$suite" "$system" "$mirror" >"$work/log" 2>&1 ||
        { tail -n 20 "$work/log" >&2 && fail 1 'debootstrap failed'; }
fi
# The way to the archive is this machine's.
sources 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' | grep -E "^deb [^ ]+ $suite" >"$system/etc/apt/sources.list"
cp /etc/apt/apt.conf.d/* "$system/etc/apt/apt.conf.d/"
cp -L /etc/resolv.conf /etc/hosts "$system/etc/"
mount -t proc proc "$system/proc"
run() { chroot "$system" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 TERM=dumb "$@"; }
for user in pat sam; do run useradd --create-home --shell /bin/bash "$user"; done
mkdir "$system/test"
cp "$here"/test/*.sh "$deb" "$system/test/"

echo "== Installing $(basename "$deb")"
apt() { # ARGUMENT...
    run ${http_proxy:+"http_proxy=$http_proxy"} ${https_proxy:+"https_proxy=$https_proxy"} \
        DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends "$@" >"$work/log" 2>&1 ||
        { tail -n 20 "$work/log" >&2 && fail 1 "apt-get $* failed"; }
}
apt update
apt install "/test/$(basename "$deb")"

failed=0
echo "== In the folder"
run /bin/bash /test/in-folder.sh || failed=1

echo "== In a machine"
# The kernel is that of the tests with a device.
# shellcheck source=tools/vusb/guest-kernel.sh
(
    here=$root/tools/vusb
    say() { :; }
    . "$here/guest-kernel.sh"
    prepare_kernel
    echo "$kernel"
) >"$work/kernel"
kernel=$(tail -n 1 "$work/kernel")
mkdir -p "$work"/first/{bin,dev,proc,modules,root,upper,new} "$work/share"
cp "$(command -v busybox)" "$work/first/bin/busybox"
install -m 755 "$here/test/init" "$work/first/init"
cp "$(dirname "$kernel")"/modules/*.ko "$work/first/modules/"
(cd "$work/first" && find . | cpio --quiet -o -H newc) >"$work/initramfs"
install -m 755 "$supply" "$work/share/zpsg-vusb"
: >"$work/share/stdout"

mkdir -p "$system/etc/systemd/system/getty@tty1.service.d"
cat >"$system/etc/systemd/system/getty@tty1.service.d/autologin.conf" <<'TEXT'
[Service]
ExecStart=
ExecStart=-/sbin/agetty --autologin pat --noclear %I linux
TEXT
cat >"$system/home/pat/.bash_profile" <<'TEXT'
if [ "$(tty)" = /dev/tty1 ]; then
    zpsg --headless --json >~/readings 2>~/notes &
    echo $! >~/pid
fi
TEXT
cat >"$system/etc/systemd/system/zpsg-test.service" <<'TEXT'
[Service]
Type=oneshot
ExecStart=/bin/bash /test/in-machine.sh
ExecStopPost=/sbin/reboot -ff
[Install]
WantedBy=multi-user.target
TEXT
run systemctl -q enable zpsg-test.service
umount "$system/proc"
quiet=(apt-daily.timer apt-daily-upgrade.timer dpkg-db-backup.timer man-db.timer e2scrub_reap.service fstrim.timer
    systemd-timesyncd.service systemd-networkd.service serial-getty@ttyS0.service)
qemu-system-x86_64 -accel tcg -m 1024 -smp 2 -nodefaults -display none -no-reboot -net none \
    -serial "file:$work/console" \
    -fsdev "local,id=root,path=$system,security_model=none,readonly=on,multidevs=remap" \
    -device virtio-9p-pci,fsdev=root,mount_tag=root \
    -fsdev "local,id=share,path=$work/share,security_model=none" \
    -device virtio-9p-pci,fsdev=share,mount_tag=share \
    -kernel "$kernel" -initrd "$work/initramfs" \
    -append "console=ttyS0 quiet panic=-1 oops=panic mitigations=off random.trust_cpu=on nowatchdog systemd.firstboot=no $(
        printf 'systemd.mask=%s ' "${quiet[@]}")" </dev/null >"$work/qemu" 2>&1 &
machine=$!
timeout 2700 tail -s 0.2 -f -c +1 --pid="$machine" "$work/share/stdout" || true
if [ ! -s "$work/share/status" ]; then
    cat "$work/qemu" "$work/console" | tail -n 60 | tr -d '\r' >&2
    fail 1 'the machine did not come to the end'
fi
wait "$machine" || true
machine=''
[ "$(cat "$work/share/status")" = 0 ] || failed=1

echo "== Removed from the folder"
mount -t proc proc "$system/proc"
run dpkg -L zpsg >"$system/test/files"
apt purge zpsg
run /bin/bash -c '. /test/checks.sh; check "nothing is left" nothing_left /test/files
    check "what users recorded is" test -d /home/pat/.local/share/zpsg; exit $failed' || failed=1

[ "$failed" -eq 0 ] || fail 1 'some checks FAILED, see above'
echo "All checks passed."
