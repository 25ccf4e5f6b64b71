#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. All arguments go to the program: ./run.sh --demo
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$root/tools/setup.sh"

install_missing "${build_packages[@]}"
if [ ! -f "$root/build/build.ninja" ]; then
    echo "Configuring ..."
    (cd "$root" && cmake --preset release >/dev/null)
fi
# Says what it does only when there is something to do.
if ! (cd "$root" && ninja -C build -n zpsg_all) | grep -q 'no work to do'; then
    echo "Building ..."
    (cd "$root" && cmake --build build --target zpsg_all -- --quiet)
fi

arguments=("$@")
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    case " $* " in
    *' --headless '* | *' --help '* | *' -h '* | *' --version '* | *' --list-models '* | *' export '*) ;;
    *)
        echo "There is no display, so the window is left out: readings follow (end with Ctrl+C)."
        arguments+=(--headless)
        ;;
    esac
fi
exec "$root/build/bin/zpsg" ${arguments[@]+"${arguments[@]}"}
