#!/usr/bin/env bash
# Fails on an include that points the wrong way: the subsystems never know the window, nothing but the platform folder
# knows the system, and only the settings table builds a settings key.
set -euo pipefail
src=${1:?usage: check_layers.sh SRC}

declare -A allowed=(
    [platform]="platform"
    [cipher]="cipher"
    [storage]="storage"
    [psu]="psu platform storage"
    [simulator]="simulator psu platform"
    [power]="power psu cipher storage"
    [records]="records power psu cipher storage"
    [lighting]="lighting psu"
    [fan]="fan psu"
    [remote]="remote psu platform"
    [cloud]="cloud"
    [sensors]="sensors platform"
    [ui]="ui psu power records lighting fan sensors"
    [app]="app ui psu power records lighting fan remote cloud sensors simulator platform storage"
)

bad=0
complain() {
    echo "$1" >&2
    bad=1
}

for folder in "$src"/*/; do
    name=$(basename "$folder")
    [ -n "${allowed[$name]:-}" ] || complain "src/$name is not in the table of layers"
    while IFS=: read -r file target; do
        case " ${allowed[$name]:-} " in
        *" $target "*) ;;
        *) complain "$file includes from $target/, which $name/ must not know" ;;
        esac
    done < <(grep -rnoE '^#include "[a-z]+/' "$folder" --include='*.h' --include='*.cpp' |
        sed -E 's/^([^:]+):[0-9]+:#include "([a-z]+)\//\1:\2/')
    if [ "$name" != platform ] && grep -rlE '_WIN32|__linux__|Q_OS_|<windows\.h>|<unistd\.h>|<libudev' "$folder"; then
        complain "src/$name asks which system it is on; that belongs into src/platform"
    fi
    case $name in
    ui | app) ;;
    *)
        if grep -rnE '#include <Q(Widget|Application|MessageBox|MainWindow|Dialog)>' "$folder"; then
            complain "src/$name uses widgets"
        fi
        ;;
    esac
done
if grep -rnE '"/?[A-Za-z0-9]*(Setting|Features|TimeData|Cloud|Lighting|FanCurve|LED_Color|Mqtt|Socket|Metrics|Window|Update)/' "$src" \
    --include='*.cpp' --include='*.h' | grep -v 'app/SettingsTable.h'; then
    complain "a settings key is built outside app/SettingsTable.h"
fi
exit $bad
