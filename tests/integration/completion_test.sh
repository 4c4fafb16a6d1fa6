#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Tests bash completion of each option, with a real print server that has a queue with a preset. Usage: completion_test.sh
# BUILDDIR. Exit code 77: CUPS is not installed.
set -uo pipefail
tree=$(cd "$(dirname "$0")/../.." && pwd)
build=$1
failed=0
server=$(mktemp -d /tmp/kelmar-test.XXXXXX)
trap '"$tree/scripts/lib/private-cupsd.sh" stop "$server"; rm -rf "$server"' EXIT
chmod 755 "$server"
"$tree/scripts/lib/private-cupsd.sh" start "$server" || exit $?
"$tree/scripts/lib/private-cupsd.sh" add-queue "$server" office "$build/ppds/kelm880.ppd" socket://127.0.0.1:9
"$tree/scripts/lib/private-cupsd.sh" add-queue "$server" archive "$tree/demo/archive.ppd" socket://127.0.0.1:9
mkdir "$server/home"
# libcups stores the presets of root in CUPS_SERVERROOT.
export HOME=$server/home CUPS_SERVERROOT=$server/home CUPS_SERVER=$server/cups.sock PATH=$build/bin:$PATH
kelmar-print -d office --save-preset Grey --set ColorType=Mono >/dev/null || exit 1
. "$tree/packaging/completion/kelmar-print.bash"
cd "$tree/demo" || exit 1

completed() { # WORD...: the words of the line before the cursor; prints the replies, one per line
    COMP_WORDS=(kelmar-print "$@")
    COMP_CWORD=$#
    _kelmar_print
    printf '%s\n' "${COMPREPLY[@]}"
}
offers() { # REPLY WORD...
    grep -qx -e "$1" <<<"$(completed "${@:2}")" || {
        echo "FAIL: behind '${*:2}' there is no $1, but: $(completed "${@:2}" | tr '\n' ' ')"
        failed=1
    }
}

# ---- every option is offered, and its values, unless they are free text
options=$(kelmar-print --help | sed -n 's/^  \(-[^ ].*\)/\1/p' | sed 's/   *.*//')
[ "$(wc -l <<<"$options")" -gt 15 ] || { echo "FAIL: the help has no options" && exit 1; }
while read -r entry; do
    names=$(grep -oE -e '(^| )--?[A-Za-z-]+' <<<"$entry")
    for option in $names; do
        offers "$option" "${option%?}"
        [[ $entry == *' '[A-Z]* ]] || continue
        case $option in -n | --copies | -P | --pages | -t | --title) continue ;; esac
        [ -n "$(completed -d office "$option" "")" ] || { echo "FAIL: behind $option there is nothing" && failed=1; }
    done
done <<<"$options"

# ---- the values are correct
offers office -d off
offers office/Grey --printer = office/
offers Duplex= -d office --set Dup
offers DuplexNoTumble -d office --set Duplex =
offers DuplexNoTumble -d office --set = Duplex = DuplexN
offers False --ppd "$build/ppds/kelm880.ppd" -o TonerSave = ""
offers 16 -o number-up = 1
offers job-priority= -d office --set job-p
offers evening -o job-hold-until = e
offers privatePassword= -d office --set-file priv
offers report.pdf -d office --set-file privatePassword = rep
offers departmentCode -d office --ask dep
offers job-password -d archive --ask job-p
offers job-account-id= -d archive --set-file job-acc
offers Grey -d office --delete-preset G
offers report.pdf rep
for panel in general more job summary print-mode color-settings-1 color-settings-2; do offers $panel --panel ""; done
exit $failed
