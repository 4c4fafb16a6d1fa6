# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by the scripts: the Debian packages that building, testing and the demo need, and the configure step.

build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev libqt6svg6
    libcups2-dev zlib1g-dev cups-ppdc libsnmp-dev libavahi-compat-libdnssd-dev libbenchmark-dev libseccomp-dev libsystemd-dev
    qt6-base-private-dev libwayland-dev libxcb1-dev wayland-protocols
)
run_packages=(
    cups-daemon cups-client cups-core-drivers cups-filters cups-ipp-utils poppler-utils qpdf ghostscript file libqt6gui6 qt6-qpa-plugins
    snmpd python3 fonts-dejavu-core fonts-vlgothic xvfb xauth
    avahi-daemon avahi-utils dbus-daemon dbus-bin libnss-mdns iproute2 util-linux bsdextrautils procps
    at-spi2-core python3-pyatspi qt6-translations-l10n
)
# What the tour of the demo works the dialog and looks at it with.
tour_packages=(openbox xdotool imagemagick x11-xserver-utils)
# What scripts/pictures makes small pictures with.
picture_packages=(imagemagick)
check_packages=(clang-format)
# What scripts/fuzz builds with; its run-time library has the version of clang in its name.
fuzz_packages=(clang)
room_packages=(mmdebstrap git ccache iproute2)
# What makes and looks at Debian packages (debian/control names what they are built from), and what tries them.
package_packages=(build-essential git devscripts equivs lintian ccache appstream desktop-file-utils)
trial_packages=(autopkgtest dpkg-dev appstream desktop-file-utils cups)

say() { printf '== %s\n' "$*"; }

# Installs those of the given packages that neither are there nor are provided by another one. Asks apt only when something
# is missing. A subshell, so that what it puts in place for apt goes again however it ends.
ensure_packages() (
    there() { dpkg-query -W -f '${db:Status-Status}, ${Package}, ${Provides}\n' | grep '^installed' | tr ',' '\n' | sed 's/ *(.*//; s/^ *//'; }
    mapfile -t missing < <(LC_ALL=C comm -13 <(there | LC_ALL=C sort -u) <(printf '%s\n' "$@" | LC_ALL=C sort -u))
    [ ${#missing[@]} -eq 0 ] && exit 0
    say "Installing ${missing[*]}"
    sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing packages: ${missing[*]}; install them as root." >&2; exit 1; }
        sudo=(sudo)
    fi
    # The daemons are started privately by the scripts; packages must not start theirs.
    policy=/usr/sbin/policy-rc.d status=0
    if [ ! -e $policy ]; then
        printf '#!/bin/sh\nexit 101\n' | "${sudo[@]}" install -m 755 /dev/stdin $policy
        trap '"${sudo[@]}" rm -f '$policy EXIT
    fi
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >/dev/null &&
        "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
            "${missing[@]}" >/dev/null || status=$?
    [ $status -eq 0 ] || echo "apt-get could not install: ${missing[*]}" >&2
    exit $status
)

# What one clone has compiled, another takes from the compiler cache, wherever it lies. With precompiled headers the cache
# needs to be told that macros and times do not matter.
share_compiler_cache() {
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
}

# build_preset PRESET [TARGET...]: configures a preset when it has not been, then builds it, or only the targets. Quick
# when nothing changed.
build_preset() {
    local preset=$1
    shift
    share_compiler_cache
    [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset" >"build-$preset.log" 2>&1 || {
        cat "build-$preset.log" >&2
        rm -f "build-$preset.log"
        return 1
    }
    rm -f "build-$preset.log"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
