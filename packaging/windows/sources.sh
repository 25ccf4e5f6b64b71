# Sourced by sysroot.sh: fetches source packages with apt, without touching the machine's own apt settings.
#
# sources_prepare FOLDER    reads the package lists, from where this machine's packages come from
# source_versions NAME      the versions there are, newest first
# source_fetch NAME TO      downloads the newest that can be had, checks its signature, unpacks it into TO with its
#                           patches applied, and prints the version

source_apt() { # PROGRAM ARGUMENT...
    # As the user who asks: apt's own has no way into a private folder.
    "$1" -qq -o APT::Sandbox::User=root -o Dir::Etc::sourcelist="${source_list:-$source_folder/list}" \
        -o Dir::Etc::sourceparts=- -o Dir::State::lists="$source_folder/lists" \
        -o Dir::Cache="$source_folder/cache" "${@:2}"
}

sources_prepare() {
    source_folder=$1
    mkdir -p "$source_folder"/lists/partial "$source_folder"/cache/archives/partial "$source_folder"/files
    apt-get indextargets --format '$(ORIGIN)|deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        sed -n 's/^Debian|//p' | sort -u >"$source_folder/list"
    if [ ! -s "$source_folder/list" ]; then
        echo "apt knows no Debian archive to fetch sources from: run apt-get update first" >&2
        return 1
    fi
    split -l 1 "$source_folder/list" "$source_folder/list."
    source_apt apt-get update
}

source_versions() {
    local version versions=()
    while read -r version; do
        local i=0
        while [ "$i" -lt ${#versions[@]} ] && dpkg --compare-versions "$version" lt "${versions[i]}"; do i=$((i + 1)); done
        [ "$version" = "${versions[i]:-}" ] || versions=("${versions[@]:0:i}" "$version" "${versions[@]:i}")
    done < <(source_apt apt-cache showsrc --only-source "$1" | sed -n 's/^Version: //p')
    if [ ${#versions[@]} -eq 0 ]; then
        echo "no source package is called $1" >&2
        return 1
    fi
    printf '%s\n' "${versions[@]}"
}

# A mirror may list what it no longer, or not yet, has: each suite is asked by itself, and then for what came before.
source_fetch() {
    local version source_list
    for version in $(source_versions "$1"); do
        for source_list in "$source_folder"/list.*; do
            if (cd "$source_folder/files" && source_apt apt-get source --download-only "$1=$version") >/dev/null 2>&1; then
                rm -rf "$2"
                (cd "$source_folder/files" && dpkg-source --no-check -x "$1_${version#*:}.dsc" "$2" >/dev/null) || return
                echo "$version"
                return
            fi
        done
        echo "  $1 $version is listed and can't be fetched" >&2
    done
    return 1
}
