#!/usr/bin/env bash
# Connects to the control socket from another machine, which is a network of its own here: closed without a byte, and
# with AllowRemote greeted.
# usage: remote_socket.sh PROGRAM
set -euo pipefail
program=$1
here=zpsg-here-$$ there=zpsg-there-$$
address=192.0.2.1 port=5488 # an address that is kept for examples
folder=$(mktemp -d) # with mode 700
running=

cleanup() {
    [ -z "$running" ] || { kill -KILL "$running" && wait "$running"; } 2>/dev/null || true
    for namespace in "$here" "$there"; do
        ip netns delete "$namespace" 2>/dev/null || true # its end of the pair goes with it
    done
    rm -rf "$folder"
}
trap cleanup EXIT
trap 'exit 1' INT TERM

network() {
    ip netns add "$here" && ip netns add "$there" &&
        ip -n "$here" link add zpsg0 type veth peer name zpsg1 netns "$there"
}
if ! command -v ip >/dev/null || ! network 2>/dev/null; then
    echo "no network can be made here"
    exit 77
fi
ip -n "$here" link set lo up
ip -n "$here" address add "$address/24" dev zpsg0
ip -n "$here" link set zpsg0 up
ip -n "$there" address add 192.0.2.2/24 dev zpsg1
ip -n "$there" link set zpsg1 up

# Prints the greeting as seen from a namespace. Fails with 1 when closed before it, 2 when there is no connection,
# 3 when nothing comes for 10 s.
greeting() {
    ip netns exec "$1" bash -c '
        exec 2>/dev/null
        exec 3<>"/dev/tcp/$1/$2" || exit 2
        status=0
        IFS= read -r -t 10 -d "&" text <&3 || status=$?
        printf %s "$text"
        [ $status -le 128 ] || exit 3
        exit $status
    ' - "$2" "$port"
}

start() {
    QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$folder HOME=$folder \
        ip netns exec "$here" "$program" --demo --data-dir "$folder" &
    running=$!
    for ((tenth = 0; tenth < 200; tenth++)); do
        greeting "$here" 127.0.0.1 >/dev/null && return
        kill -0 "$running" 2>/dev/null || { echo "the program ended by itself"; exit 1; }
        sleep 0.1
    done
    echo "the program does not answer on its own machine"
    exit 1
}

stop() {
    local status=0
    kill -TERM "$running"
    wait "$running" || status=$?
    running=
    [ $status -eq 0 ] || { echo "the program ended with $status"; exit 1; }
}

# Greeted, from a namespace: the greeting begins with the supply's ring, or tells that there is none.
expect_greeting() {
    local status=0 text
    text=$(greeting "$1" "$address") || status=$?
    [[ $status -eq 0 && $text =~ ^(NoPower|CvPower|CvPower_12LED|CvPower_Duo)! ]] ||
        { echo "$2 got with status $status: $text"; exit 1; }
}

start
expect_greeting "$here" "this machine by its address in the network"
status=0
text=$(greeting "$there" "$address") || status=$?
[[ $status -eq 1 && -z $text ]] || { echo "another machine got with status $status: $text"; exit 1; }
stop

settings=$folder/demo/config_ZPSG.ini
sed -i '/^AllowRemote=/d' "$settings"
printf '\n[Socket]\nAllowRemote=true\n' >>"$settings"
start
expect_greeting "$there" "another machine that is let in"
stop
echo "closed at first, greeted with AllowRemote"
