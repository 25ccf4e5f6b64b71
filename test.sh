#!/usr/bin/env bash
# Installs what is missing, builds what users run and runs its tests, in the virtual machine too.
#
# usage: test.sh [--all] [CTEST-ARGUMENT...]      ./test.sh -R psu
#
#   --all    first everything once more with AddressSanitizer and UBSan, linted while it compiles, and what has
#            threads with ThreadSanitizer; last the Windows program, where its libraries have been built
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

all=
if [ "${1:-}" = --all ]; then
    all=yes
    shift
fi
install_missing "${build_packages[@]}" "${test_packages[@]}"

failed=0
run() { # PRESET-FOLDER CTEST-ARGUMENT...
    local folder=$1
    shift
    ctest --test-dir "$folder" --output-on-failure --no-tests=ignore -j2 "$@" || failed=1
}

if [ -n "$all" ]; then
    echo "== Format"
    git ls-files -z '*.h' '*.cpp' | xargs -0 -r clang-format --dry-run -Werror

    echo "== Address and undefined behaviour, lint"
    cmake --preset check >/dev/null
    cmake --build build-check -- --quiet
    run build-check "$@"

    echo "== Threads"
    cmake --preset thread >/dev/null
    cmake --build build-thread --target thread_tests -- --quiet
    run build-thread -L threads "$@"
fi

echo "== As users run it"
cmake --preset bench >/dev/null
cmake --build build -- --quiet
run build "$@"

if [ -n "$all" ]; then
    echo "== The Windows program"
    packaging/windows/test.sh --if-built "$@" || failed=1
fi

if [ "$failed" -ne 0 ]; then
    echo "== Some tests failed (see above)"
    exit 1
fi
echo "== All tests passed"
[ -n "$all" ] || echo "   Before a change lands, ./test.sh --all has to pass: with the sanitizers, the lint and the Windows program."
