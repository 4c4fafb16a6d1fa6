#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Tests that kelmar-print-queue, installed below a private prefix, creates, repairs and removes the dialog's queue of a real
# cupsd. The server uses the standard folders in a mount namespace. Usage: dialog_queue_test.sh BUILDDIR. Exit code 77: it
# needs root.
set -uo pipefail
tree=$(cd "$(dirname "$0")/../.." && pwd)
. "$tree/scripts/lib/setup.sh"
build=$1
[ "$(id -u)" -eq 0 ] || { echo "SKIP   : needs root" && exit 77; }
cupsd=$(PATH=$PATH:/usr/sbin command -v cupsd) || { echo "SKIP   : cupsd is not installed" && exit 77; }
# Other servers and systemd are hidden, since the script sends signals to the scheduler.
[ -n "${KELMAR_QUEUE_TEST:-}" ] ||
    KELMAR_QUEUE_TEST=1 exec unshare --mount --pid --fork --kill-child --mount-proc --propagation private "$0" "$build"

work=$(mktemp -d /tmp/kelmar-queue.XXXXXX)
failed=0
server=
trap 'rm -rf "$work"' EXIT # processes end with the namespace
chmod 755 "$work"
for folder in /run /var/lib /var/cache /var/spool /var/log /etc/cups; do mount -t tmpfs -o mode=755 tmpfs $folder; done
mkdir -p /run/cups /etc/cups/ppd /var/cache/cups /var/spool/cups/tmp /var/log/cups "$work"/{sbin,share/kelmar-print/queue,bin/backend}
install "$tree/packaging/queue/kelmar-print-queue" "$work/sbin"
cp "$build/packaging/queue/kelmar-dialog.ppd" "$tree/packaging/queue/policy.conf" "$work/share/kelmar-print/queue"
for name in daemon filter monitor notifier; do ln -s /usr/lib/cups/$name "$work/bin/$name"; done
for name in kelmar-dialog socket; do install -m 755 "$tree/scripts/lib/capture-backend" "$work/bin/backend/$name"; done
cp "$cupsd" "$work/sbin/cupsd" # not in /usr/sbin
printf '%s\n' "ServerBin $work/bin" >/etc/cups/cups-files.conf
cat >/etc/cups/cupsd.conf <<'CONF'
# settings of the administrator
Listen /run/cups/cups.sock
Browsing Off
WebInterface No
DefaultAuthType Basic
<Location />
  Order allow,deny
</Location>
DirtyCleanInterval 0
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
cp /etc/cups/cupsd.conf "$work/cupsd.conf"
export PATH=$work/sbin:$PATH LC_ALL=C

ok() { # WHAT COMMAND...
    local said
    said=$("${@:2}" 2>&1) || { echo "FAIL: $1: ${*:2} said: $said" && failed=1; }
}
says() { # WHAT CODE TEXT COMMAND...
    local said code=0
    said=$("${@:4}" 2>&1) || code=$?
    [[ "$code $said" == "$2 "*"$3"* ]] || { echo "FAIL: $1: exit code $code instead of $2; said: $said" && failed=1; }
}
no() { ! "$@"; }
as_nobody() { setpriv --reuid nobody --regid nogroup --clear-groups "$@"; }
answers() { lpstat -r 2>/dev/null | grep -q 'is running'; }
start() {
    cupsd -f >"$work/output" 2>&1 &
    server=$!
    wait_until 10 answers || { cat "$work/output" /var/log/cups/error_log && exit 1; }
}
stop() { kill $server && wait $server; }
queues() { lpstat -v 2>/dev/null; }
has_queue() { queues | grep -q 'KELMAR-dialog: kelmar-dialog:/'; }

# ---- without a running server, the creation of the queue is pending
says "no server" 1 "not running" kelmar-print-queue status
says "no server" 0 "when the print server starts" kelmar-print-queue add
start
ok "another queue" lpadmin -p office -E -v socket://127.0.0.1:9
says "no queue" 1 "There is no queue" as_nobody kelmar-print-queue status
says "a user" 1 "takes root" as_nobody kelmar-print-queue add
ok "the service" kelmar-print-queue refresh
ok "made" has_queue
ok "no longer waiting" no test -e /var/lib/kelmar-print-queue

# ---- the status is correct for every user
chmod 640 /etc/cups/cupsd.conf # as written by cupsd and its tools
for who in "" as_nobody; do says "there${who:+, as nobody}" 0 "with its policy" $who kelmar-print-queue status; done
cp /etc/cups/cupsd.conf "$work/with-policy"
ok "again" kelmar-print-queue add
ok "nothing changed" cmp /etc/cups/cupsd.conf "$work/with-policy"
cp "$work/cupsd.conf" /etc/cups/cupsd.conf # like a tool that rewrites it completely
stop && start
for who in "" as_nobody; do says "policy lost${who:+, as nobody}" 1 "without its policy" $who kelmar-print-queue status; done
ok "repaired" kelmar-print-queue refresh
chmod 640 /etc/cups/cupsd.conf
mount --bind /dev/null "$(command -v ipptool)"
says "without ipptool" 0 "with its policy" kelmar-print-queue status
says "without ipptool, as nobody" 3 "Only root can see" as_nobody kelmar-print-queue status
umount "$(command -v ipptool)"
says "repaired" 0 "with its policy" as_nobody kelmar-print-queue status

# ---- changes by the administrator are kept
ok "address" lpadmin -p KELMAR-dialog -v 'kelmar-dialog:/?wait=20'
ok "refresh" kelmar-print-queue refresh
ok "address kept" grep -qF '?wait=20' <(queues)

# ---- removed with all its files, and nothing else
: >/var/cache/cups/KELMAR-dialog.strings
ok "withdraw" kelmar-print-queue withdraw
ok "withdrawn" no has_queue
ok "cupsd.conf as it was" cmp /etc/cups/cupsd.conf "$work/cupsd.conf"
ok "another queue stays" grep -q 'office: socket' <(queues)
ok "nothing left" test -z "$(find / -xdev -name 'KELMAR-dialog*' -path '/*/cups/*' 2>/dev/null; find /etc/cups /var/cache /var/spool -name 'KELMAR-dialog*' ! -name '*.O')"
ok "comes back" kelmar-print-queue refresh
ok "came back" has_queue
stop
: >/var/cache/cups/KELMAR-dialog.strings
ok "remove without a server" kelmar-print-queue remove
ok "cupsd.conf as it was, without a server" cmp /etc/cups/cupsd.conf "$work/cupsd.conf"
ok "nothing left, without a server" test -z "$(find /etc/cups /var/cache -name 'KELMAR-dialog*' ! -name '*.O')"
start
ok "removed without a server" no has_queue
ok "stays removed" kelmar-print-queue refresh
ok "stayed removed" no has_queue

# ---- a queue of the same name with another device URI
ok "foreign" lpadmin -p KELMAR-dialog -E -v socket://127.0.0.1:9
says "foreign" 1 "of another kind" kelmar-print-queue add
ok "foreign, removing" kelmar-print-queue remove
ok "foreign stays" grep -q 'KELMAR-dialog: socket' <(queues)
exit $failed
