# Sourced by run.sh and test.sh: installs what is missing, and nothing when nothing is. Debian package names.

build_packages=(
    g++ cmake ninja-build pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev libqwt-qt5-dev
    libhidapi-dev libudev-dev libsodium-dev
    libsystemd-dev libpulse-dev libkissfft-dev libmosquitto-dev libssl-dev libmicrohttpd-dev
    libqt5sql5-sqlite sqlite3 libzip-dev zlib1g-dev
    librsvg2-bin fonts-inter fonts-dejavu-core
)
test_packages=(
    git
    clang libclang-rt-dev clang-format clang-tidy libgtest-dev libgmock-dev libbenchmark-dev
    g++-mingw-w64-x86-64-posix
    xvfb xauth xdotool x11-utils imagemagick
    dbus-daemon pulseaudio-utils mosquitto mosquitto-clients
    qemu-system-x86 busybox-static cpio kmod xz-utils
    iproute2 strace python3 openssl
    wine wine64 curl dpkg-dev
)
# For packaging/windows, which builds the Windows program and tries it.
windows_packages=(
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev nsis zip imagemagick
    dpkg-dev autoconf automake libtool tcl make perl
)

installed() { # PACKAGE
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Where the desktop's sound is PipeWire's, Debian removes that to install the other server. The test that needs it is
# skipped there.
installed pipewire-alsa || test_packages+=(pulseaudio)

# Installs those of the named packages that are not there.
install_missing() {
    local package missing=()
    for package in "$@"; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if ! command -v apt-get >/dev/null; then
        echo "These packages are needed (Debian's names): ${missing[*]}" >&2
        return 1
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Run this as root, or install: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing with apt: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
