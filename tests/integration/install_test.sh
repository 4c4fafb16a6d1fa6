#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Tests that the installed program runs with its panels. Usage: install_test.sh BUILDDIR
set -euo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$1" --prefix "$prefix" >/dev/null
# The libraries of the build tree must not be used.
summary=$(env -u LD_LIBRARY_PATH "$prefix/bin/kelmar-print" --ppd "$1/ppds/kelm880.ppd" --summary \
    --set DeptCode=True --set departmentCode=01230)
grep -q '(01230)' <<<"$summary" || { echo "$summary" && exit 1; }
scripts=$(dirname "$0")/../../scripts
"$scripts/lib/options-offered" "$prefix/bin/kelmar-print" "$prefix/share/bash-completion/completions/kelmar-print" \
    "$prefix/share/zsh/site-functions/_kelmar-print" "$prefix/share/fish/vendor_completions.d/kelmar-print.fish" \
    "$prefix"/share/man/{,de/,es/,fr/,it/,ja/}man1/kelmar-print.1
for file in dbus-1/services/org.kelmar.Print1.service kelmar-print/queue/{kelmar-dialog.ppd,policy.conf} \
    xdg-desktop-portal/portals/00-kelmar.portal kio/servicemenus/org.kelmar.Print.desktop Thunar/sendto/org.kelmar.Print.desktop; do
    [ -f "$prefix/share/$file" ] || { echo "$file is missing" && exit 1; }
done
# cupsd runs a backend as root only with this mode; a desktop entry with MIME types could become the default program for
# them.
[ "$(stat -c %a "$prefix/lib/cups/backend/kelmar-dialog")" = 700 ]
if grep "^MimeType" "$prefix/share/applications/org.kelmar.Print.desktop"; then exit 1; fi
