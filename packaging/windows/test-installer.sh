#!/usr/bin/env bash
# Installs, starts, updates and removes the program with its setup, under wine with a registry and a drive of its own,
# and looks at what is there each time; then the ZIP that lies beside the setup. Prints a line a check and fails when one
# did.
#
# usage: test-installer.sh SETUP
#
# Exit status: 0, 1 when a check failed, 77 when wine is not installed (CTest takes that as skipped).
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
[ $# -eq 1 ] || {
    echo "usage: $0 SETUP" >&2
    exit 2
}
command -v wine >/dev/null || {
    echo "skipped: wine is not installed (Debian: apt-get install wine wine64)"
    exit 77
}
setup=$(realpath "$1")
work=$(mktemp -d)
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEARCH=win64
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe=d'
export HOME=$work XDG_RUNTIME_DIR=$work # what is installed goes nowhere else
failed=0
screen=

leave() {
    wineserver -k 2>/dev/null && wineserver -w
    [ -z "$screen" ] || kill "$screen"
    rm -rf "$work"
}
trap leave EXIT

check() { # WHAT COMMAND...
    local what=$1
    shift
    if "$@" >"$work/output" 2>&1; then
        echo "ok      $what"
    else
        echo "FAILED  $what"
        sed 's/^/        /' "$work/output" | head -n 20
        failed=1
    fi
}
not() { ! "$@"; }
soon() { # COMMAND...: within half a minute
    local i
    for ((i = 0; i < 150; i++)); do
        if "$@" >/dev/null; then return 0; fi
        sleep 0.2
    done
    "$@"
}
ends_with() { # EXIT-CODE COMMAND...
    local code=$1 got=0
    shift
    "$@" || got=$?
    [ "$got" -eq "$code" ] || { echo "exit code $got instead of $code"; return 1; }
}
same() { [ "$1" = "$2" ] || { echo "\"$1\" instead of \"$2\""; return 1; }; }
there() { # FILE...
    local file
    for file in "$@"; do [ -e "$file" ] || { echo "there is no $file"; return 1; }; done
}
gone() { # FILE...
    local file
    for file in "$@"; do [ ! -e "$file" ] || { echo "there still is $file"; ls -A "$file" 2>/dev/null; return 1; }; done
}
value() { # KEY NAME: of the registry
    wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n 's/^ *[^ ].*  *REG_[A-Z]* *//p'
}
value_is() { same "$(value "$1" "$2")" "$3"; }
# The uninstaller goes on in a copy of itself.
uninstall() { # FOLDER SWITCH...
    local folder=$1
    shift
    wine "$folder/uninstall.exe" "$@"
    soon gone "$folder/uninstall.exe" >/dev/null
    sleep 2
}
window() { xdotool search --name '^CorvaneZPSPOWER$' >/dev/null 2>&1; }
start() { # FOLDER ARGUMENT...: the program there, with its process in $program
    local folder=$1
    shift
    (cd "$folder" && exec wine zpsg.exe "$@") >/dev/null 2>&1 &
    program=$!
    soon window
}
listed() { tr -d '\r' <"$1/installed.ini" | sed -n '/^\[files\]/,/^\[folders\]/s/=1$//p' | tr '\\' /; }

mkfifo "$work/display"
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 >/dev/null 2>&1 &
screen=$!
read -r -u 3 number
export DISPLAY=:$number
wineboot -i >/dev/null 2>&1
wineserver -w
user=$(find "$WINEPREFIX/drive_c/users" -mindepth 1 -maxdepth 1 -type d ! -name Public)
local=$user/AppData/Local
mine="$local/Programs/ZPS G"
common="$WINEPREFIX/drive_c/Program Files/ZPS G"
menu="AppData/Roaming/Microsoft/Windows/Start Menu/Programs/ZPS G.lnk"
common_menu="$WINEPREFIX/drive_c/ProgramData/Microsoft/Windows/Start Menu/Programs/ZPS G.lnk"
uninstall_key='Software\Microsoft\Windows\CurrentVersion\Uninstall\zpsg'
run_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
windows_mine=$(winepath -w "$mine" 2>/dev/null | tr -d '\r')
command="\"$windows_mine\\zpsg.exe\" open"

echo "For one user"
check "installs without a question" ends_with 0 wine "$setup" /S
check "program, list and uninstaller are there" there "$mine/zpsg.exe" "$mine/installed.ini" "$mine/uninstall.exe"
(cd "$mine" && find . -type f ! -name uninstall.exe | sed 's|^\./||' | sort) >"$work/found"
check "the list names every file" diff <(listed "$mine" | sort) "$work/found"
check "the start menu has it" there "$user/$menu"
check "nothing for everyone" gone "$common" "$common_menu"
version=$(value "HKCU\\$uninstall_key" DisplayVersion)
check "Windows knows its version" grep -Ex '[0-9]+\.[0-9]+\.[0-9]+' <<<"$version"
check "and how to remove it" value_is "HKCU\\$uninstall_key" UninstallString "\"$windows_mine\\uninstall.exe\""
check "and to do so silently" value_is "HKCU\\$uninstall_key" QuietUninstallString \
    "\"$windows_mine\\uninstall.exe\" /S"
check "and its icon" value_is "HKCU\\$uninstall_key" DisplayIcon "$windows_mine\\zpsg.exe,0"
size=$(($(value "HKCU\\$uninstall_key" EstimatedSize)))
check "and its size" test "$size" -ge "$(($(du -sk --apparent-size "$mine" | cut -f1) * 8 / 10))"
check "it does not start with Windows" value_is "$run_key" "ZPS G" ""
check "no shortcut on the desktop" gone "$user/Desktop/ZPS G.lnk"

echo "The program"
check "starts" start "$mine" --demo
check "a silent update over it ends it" ends_with 0 wine "$setup" /S
check "it has ended" not window
check "it wrote nothing into its own folder" diff <(cd "$mine" && find . -type f ! -name uninstall.exe |
    sed 's|^\./||' | sort) "$work/found"
check "but into the user's" soon there "$local/zpsg/demo/config_ZPSG.ini"

echo "Update"
next=$work/next
cp -R "$mine" "$next"
rm "$next/installed.ini" "$next/uninstall.exe"
dropped=$(cd "$next" && find BOX -name '*.ini' | sort | head -n 1)
rm "$next/$dropped"
mkdir "$next/added"
cp "$next/database.db" "$next/added/file.db"
check "another version is packed" "$here/package.sh" "$next" "$work/output.d" 99.0.0
echo mine >"$mine/BOX/my own.ini"
mkdir -p "$local/zpsg/Rec"
echo mine >"$local/zpsg/Rec/Rec1.ini"
check "installs over the other" ends_with 0 wine "$work/output.d/zpsg-setup.exe" /S /Autostart /Desktop
check "what is new is there" there "$mine/added/file.db"
check "what is no more is gone" gone "$mine/$dropped"
check "the user's own file stays" there "$mine/BOX/my own.ini"
check "records stay" there "$local/zpsg/Rec/Rec1.ini"
check "Windows knows the version" value_is "HKCU\\$uninstall_key" DisplayVersion 99.0.0
check "it starts with Windows, as the program writes it" value_is "$run_key" "ZPS G" "$command"
check "the desktop has it" there "$user/Desktop/ZPS G.lnk"
check "the older one installs over it" ends_with 0 wine "$setup" /S
check "what only the newer had is gone" gone "$mine/added"
check "what it had is there again" there "$mine/$dropped"
check "it still starts with Windows" value_is "$run_key" "ZPS G" "$command"
elsewhere=$WINEPREFIX/drive_c/elsewhere
rm "$mine/BOX/my own.ini"
check "moves to a named folder" ends_with 0 wine "$setup" /S '/D=C:\elsewhere'
check "is there" there "$elsewhere/zpsg.exe" "$elsewhere/uninstall.exe"
check "and in the old one no more" gone "$mine"
check "what starts with Windows moves along" value_is "$run_key" "ZPS G" '"C:\elsewhere\zpsg.exe" open'
check "the next one stays there" ends_with 0 wine "$setup" /S
check "and makes no second" gone "$mine"
uninstall "$elsewhere" /S
check "leaves nothing" gone "$elsewhere"
check "does not start with Windows any more" value_is "$run_key" "ZPS G" ""
check "installs where it was" ends_with 0 wine "$setup" /S /Desktop /Autostart
rm "$mine/database.db"
mkdir "$mine/database.db"
check "a file that can't be written is told by the exit code" ends_with 2 wine "$setup" /S
rmdir "$mine/database.db"
check "the next one mends it" ends_with 0 wine "$setup" /S
check "all is there" there "$mine/database.db" "$mine/zpsg.exe"

echo "A program that can't be ended"
check "starts" start "$mine" --demo
kill -STOP "$program"
check "is told by its exit code" ends_with 3 wine "$setup" /S
check "nothing was changed" value_is "HKCU\\$uninstall_key" DisplayVersion "$version"
kill -CONT "$program"
check "ends on the request when it can" soon not window

echo "Removal"
check "starts" start "$mine" --demo
uninstall "$mine" /S
check "ends it and takes everything with it" gone "$mine" "$user/$menu" "$user/Desktop/ZPS G.lnk" "$local/Programs"
check "from the registry" not wine reg query "HKCU\\$uninstall_key"
check "and from what starts with Windows" value_is "$run_key" "ZPS G" ""
check "records stay" there "$local/zpsg/Rec/Rec1.ini"
wine "$setup" /S
wine reg add "$run_key" /v "ZPS G" /d '"C:\stick\zpsg.exe" open' /f >/dev/null 2>&1
rm "$mine/installed.ini"
uninstall "$mine" /S /RemoveData
check "also without its list" gone "$mine"
check "records go when they are to" gone "$local/zpsg"
check "another copy still starts with Windows" value_is "$run_key" "ZPS G" '"C:\stick\zpsg.exe" open'

echo "For everyone"
check "installs without a question" ends_with 0 wine "$setup" /S /AllUsers
check "program and start menu are there" there "$common/zpsg.exe" "$common_menu"
check "nothing for the user" gone "$mine" "$user/$menu"
check "Windows knows it" value_is "HKLM\\$uninstall_key" DisplayVersion "$version"
check "an update stays for everyone" ends_with 0 wine "$setup" /S
check "and makes no second" gone "$mine"
uninstall "$common" /S
check "takes everything with it" gone "$common" "$common_menu"
check "from the registry" not wine reg query "HKLM\\$uninstall_key"

echo "The ZIP"
zip=$(dirname "$setup")/zpsg-$version-portable.zip
portable=$work/zpsg-$version
(cd "$work" && cmake -E tar xf "$zip")
(cd "$portable" && find . -type f | sed 's|^\./||' | sort) >"$work/unpacked"
grep -vx installed.ini "$work/found" | sed 's/^database\.db$/empty.db/' | sort >"$work/expected"
check "holds what the setup installs, without its list" diff "$work/expected" "$work/unpacked"
check "starts" start "$portable" --demo
check "keeps what it writes to itself" soon there "$portable/demo/config_ZPSG.ini" "$portable/demo/database.db"
check "and out of the user's folders" gone "$local/zpsg"

exit "$failed"
