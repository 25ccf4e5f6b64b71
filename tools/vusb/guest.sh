#!/bin/bash
# Runs a command inside a small virtual machine that has a HID bus of its own, see usage below.
set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=tools/vusb/guest-kernel.sh
source "$here/guest-kernel.sh"

usage() {
    cat <<'TEXT'
Usage: guest.sh [--timeout SECONDS] [--env NAME=VALUE]... [--accel auto|tcg|kvm] [--verbose] COMMAND [ARG...]

Runs COMMAND as root inside a virtual machine with /dev/uhid and /dev/hidraw*. The guest sees this machine's
files under the same paths, in the same current directory; what it writes is gone when it ends. There is no
network and no standard input.

  --timeout SECONDS   end the guest after this time (default 300)
  --env NAME=VALUE    an environment variable for COMMAND; may be repeated
  --accel HOW         tcg emulates, kvm needs /dev/kvm; auto (default) takes kvm where it works
  --verbose           say on stderr what is done, and how long the guest took to start

Exit status: COMMAND's own; 124 when the time was up; 125 when the guest crashed or can't run here; 2 for
wrong use. The kernel comes from Debian's package and is kept in ${XDG_CACHE_HOME:-~/.cache}/zpsg-vusb.
TEXT
}

fail() {
    printf 'guest.sh: %s\n' "$2" >&2
    exit "$1"
}

wrong_use() {
    printf 'guest.sh: %s\n' "$1" >&2
    usage >&2
    exit 2
}

say() {
    if [[ $verbose == yes ]]; then printf 'guest.sh: %s\n' "$*" >&2; fi
}

timeout=300 accel=auto verbose=no environment=()
while (($# > 0)); do
    case $1 in
    --timeout | --env | --accel)
        (($# > 1)) || wrong_use "$1 needs a value"
        case $1 in
        --timeout) timeout=$2 ;;
        --env) environment+=("$2") ;;
        --accel) accel=$2 ;;
        esac
        shift 2
        ;;
    --verbose) verbose=yes && shift ;;
    -h | --help) usage && exit 0 ;;
    --) shift && break ;;
    -*) wrong_use "unknown option $1" ;;
    *) break ;;
    esac
done
(($# > 0)) || wrong_use "a command is needed"
[[ $timeout =~ ^[1-9][0-9]{0,5}$ ]] || wrong_use "--timeout takes whole seconds, not '$timeout'"
[[ $accel =~ ^(auto|tcg|kvm)$ ]] || wrong_use "--accel takes auto, tcg or kvm, not '$accel'"
for variable in "${environment[@]}"; do
    [[ $variable =~ ^[A-Za-z_][A-Za-z0-9_]*= ]] || wrong_use "--env takes NAME=VALUE, not '$variable'"
done

[[ $(uname -sm) == "Linux x86_64" ]] || fail 125 "the guest runs this machine's programs, which must be x86_64 Linux"
need qemu-system-x86_64 qemu-system-x86
need setpriv util-linux
prepare_kernel

if [[ $accel == auto ]]; then
    # A machine that is virtual itself may have the node without the processor's part of it.
    if [[ -r /dev/kvm && -w /dev/kvm ]] && grep -qwE 'vmx|svm' /proc/cpuinfo; then accel=kvm; else accel=tcg; fi
fi

# The guest reads `request` here and writes `stdout`, `stderr`, `status` and `started`.
run=$(mktemp -d "${TMPDIR:-/tmp}/zpsg-guest.XXXXXX")
guest='' followers=()
# shellcheck disable=SC2317 # it is the trap's
clean_up() {
    local pid
    for pid in $guest "${followers[@]}"; do
        { kill -KILL "$pid" && wait "$pid"; } 2>/dev/null || true
    done
    rm -rf -- "$run"
}
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

mkdir "$run/share"
: >"$run/share/stdout" && : >"$run/share/stderr" && : >"$run/console"
{
    printf 'cd -- %q || exit 125\n' "$PWD"
    if ((${#environment[@]} > 0)); then printf 'export %q\n' "${environment[@]}"; fi
    printf 'exec --'
    printf ' %q' "$@"
    printf '\n'
} >"$run/share/request"

say "starting ($accel)"
begin=$EPOCHREALTIME
# The kernel ends what carries this prefix should this script be killed the hard way.
tied=(setpriv --pdeathsig KILL)
"${tied[@]}" qemu-system-x86_64 \
    -accel "$accel" -m 1024 -smp 2 -nodefaults -display none -no-reboot -net none \
    -serial "file:${run//,/,,}/console" \
    -fsdev local,id=root,path=/,security_model=none,readonly=on,multidevs=remap \
    -device virtio-9p-pci,fsdev=root,mount_tag=root \
    -fsdev "local,id=share,path=${run//,/,,}/share,security_model=none" \
    -device virtio-9p-pci,fsdev=share,mount_tag=share \
    -kernel "$kernel" -initrd "$initramfs" \
    -append "console=ttyS0 quiet panic=-1 oops=panic mitigations=off random.trust_cpu=on" \
    </dev/null >"$run/qemu" 2>&1 &
guest=$!
"${tied[@]}" tail -s 0.1 -f -c +1 --pid="$guest" "$run/share/stdout" &
followers+=($!)
"${tied[@]}" tail -s 0.1 -f -c +1 --pid="$guest" "$run/share/stderr" >&2 &
followers+=($!)

# In the background, so that a signal to this script is served at once.
in_time=yes
"${tied[@]}" timeout "$timeout" "${tied[@]}" tail -s 0.1 -f --pid="$guest" /dev/null &
followers+=($!)
wait $! || in_time=no
kill -KILL "$guest" 2>/dev/null || true
wait "$guest" 2>/dev/null || true
for pid in "${followers[@]}"; do wait "$pid" || true; done
guest='' followers=()

if [[ -s $run/share/started ]]; then
    say "$(<"$run/share/started") s from the kernel's start to the command's"
fi
say "the guest took $(((${EPOCHREALTIME/[.,]/} - ${begin/[.,]/}) / 1000)) ms in all"
if [[ -s $run/share/status ]]; then
    exit "$(<"$run/share/status")"
fi
console() {
    printf 'guest.sh: the last lines of its console:\n' >&2
    cat "$run/qemu" "$run/console" | tail -n 40 | tr -d '\r' >&2
}
if [[ $in_time == no ]]; then
    printf 'guest.sh: timed out: the command did not end within %s s\n' "$timeout" >&2
    [[ -s $run/share/started ]] || console
    exit 124
fi
console
fail 125 "the guest crashed or could not start"
