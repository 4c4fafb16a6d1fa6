#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Runs the tour of scripts/demo in its folder with the private print server. For root it runs as the user "nobody", since
# presets of root apply to all users; the program is installed in the folder, since that user may not read the build tree.
# Usage: tour.sh WORK
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/lib/setup.sh
work=$1
shots=$PWD/build/demo/tour

user=()
[ "$(id -u)" -ne 0 ] || user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
rm -rf "$shots"
home=$work/visitor
mkdir -p "$shots" "$work/pictures" "$home/runtime"
chmod 700 "$home" "$home/runtime"
keep_pictures() {
    cp "$work"/pictures/*.png "$shots"/ 2>/dev/null || true
    cp "$home/session.log" "$shots"/ 2>/dev/null || true
}
trap keep_pictures EXIT

cmake --install build/release --prefix "$work/usr" >/dev/null
cp -r demo/tour "$work/"
chmod -R a+rX "$work/usr" "$work/tour"
qpdf --empty --pages demo/report.pdf 1,2,1,2,2,1,2,1 -- "$work/handout.pdf"
chmod a+r "$work/handout.pdf"
[ ${#user[@]} -eq 0 ] || chown -R 65534:65534 "$home" "$work/pictures"

say "A tour of the dialog (pictures in build/demo/tour)"
cd "$home"
"${user[@]}" env -i PATH="$work/usr/bin:/usr/local/bin:/usr/bin:/bin" HOME="$home" XDG_RUNTIME_DIR="$home/runtime" \
    CUPS_SERVER="$CUPS_SERVER" LC_ALL=C.UTF-8 LANGUAGE=en \
    /usr/bin/python3 -B "$work/tour/tour.py" "$work/cups" "$work/handout.pdf" "$work/pictures"
