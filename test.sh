#!/usr/bin/env bash
# Installs what is missing, builds and runs every test. Arguments go to CTest: ./test.sh -R psu
#
# Three builds: with AddressSanitizer and UBSan, linted while it compiles; with ThreadSanitizer, for what has
# threads; and the one that users run, for the tests in a virtual machine and the start of the benchmarks.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

install_missing "${build_packages[@]}" "${test_packages[@]}"

echo "== Format"
git ls-files -z '*.h' '*.cpp' | xargs -0 -r clang-format --dry-run -Werror

failed=0
run() { # PRESET-FOLDER CTEST-ARGUMENT...
    local folder=$1
    shift
    ctest --test-dir "$folder" --output-on-failure --no-tests=ignore -j2 "$@" || failed=1
}

echo "== Address and undefined behaviour, lint"
cmake --preset check >/dev/null
cmake --build build-check -- --quiet
run build-check "$@"

echo "== Threads"
cmake --preset thread >/dev/null
cmake --build build-thread --target thread_tests -- --quiet
run build-thread -L threads "$@"

echo "== As users run it"
cmake --preset bench >/dev/null
cmake --build build -- --quiet
run build "$@"

if [ "$failed" -ne 0 ]; then
    echo "== Some tests failed (see above)"
    exit 1
fi
echo "== All tests passed"
