#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Tests the backend of the dialog's queue, called directly and by a real cupsd, with a session of the user nobody in which a
# script replaces the dialog. Usage: dialog_backend_test.sh BUILDDIR. Exit code 77: it needs root.
set -uo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
. "$root/scripts/lib/setup.sh"
build=$1
uid=65534 gid=65534
[ "$(id -u)" -eq 0 ] || { echo "SKIP   : needs root" && exit 77; }
[ -n "${KELMAR_BACKEND_TEST:-}" ] || KELMAR_BACKEND_TEST=1 exec unshare -m --propagation private "$0" "$build"

work=$(mktemp -d /tmp/kelmar-backend.XXXXXX)
runtime=/run/user/$uid
failed=0
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
    "$root/scripts/lib/private-cupsd.sh" stop "$work/cups"
    rm -rf "$work"
}
trap cleanup EXIT
chmod 755 "$work"
mkdir -p /run/user
mount -t tmpfs tmpfs /run/user
mount -t tmpfs -o mode=1777 tmpfs /var/tmp
install -d -m 700 -o $uid -g $gid "$work/home"
export CUPS_SERVER=$work/cups/cups.sock

become_user() { # COMMAND...: for background jobs, whose PID is then that of the command
    exec setpriv --reuid $uid --regid $gid --clear-groups env -i PATH="$PATH" HOME="$work/home" XDG_RUNTIME_DIR=$runtime \
        DBUS_SESSION_BUS_ADDRESS=unix:path=$runtime/bus STUB_LOG="$work/home/log" CUPS_SERVER="$CUPS_SERVER" \
        ASAN_OPTIONS="${ASAN_OPTIONS:-}" "$@"
}
as_user() { (become_user "$@"); }

expect() { # WHAT CODE TEXT COMMAND...: expects an exit code and a text in the error output
    local code=0
    "${@:4}" >"$work/out" 2>"$work/err" </dev/null || code=$?
    [ $code -eq "$2" ] && { [ -z "$3" ] || grep -qF -- "$3" "$work/err"; } && return
    echo "FAIL: $1: exit code $code instead of $2; said: $(cat "$work/err")"
    failed=1
    return 1
}

backend() { # ARGUMENTS...: as cupsd runs it
    env -i PATH="$PATH" AUTH_UID="${auth-$uid}" DEVICE_URI="${device:-kelmar-dialog:/}" SECRET=of-root CUPS_STATEDIR="${state:-}" \
        ASAN_OPTIONS="${ASAN_OPTIONS:-}" "$build/backend/kelmar-dialog" "$@"
}

printf 'the document' >"$work/job"
chmod 600 "$work/job" # owned by root, like cupsd's spool

# ---- identification of the user
for auth in "" x 0x10 -1 " 65534" 65534x 4294967295 99999999999999999999; do
    expect "AUTH_UID '$auth'" 3 "signed in on this computer" backend 1 root T 1 "" "$work/job"
done
auth=0 expect "root" 3 "(root)" backend 1 nobody T 1 "" "$work/job"
auth=54321 expect "unknown user" 3 "no user with the number 54321" backend 1 nobody T 1 "" "$work/job"
unset auth
expect "no AUTH_UID" 3 "signed in" env -i "$build/backend/kelmar-dialog" 1 nobody T 1 "" "$work/job"
# cupsd passes a user ID except for root.
expect "root, by its name" 3 "(root)" env -i AUTH_USERNAME=root "$build/backend/kelmar-dialog" 1 nobody T 1 "" "$work/job"

# ---- the user's session
expect "no session" 3 "no desktop session" backend 1 nobody T 1 "" "$work/job"
install -d -m 755 "$runtime" # root's
expect "another's folder" 3 "no desktop session" backend 1 nobody T 1 "" "$work/job"
chown $uid:$gid "$runtime" && chmod 700 "$runtime"
dbus-daemon --session --nofork --address=unix:path="$work/elsewhere" >/dev/null 2>&1 &
pids+=($!)
ln -s "$work/elsewhere" "$runtime/bus"
expect "a link to another bus" 3 "no desktop session" backend 1 nobody T 1 "" "$work/job"
rm "$runtime/bus"
become_user dbus-daemon --session --nofork --address=unix:path=$runtime/bus >/dev/null 2>&1 &
pids+=($!)
wait_until 10 [ -S $runtime/bus ]
device='kelmar-dialog:/?wait=2' expect "no service" 3 "did not open" backend 1 nobody T 1 "" "$work/job"
become_user "$build/bin/kelmar-print-service" --dialog-program "$root/tests/host/stub_dialog.sh" 2>/dev/null &
pids+=($!)
has_service() { as_user dbus-send --session --print-reply --dest=org.freedesktop.DBus / org.freedesktop.DBus.ListNames 2>/dev/null | grep -q org.kelmar.Print1; }
wait_until 10 has_service

# ---- data passed to the service
log=$work/home/log
accepted() { # WHAT TEXT ARGUMENTS...: accepted, with this text in the request and the complete document
    rm -f "$log" "$log.document"
    expect "$1" 0 "" backend "${@:3}"
    wait_until 5 [ -s "$log.document" ]
    [ "$(cat "$log.document")" = "the document" ] || { echo "FAIL: $1: the document is not whole" && failed=1; }
    grep -qF -- "$2" "$log" || { echo "FAIL: $1: the request lacks $2: $(cut -c 1-300 "$log")" && failed=1; }
    [ "$(stat -c %u "$log")" -eq $uid ] || { echo "FAIL: $1: not the user's process" && failed=1; }
}
accepted "another's name" '"copies":3' 1 root T 3 "sides=one-sided" "$work/job"
accepted "a hostile title" '\"}$(id)`id`' 1 nobody $'"}$(id)`id`\n\xff\xfe\x01<b>' 1 "" "$work/job"
accepted "a long title" '"title":"xxxxxxxxxx' 1 nobody "$(printf 'x%.0s' {1..100000})" 1 "$(printf 'a=b %.0s' {1..20000})" "$work/job"
for copies in 0 -5 99999999999 1e3 ""; do
    accepted "copies '$copies'" '"copies":1' 1 nobody T "$copies" "" "$work/job"
done
from_pipe() { printf 'the document' | backend 1 nobody T 1 ""; }
# A file is passed, not copied.
truncate -s 20M "$work/twenty"
used=$(df --output=used /var/tmp | tail -n 1)
expect "a file that stays" 0 "" backend 1 nobody wait 1 "" "$work/twenty"
[ "$(df --output=used /var/tmp | tail -n 1)" -eq "$used" ] || { echo "FAIL: the document was copied" && failed=1; }
rm -f "$log.document"
from_pipe || { echo "FAIL: a document from a filter" && failed=1; }

# ---- files that are not job files
ln -s "$work/job" "$work/link"
mkfifo "$work/fifo"
truncate -s 3G "$work/large"
for file in link fifo missing .; do
    expect "job file $file" 3 "cannot be opened" timeout 10 bash -c "$(declare -f backend); uid=$uid build=$build; backend 1 nobody T 1 '' $work/$file"
done
expect "a large document" 3 "larger than 2 GB" backend 1 nobody T 1 "" "$work/large"

# ---- a dialog that fails, and the process that waits for it
expect "a crash" 3 "did not open" backend 1 nobody crash 1 "" "$work/job"
device='kelmar-dialog:/?wait=3' expect "no answer" 3 "did not open" backend 1 nobody silent 1 "" "$work/job" &
waiting=$!
is_the_users() {
    child=$(pgrep -P "$(pgrep -P $waiting -f kelmar-dialog | head -n 1)" -f kelmar-dialog | head -n 1)
    [ -n "$child" ] && grep -q "^Uid:[[:space:]]$uid" "/proc/$child/status" 2>/dev/null
}
wait_until 2 is_the_users
facts=$(grep -E '^(Uid|Gid|Groups|CapEff|CapPrm|NoNewPrivs):' "/proc/$child/status" | tr -s '\t ' ' ')
wanted=$(printf 'Uid: %s %s %s %s\nGid: %s %s %s %s\nGroups: %s \nCapPrm: 0000000000000000\nCapEff: 0000000000000000\nNoNewPrivs: 1' \
    $uid $uid $uid $uid $gid $gid $gid $gid $gid)
[ "$facts" = "$wanted" ] || { echo "FAIL: while it waits it is: $facts" && failed=1; }
wait $waiting || failed=1 # `expect` ran in a separate process

# ---- nothing in the user's session blocks the queue for others
within() { # SECONDS WHAT CODE TEXT COMMAND...
    local begun=$SECONDS
    expect "${@:2}"
    [ $((SECONDS - begun)) -le "$1" ] || { echo "FAIL: $2 took $((SECONDS - begun)) s" && failed=1; }
}
within 3 "a message of the dialog" 3 "the document cannot be read" backend 1 nobody message 1 "" "$work/job"
within 3 "no display" 3 "has no display" backend 1 nobody "no display" 1 "" "$work/job"
within 8 "a dialog that is slow" 0 "" backend 1 nobody silent 1 "" "$work/job"
# Stops the user's process as soon as it exists.
wait_until 5 pkill -STOP -u $uid -f "$build/backend/kelmar-dialog" &
device='kelmar-dialog:/?wait=3' within 10 "a stopped backend" 3 "did not answer" backend 1 nobody silent 1 "" "$work/job"
wait $!
expect "cancelled" 143 "" timeout --preserve-status 1 env -i AUTH_UID=$uid \
    "$build/backend/kelmar-dialog" 1 nobody silent 1 "" "$work/job"
backend_is_gone() { ! pgrep -u $uid -a -f "$build/backend/kelmar-dialog"; }
wait_until 5 backend_is_gone >/dev/null || { echo "FAIL: a cancelled job goes on" && failed=1; }
# Replace the bus by a server that accepts connections without responding.
mv $runtime/bus $runtime/true-bus
become_user python3 -c 'import os, socket, sys, time
listening = socket.socket(socket.AF_UNIX); listening.bind(sys.argv[1] + ".new"); listening.listen()
os.rename(sys.argv[1] + ".new", sys.argv[1]); time.sleep(60)' $runtime/bus &
pids+=($!)
wait_until 5 [ -S $runtime/bus ]
expect "a silent bus" 3 "did not open" timeout 30 bash -c "$(declare -f backend); uid=$uid build=$build device='kelmar-dialog:/?wait=1'; backend 1 nobody T 1 '' $work/job"
mkdir "$work/state"
state=$work/state within 6 "a silent bus, usual times" 3 "did not answer" backend 1 nobody T 1 "" "$work/job"
state=$work/state within 1 "the job after it" 3 "the job before this one" backend 1 nobody T 1 "" "$work/job"
auth=1 state=$work/state expect "another user's" 3 "no desktop session" backend 1 nobody T 1 "" "$work/job"
mv $runtime/true-bus $runtime/bus
touch -d "-1 minute" "$work/state/"*
state=$work/state expect "a minute later" 0 "" backend 1 nobody T 1 "" "$work/job"
[ -z "$(ls "$work/state")" ] || { echo "FAIL: the silence is still remembered" && failed=1; }
[ -z "$(ls -A /var/tmp)" ] || { echo "FAIL: left in /var/tmp: $(ls -A /var/tmp)" && failed=1; }

# ---- through a real cupsd
KELMAR_DIALOG_BACKEND=$build/backend/kelmar-dialog "$root/scripts/lib/private-cupsd.sh" start "$work/cups" || exit 1
"$root/scripts/lib/private-cupsd.sh" add-queue "$work/cups" kelmar "$build/packaging/queue/kelmar-dialog.ppd" "kelmar-dialog:/?wait=20"
lpadmin -p kelmar -o printer-op-policy=kelmar-dialog -o printer-is-shared=false 2>/dev/null
document=$root/demo/report.pdf
rm -f "$log" "$log.document"
as_user lp -d kelmar -n 3 -o sides=two-sided-long-edge -t "A letter" "$document" >/dev/null
wait_until 10 cmp -s "$log.document" "$document"
cmp "$log.document" "$document" || failed=1
for text in '"title":"A letter"' '"copies":3' 'sides=two-sided-long-edge'; do
    grep -qF -- "$text" "$log" || { echo "FAIL: through cupsd: no $text in $(cat "$log")" && failed=1; }
done
expect "in another's name" 1 "" as_user lp -U root -d kelmar "$document"
queue_says() { lpstat -p kelmar | grep -qF -- "$1"; }
held() { # WHAT TEXT JOBS: the last job is held, the queue shows the reason and is not stopped
    wait_until 10 queue_says "$2" || { echo "FAIL: $1: lpstat says $(lpstat -p kelmar)" && failed=1; }
    lpstat -p kelmar | grep -q disabled && echo "FAIL: $1: the queue has stopped" && failed=1
    [ "$(lpstat -o kelmar | wc -l)" -eq "$3" ] || { echo "FAIL: $1: the job is lost: $(lpstat -o)" && failed=1; }
}
as_user lp -d kelmar -t crash "$document" >/dev/null
held "a dialog that fails" "The dialog did not open" 1
lp -d kelmar "$document" >/dev/null
held "root" "(root)" 2
[ $failed -eq 0 ] || { cat "$work/cups/log/error_log"; exit 1; }
