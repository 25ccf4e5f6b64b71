# shellcheck shell=bash
# Sourced by what runs inside the test's folder and inside its machine.

failed=0
said=$(mktemp)

# check WHAT COMMAND...: a line about it, with what the command said when it failed.
check() {
    local what=$1
    shift
    if "$@" >"$said" 2>&1; then
        printf 'ok      %s\n' "$what"
    else
        printf 'FAILED  %s\n' "$what"
        sed 's/^/            /' "$said"
        failed=1
    fi
}

# wait_for SECONDS COMMAND...
wait_for() {
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || return 1
        sleep 0.5
    done
}

# as USER COMMAND...: without a session and with nothing of the caller's environment. SIGTERM ends it in good order,
# so a command's own time limit is `timeout --preserve-status`.
as() {
    local user=$1
    shift
    runuser -u "$user" -- env -i HOME="/home/$user" USER="$user" LANG=C.UTF-8 PATH=/usr/bin:/bin \
        XDG_RUNTIME_DIR="/run/user/$(id -u "$user")" "$@"
}

# The package's files that are there, of the list in $1. Folders belong to others as well, but for its own two.
leftovers() {
    local path
    while read -r path; do
        if [[ ! -d $path && -e $path ]] || [[ -d $path && $path == */zpsg ]]; then echo "$path"; fi
    done <"$1"
}

nothing_left() {
    leftovers "$1"
    [[ -z $(leftovers "$1") ]] && ! dpkg -s zpsg
}
