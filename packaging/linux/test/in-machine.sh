#!/bin/bash
# Runs in the booted system, as root: the supply as people meet it. pat sits at the machine, sam has no session.
exec >/mnt/stdout 2>&1
. /test/checks.sh
cd /tmp || exit 1
printf '        the system is up after %s s\n' "$(cut -d ' ' -f 1 /proc/uptime)"

plug() { # OPTION...
    mkfifo "/tmp/commands.$((++plugs))"
    /mnt/zpsg-vusb --load 400 "$@" <>"/tmp/commands.$plugs" &
    supply=$!
    wait_for "$patience" test -e /dev/hidraw0 && udevadm settle
}
unplug() {
    kill "$supply" && wait "$supply"
    wait_for "$patience" test ! -e /dev/hidraw0 && udevadm settle
}
plugs=0
patience=600 # seconds; a busy host needs minutes for the login, and nothing waits longer than it must

seated() { loginctl show-session -p Active -p Seat "$(loginctl show-seat -P ActiveSession seat0)" | grep -x Seat=seat0; }
check 'pat has a session at the seat' wait_for "$patience" seated
check 'and neither pat nor sam is in a group for devices' bash -c '! id -nG pat sam 2>&1 | grep -w plugdev'
waiting() { grep 'no power supply found' /home/pat/notes; }
check 'pat'\''s session has begun to wait for a supply' wait_for "$patience" waiting

reads() { grep '"WATTS":[0-9]' "$1"; }
plug
check 'plugged in, the supply is read in pat'\''s session' wait_for "$patience" reads /home/pat/readings
sed 's/^/        /' /home/pat/notes
tail -n 1 /home/pat/readings | cut -c 1-150 | sed 's/^/        /'
getfacl --absolute-names /dev/hidraw0 | sed 's/^/        /'
udevadm info /dev/hidraw0 | grep -E 'TAGS|SUBSYSTEM' | sed 's/^/        /'
check 'by its entry in the access list' bash -c 'getfacl -c /dev/hidraw0 | grep -x user:pat:rw-'
check 'which the package'\''s rule asked for' bash -c 'udevadm info /dev/hidraw0 | grep -E ":uaccess:"'

denied() { # USER
    as "$1" timeout --preserve-status 15 zpsg --headless >readings 2>notes
    cat notes
    grep 'may not open it' notes && grep "sudo usermod -aG plugdev '$1'" notes && ! grep -q '[0-9]' readings
}
check 'sam, without a session, is refused, and told what helps' denied sam
sed 's/^/        /' notes
remedy() {
    usermod -aG plugdev sam
    as sam timeout --preserve-status 15 zpsg --headless --json >readings 2>notes
    cat notes
    reads readings
}
check 'what was told helps' remedy

unplug
kill "$(cat /home/pat/pid)"
check 'the program in the session ends' wait_for "$patience" bash -c '! kill -0 "$(cat /home/pat/pid)"'
service() { as pat systemctl --user "$1" zpsg-headless; }
lines() { journalctl -q _UID="$(id -u pat)" -o cat --since "@$since" | grep "$1"; }
since=$(date +%s)
off() { [[ $(service is-enabled) == disabled ]]; }
check 'the unit of the user is off' off
check 'it starts without a supply' service start
check 'and says so in the journal' wait_for "$patience" lines 'no power supply found'
plug --raw
check 'it reads the other product, plugged in later' wait_for "$patience" lines '"WATTS":[0-9]'
check 'whose access list is the same' bash -c 'getfacl -c /dev/hidraw0 | grep -x user:pat:rw-'
confined() {
    local status
    status=/proc/$(as pat systemctl --user show -P MainPID zpsg-headless)/status
    cat "$status" && grep -x 'Seccomp:.2' "$status" && grep -x 'NoNewPrivs:.1' "$status" &&
        [[ $(readlink "${status%status}ns/mnt") != "$(readlink /proc/1/ns/mnt)" ]]
}
check 'under the restrictions of the unit' confined
check 'it stops' service stop
in_order() { service show | tee /dev/stderr | grep -x Result=success; }
check 'in good order' in_order

dpkg -L zpsg >files
check 'the package is removed and purged' dpkg --purge zpsg
check 'nothing of it is left' nothing_left files
check 'what pat recorded is' test -s /home/pat/.local/share/zpsg/database.db
unplug
plug
check 'a supply belongs to root again' bash -c '! getfacl -c /dev/hidraw0 | grep user:pat'
check 'installed anew, the rule holds for a supply that is plugged in' bash -c \
    'dpkg -i /test/*.deb && udevadm settle && getfacl -c /dev/hidraw0 | grep -x user:pat:rw-'
unplug
echo "$failed" >/mnt/status
