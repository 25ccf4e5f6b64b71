# shellcheck shell=bash
# The guest's kernel and its first file system, for guest.sh: fetched and packed once, then kept. Expects `here`,
# fail and say of guest.sh.
# shellcheck disable=SC2154

# Set by prepare_kernel: what the machine is started with.
kernel='' initramfs=''

# What the guest loads, in this order; what these depend on comes along.
guest_modules=(virtio_pci 9pnet_virtio 9p overlay hid hid-generic usbhid uhid)

need() {
    command -v "$1" >/dev/null || fail 125 "$1 is missing: install the package $2"
}

# The package that linux-image-amd64 stands for, as NAME=VERSION. Empty where apt knows of none.
kernel_package() {
    apt-cache show --no-all-versions linux-image-amd64 2>/dev/null |
        sed -n 's/^Depends: .*\(linux-image-[0-9][^ ,]*\) (= \([^)]*\)).*/\1=\2/p' || true
}

# Prints the modules of the unpacked kernel below $1, one a line, each after those it depends on.
modules_in_order() {
    local version module
    version=$(basename "$1"/lib/modules/*)
    depmod -b "$1" "$version"
    for module in "${guest_modules[@]}"; do
        modprobe -S "$version" -d "$1" --show-depends "$module" || return 1
    done | sed -n 's/^insmod \([^ ]*\).*/\1/p' | awk '!seen[$0]++'
}

# Puts the kernel $1 into $2 without its compression where that is xz: under emulation the kernel would take
# longer to unpack itself than to start. The machine takes either form.
uncompress_kernel() {
    local offsets
    offsets=$(LC_ALL=C grep -aboP '\xFD7zXZ\x00' "$1" | cut -d : -f 1) || true
    if [[ -z $offsets ]] ||
        ! xz -dc --single-stream >"$2" 2>/dev/null < <(tail -c "+$((${offsets%%$'\n'*} + 1))" "$1") ||
        [[ $(head -c 4 "$2") != $'\x7fELF' ]]; then
        cp "$1" "$2"
    fi
}

# Unpacks the kernel package $1 (NAME=VERSION) into the directory $2: vmlinux, modules/NN-NAME.ko in load order.
fetch_kernel() {
    local package=$1 target=$2 scratch=$2.part.$$ path name number=100
    local apt=(apt-get -q -o APT::Get::AllowUnauthenticated=false)
    # Otherwise root's download is given to a user that can't reach the directory, and apt complains.
    if ((EUID == 0)); then apt+=(-o APT::Sandbox::User=root); fi
    mkdir -p "$scratch/unpacked" "$scratch/modules"
    printf 'guest.sh: fetching the guest'\''s kernel, %s\n' "$package" >&2
    if ! (cd "$scratch" && "${apt[@]}" download "$package" >log 2>&1); then
        sed 's/^/    /' "$scratch/log" >&2
        rm -rf -- "$scratch"
        return 1
    fi
    dpkg-deb -x "$scratch"/*.deb "$scratch/unpacked"
    uncompress_kernel "$scratch"/unpacked/boot/vmlinuz-* "$scratch/vmlinux"
    # Debian keeps the tree in /usr from release 13 on.
    if [[ ! -d $scratch/unpacked/lib ]]; then ln -s usr/lib "$scratch/unpacked/lib"; fi
    modules_in_order "$scratch/unpacked" >"$scratch/order"
    while read -r path; do
        name=$(basename "$path")
        case $name in
        *.xz) xz -dc "$path" >"$scratch/modules/$number-${name%.xz}" ;;
        *) cp "$path" "$scratch/modules/$number-$name" ;;
        esac
        number=$((number + 1))
    done <"$scratch/order"
    rm -rf -- "$scratch/unpacked" "$scratch"/*.deb "$scratch/log" "$scratch/order"
    mv -T "$scratch" "$target"
}

# Packs busybox, the modules of the kernel in $1 and guest-init into $2.
pack_initramfs() {
    local scratch=$2.part.$$
    mkdir -p "$scratch"/{bin,modules,proc,dev,root,share,upper,new}
    cp "$busybox" "$scratch/bin/busybox"
    cp "$here/guest-init" "$scratch/init"
    chmod 755 "$scratch/init" "$scratch/bin/busybox"
    cp "$1"/modules/*.ko "$scratch/modules/"
    (cd "$scratch" && find . | cpio --quiet -o -H newc) >"$scratch.cpio"
    rm -rf -- "$scratch"
    mv "$scratch.cpio" "$2"
}

prepare_kernel() {
    local cache=${XDG_CACHE_HOME:-$HOME/.cache}/zpsg-vusb package lock directory wanted
    need apt-get apt
    need dpkg-deb dpkg
    need cpio cpio
    need depmod kmod
    need flock util-linux
    need xz xz-utils
    need busybox busybox-static
    busybox=$(command -v busybox)
    if LC_ALL=C ldd "$busybox" >/dev/null 2>&1; then
        fail 125 "$busybox needs shared libraries: install the package busybox-static"
    fi
    mkdir -p "$cache" || fail 125 "can't make the directory $cache"
    exec {lock}>"$cache/lock"
    flock "$lock"

    # Modules are part of the name: with others, other files are kept.
    wanted=$(printf '%s ' "${guest_modules[@]}" | cksum | cut -d ' ' -f 1)
    package=$(kernel_package)
    directory=$cache/${package//[^A-Za-z0-9.+-]/_}-$wanted
    if [[ -z $package || ! -d $directory ]] && { [[ -z $package ]] || ! fetch_kernel "$package" "$directory"; }; then
        directory=$(find "$cache" -mindepth 1 -maxdepth 1 -type d -name "linux-image-*-$wanted" | sort -V | tail -n 1)
        [[ -n $directory ]] || fail 125 \
            "no kernel for the guest: apt can't fetch linux-image-amd64's (needs the network and apt-get update)"
        printf 'guest.sh: going on with the kept kernel %s\n' "$(basename "$directory")" >&2
    fi
    kernel=$directory/vmlinux
    initramfs=$directory/initramfs-$(cat "$here/guest-init" "$busybox" | cksum | cut -d ' ' -f 1)
    if [[ ! -f $initramfs ]]; then
        rm -rf -- "$directory"/initramfs-*
        pack_initramfs "$directory" "$initramfs"
    fi
    exec {lock}>&-
    say "kernel $kernel"
}
