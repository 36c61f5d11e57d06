#!/usr/bin/env bash
# Installs what is missing (Debian 12 packages), builds Orvanta, and then starts it, runs the
# whole test suite, runs it under the sanitizers, or fuzzes the data-file readers.
#
#   ./build.sh run [orvanta options]   build and start the program
#   ./build.sh test                    build (warnings are errors) and run every test
#   ./build.sh package                 build the Debian package build/orvanta_<version>_amd64.deb
#   ./build.sh sanitize                build with AddressSanitizer and UndefinedBehaviorSanitizer
#                                      into build-asan and run every test there
#   ./build.sh fuzz [seconds]          fuzz each data-file reader (fuzz/run.sh, default 20 s)
set -euo pipefail
cd "$(dirname "$0")"

PACKAGES=(build-essential cmake ninja-build qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins
          libgl-dev pkgconf libical-dev xvfb xauth fonts-liberation poppler-utils
          desktop-file-utils appstream python3-icalendar libqt6svg6)

install_missing() {
    local missing=() package
    for package in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get install -y --no-install-recommends "${missing[@]}" ||
        { $sudo apt-get update && $sudo apt-get install -y --no-install-recommends "${missing[@]}"; }
}

build() {
    local dir=$1 werror=$2
    shift 2
    cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVANTA_WERROR="$werror" \
        "$@" >/dev/null
    cmake --build "$dir" --parallel
}

command=${1:-run}
[ $# -gt 0 ] && shift
case "$command" in
    run)
        install_missing
        build build OFF
        if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
            echo "Orvanta is built (build/orvanta), but no display was found to show its window."
            echo "To run it without a screen, start it under a virtual display:"
            echo "    xvfb-run -a build/orvanta $*"
            exit 1
        fi
        exec build/orvanta "$@"
        ;;
    test)
        install_missing
        build build ON
        cd build
        ctest --output-on-failure --parallel "$(nproc)"
        ;;
    package)
        # dpkg-shlibdeps (dpkg-dev) works out the package's Depends from the linked libraries.
        PACKAGES+=(dpkg-dev)
        install_missing
        build build OFF
        cd build
        cpack -G DEB
        ;;
    sanitize)
        install_missing
        build build-asan OFF -DORVANTA_SANITIZE=ON -DORVANTA_BENCH=OFF
        export ASAN_OPTIONS=detect_leaks=1:halt_on_error=1
        export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
        cd build-asan
        ctest --output-on-failure --parallel "$(nproc)"
        ;;
    fuzz)
        # clang with its libFuzzer and sanitizer runtimes, for the fuzz targets only.
        PACKAGES+=(clang libclang-rt-14-dev)
        install_missing
        exec fuzz/run.sh "$@"
        ;;
    *)
        echo "usage: $0 run [orvanta options] | $0 test | $0 package | $0 sanitize |" \
            "$0 fuzz [seconds]" >&2
        exit 2
        ;;
esac
