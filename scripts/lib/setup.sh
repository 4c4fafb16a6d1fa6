# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by the scripts: the Debian packages that they need, the configure step, and shared functions.

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
    at-spi2-core python3-pyatspi qt6-translations-l10n adwaita-qt6
)
# The tour of the demo: operating the dialog and taking pictures.
tour_packages=(openbox xdotool imagemagick x11-xserver-utils)
# scripts/pictures: reducing the pictures.
picture_packages=(imagemagick)
lint_packages=(clang clang-format clang-tidy git python3 shellcheck)
# scripts/fuzz; it adds the run-time library, which has the version of clang in its name.
fuzz_packages=(clang)
room_packages=(mmdebstrap git ccache iproute2)
# scripts/package: building and checking Debian packages (debian/control names the build dependencies), and trying them.
package_packages=(build-essential git devscripts equivs lintian ccache appstream desktop-file-utils python3)
trial_packages=(autopkgtest dpkg-dev appstream desktop-file-utils cups)
# What is installed, without tests and benchmarks.
installed_targets=(kelmar-print kelmar-print-service kelmar-dialog kelmar-forms OrbM880 kelmar_ppds kelmar_queue_ppd)

say() { printf '== %s\n' "$*"; }

usage() { # prints the comment at the top of the script, and exits with 2
    sed -n '4,/^[^#]/s/^# \?//p' "$0" >&2
    exit 2
}

# wait_until SECONDS COMMAND...: repeats the command every 0.1 s until it succeeds. Fails when the time is up.
wait_until() {
    local tries
    for ((tries = $1 * 10; tries > 0; tries--)); do
        "${@:2}" && return
        sleep 0.1
    done
    return 1
}

# ensure_packages PACKAGE...: installs the packages that are neither installed nor provided by an installed one. Runs apt only
# if one is missing. Runs in a subshell, so that the temporary policy for apt is removed however it ends.
ensure_packages() (
    installed() { dpkg-query -W -f '${db:Status-Status}, ${Package}, ${Provides}\n' | grep '^installed' | tr ',' '\n' | sed 's/ *(.*//; s/^ *//'; }
    mapfile -t missing < <(LC_ALL=C comm -13 <(installed | LC_ALL=C sort -u) <(printf '%s\n' "$@" | LC_ALL=C sort -u))
    [ ${#missing[@]} -eq 0 ] && exit 0
    say "Installing ${missing[*]}"
    sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing packages: ${missing[*]}; install them as root." >&2; exit 1; }
        sudo=(sudo)
    fi
    # The scripts start private daemons; packages must not start theirs.
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

# Lets clones in different folders share the compiler cache. With precompiled headers the cache has to ignore macros and times.
share_compiler_cache() {
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_PCH_EXTSUM=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
}

# build_preset PRESET [TARGET...]: configures the preset if needed, then builds it, or only the targets. Warnings are errors in CI.
build_preset() {
    local preset=$1
    shift
    share_compiler_cache
    export KELMAR_WERROR=OFF
    [ "${CI:-}" != true ] || KELMAR_WERROR=ON
    { [ "build/$preset/build.ninja" -nt CMakePresets.json ] &&
        grep -qs "^KELMAR_WERROR:.*=$KELMAR_WERROR$" "build/$preset/CMakeCache.txt"; } || cmake --preset "$preset" >"build-$preset.log" 2>&1 || {
        cat "build-$preset.log" >&2
        rm -f "build-$preset.log"
        return 1
    }
    rm -f "build-$preset.log"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
