#!/bin/bash
# Runs in the fresh system, as root: what needs no device manager. Leaves the package installed.
. /test/checks.sh

printf '[Setting]\nAutostart=true\nStartHidden=true\n' >/tmp/autostart.ini
as pat mkdir -p /home/pat/.local/share/zpsg
as pat cp /tmp/autostart.ini /home/pat/.local/share/zpsg/config_ZPSG.ini
touch /test/before

version() { [[ $(as pat zpsg --version) == "zpsg ${1%-*}" ]]; }
check 'the version is the package'\''s' version "$(dpkg-query -W -f '${Version}' zpsg)"
models() { (($(as pat zpsg --list-models | wc -l) > 20)); }
check 'the models are listed' models

demo() {
    as "$1" timeout --preserve-status 8 zpsg --demo --headless --json >/tmp/demo 2>/tmp/notes || return 1
    cat /tmp/notes
    # The efficiency is there when the curve files are found.
    (($(grep -c '"EFF":[0-9].*"WATTS":[0-9]' /tmp/demo) >= 3))
}
check 'a demo without a window gives readings with an efficiency' demo pat
check 'its folder is the user'\''s' test -d /home/pat/.local/share/zpsg/demo

window() {
    as pat timeout --preserve-status 15 env QT_QPA_PLATFORM=offscreen zpsg open || return 1
    test -s /home/pat/.local/share/zpsg/database.db
}
check 'the window starts, and the history is the user'\''s' window
check 'what it writes to start with the session names /usr/bin/zpsg' \
    grep -x 'Exec="/usr/bin/zpsg" open' /home/pat/.config/autostart/zpsg.desktop
check 'nothing starts it for everybody' test ! -e /etc/xdg/autostart/zpsg.desktop

root_run() {
    HOME=/root timeout --preserve-status 5 zpsg --demo --headless >/dev/null && test -d /root/.local/share/zpsg/demo
}
check 'root'\''s data goes to root'\''s own folder' root_run
untouched() {
    find /usr /etc /var/lib -newer /test/before -type f ! -path '/var/lib/systemd/*'
    [[ -z $(find /usr /etc -newer /test/before -type f) ]]
}
check 'nothing was written into the system' untouched
check 'every file is as it was packed' dpkg --verify zpsg

manual() { as pat env MANPAGER=cat MANWIDTH=80 man "$1" | grep -q '^NAME'; }
for page in zpsg zpsg-curve zpsg-socket; do check "man $page" manual "$page"; done

complete_bash() {
    bash -c '. /usr/share/bash-completion/bash_completion; _completion_loader zpsg
        COMP_WORDS=(zpsg --demo = CVX) COMP_CWORD=3 COMP_LINE="zpsg --demo=CVX" COMP_POINT=15
        _zpsg; printf "%s\n" "${COMPREPLY[@]}"' >/tmp/found && grep -x CVX1000D /tmp/found
}
check 'bash completes models' complete_bash
complete_zsh() { zsh -fc 'autoload -Uz compinit && compinit -u -D; [[ $_comps[zpsg] == _zpsg ]] && autoload +X _zpsg'; }
check 'zsh loads its completion' complete_zsh
complete_fish() {
    fish -c 'complete -C "zpsg --data"; complete -C "zpsg --demo=CVX"; complete -C "zpsg export --fr"' >/tmp/found
    grep -- --data-dir /tmp/found && grep CVX1000D /tmp/found && grep -- --from /tmp/found
}
check 'fish completes options and models' complete_fish
exit "$failed"
