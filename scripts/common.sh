# shellcheck shell=bash
# What `run`, `test` and `.ci/run` share: installing what is missing, and building.
# To be sourced by bash; sets `root` to the source tree.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"

# Qt reads and writes file names in UTF-8 only where the locale says so.
if [[ -z ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]]; then
    export LANG=C.UTF-8
fi

# A clone in another folder finds what this one compiled.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

say() {
    printf '==> %s\n' "$*"
}

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# need PACKAGE...: installs those that are missing, or ends with what is to be done.
need() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "This is not Debian, so nothing is installed. Tavlo needs what Debian calls: $*"
        return
    fi

    # The packages' own programs go first: a Python or CMake from elsewhere lacks their modules.
    PATH=/usr/bin:/bin:$PATH

    local missing
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi

    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
        command -v sudo >/dev/null ||
            die "These packages are missing, and only root can install them: ${missing[*]}"
    fi

    say "Installing ${missing[*]}"
    local log=$root/build/packages.log try
    mkdir -p "${log%/*}"
    for try in 1 2 3 4 5; do
        # Another program may be updating the lists just now; it does not take long. Where there
        # is no network, the old lists may do.
        if ((try > 1)); then
            sleep $((try * 4))
        fi
        if "${as_root[@]}" apt-get -qq update </dev/null; then
            break
        fi
    done
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install --no-install-recommends \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 \
        "${missing[@]}" </dev/null >"$log" 2>&1 || tail -n 20 "$log" >&2

    mapfile -t missing < <(missing_packages "${missing[@]}")
    if ((${#missing[@]} > 0)); then
        die "These packages could not be installed: ${missing[*]}. The messages above say why." \
            "Tavlo is made for Debian 12 and needs Qt 6.4 or later."
    fi
}

missing_packages() {
    local name state
    local -A installed=()
    while read -r name state; do
        if [[ $state == installed ]]; then
            installed[$name]=1
        fi
    done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        if [[ -z ${installed[$name]:-} ]]; then
            printf '%s\n' "$name"
        fi
    done
}

# configure PRESET [CMAKE-ARGUMENT...]
configure() {
    local preset=$1
    local options=("${@:2}")
    command -v cmake >/dev/null || die "There is no CMake here."

    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    if [[ ${CI:-} == true ]]; then
        options+=(-DTAVLO_WARNINGS_AS_ERRORS=ON)
    fi

    # In a tree that was copied or moved, the build folder still points at the old place.
    local cache=$root/build/$preset/CMakeCache.txt
    if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        rm -rf "$cache" "$root/build/$preset/CMakeFiles"
    fi

    (cd "$root" && cmake --preset "$preset" "${options[@]}") ||
        die "The build could not be set up. The messages above say why."
}

# build PRESET [BUILD-ARGUMENT...]
build() {
    (cd "$root" && cmake --build --preset "$@") ||
        die "The build failed. The messages above say why."
}
