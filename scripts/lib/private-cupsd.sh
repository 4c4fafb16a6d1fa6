#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# A private CUPS server in a folder, for tests and the demo. Its printers save their jobs (capture-backend).
#   run DIR                      run the server in the foreground
#   start DIR                    the same in the background; returns when it responds
#   stop DIR                     stop the server started by start; returns when it has exited
#   add-queue DIR NAME PPD URI   a queue that accepts jobs; PPD may be - for none; no address is ever contacted
#   wait-job DIR JOB [SECONDS]   return when the job has been captured (10 seconds)
#   options DIR JOB              the backend's fifth argument: the options of the job
# KELMAR_CUPS_LISTEN is an additional address to listen on, such as localhost:8631.
# If KELMAR_DIALOG_BACKEND is the backend of the dialog's queue, it is installed with the required mode.
# Programs reach the server with CUPS_SERVER=DIR/cups.sock. Exit code 77: CUPS is not installed.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
system_bin=${KELMAR_CUPS_SERVERBIN:-/usr/lib/cups}
schemes="capture socket ipp ipps lpd http https usb dnssd"
PATH=$PATH:/usr/sbin

fail() { # MESSAGE [CODE]
    echo "private-cupsd: $1" >&2
    exit "${2:-1}"
}

prepare() {
    local name
    command -v cupsd >/dev/null || fail "cupsd is not installed (Debian: cups-daemon)" 77
    mkdir -p "$dir"/{etc/ppd,etc/ssl,spool/tmp,cache,state,log,bin/backend,jobs}
    # cupsd's filters and backends run as another user, who needs access to the folder.
    chmod 755 "$dir" "$dir"/{etc,spool,cache,state,log,bin,bin/backend}
    chmod 1777 "$dir/jobs" "$dir/spool/tmp"
    # The path of a socket is limited to 108 bytes.
    [ "${#sock}" -lt 104 ] || fail "the path $sock is too long for a socket"
    for name in cgi-bin daemon driver filter monitor notifier; do
        [ ! -e "$system_bin/$name" ] || ln -sfn "$system_bin/$name" "$dir/bin/$name"
    done
    for name in $schemes; do
        install -m 755 "$here/capture-backend" "$dir/bin/backend/$name"
    done
    cat >"$dir/cupsd.conf" <<CONF
LogLevel ${KELMAR_CUPS_LOGLEVEL:-warn}
Listen $sock
${KELMAR_CUPS_LISTEN:+Listen $KELMAR_CUPS_LISTEN}
Browsing Off
WebInterface No
DefaultShared No
DefaultAuthType None
PreserveJobHistory Yes
PreserveJobFiles No
MaxLogSize 0
DirtyCleanInterval 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
    cat "$here/../../packaging/queue/policy.conf" >>"$dir/cupsd.conf"
    [ -z "${KELMAR_DIALOG_BACKEND:-}" ] || install -m 700 "$KELMAR_DIALOG_BACKEND" "$dir/bin/backend/kelmar-dialog"
    local user=lp group=lp
    [ "$(id -u)" -eq 0 ] || { user=$(id -un) group=$(id -gn); }
    cat >"$dir/cups-files.conf" <<CONF
ServerRoot $dir/etc
RequestRoot $dir/spool
TempDir $dir/spool/tmp
CacheDir $dir/cache
StateDir $dir/state
ServerBin $dir/bin
AccessLog $dir/log/access_log
ErrorLog $dir/log/error_log
PageLog $dir/log/page_log
User $user
Group $group
SystemGroup $(id -gn)
CONF
}

run() {
    prepare
    exec cupsd -f -c "$dir/cupsd.conf" -s "$dir/cups-files.conf"
}

start() {
    [ ! -e "$dir/cupsd.pid" ] || fail "a server is running in $dir"
    prepare
    cupsd -f -c "$dir/cupsd.conf" -s "$dir/cups-files.conf" >"$dir/log/output" 2>&1 &
    echo $! >"$dir/cupsd.pid"
    local pid=$! tries
    for tries in {1..200}; do
        ! lpstat -h "$sock" -r 2>/dev/null | grep -q 'is running' || return 0
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.05
    done
    cat "$dir/log/output" "$dir/log/error_log" >&2 2>/dev/null || true
    stop
    fail "the server does not answer"
}

stop() {
    local pid tries
    pid=$(cat "$dir/cupsd.pid" 2>/dev/null) || return 0
    # The PID may belong to another program by now.
    if ! grep -qF "$dir/cupsd.conf" "/proc/$pid/cmdline" 2>/dev/null; then
        rm -f "$dir/cupsd.pid"
        return 0
    fi
    kill "$pid" 2>/dev/null || true
    for tries in {1..200}; do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.05
    done
    kill -KILL "$pid" 2>/dev/null || true
    rm -f "$dir/cupsd.pid"
}

add_queue() { # NAME PPD URI
    local model=(-P "$2")
    [ "$2" != - ] || model=()
    # lpadmin warns at each call that drivers are deprecated.
    local said status=0
    said=$(lpadmin -h "$sock" -p "$1" -E -v "$3" "${model[@]}" 2>&1) || status=$?
    grep -v deprecated <<<"$said" >&2 || true
    return $status
}

wait_job() { # JOB SECONDS
    local tries
    for ((tries = 0; tries < $2 * 20; tries++)); do
        [ ! -e "$dir/jobs/$1.args" ] || return 0
        sleep 0.05
    done
    fail "job $1 has not arrived within $2 seconds"
}

[ $# -ge 2 ] || { sed -n '4,/^[^#]/s/^# \?//p' "${BASH_SOURCE[0]}" >&2 && exit 2; }
verb=$1 dir=$2
shift 2
case $verb in run | start) mkdir -p "$dir" ;; esac
dir=$(cd "$dir" && pwd) || exit 2
sock=$dir/cups.sock
case $verb/$# in
run/0) run ;;
start/0) start ;;
stop/0) stop ;;
add-queue/3) add_queue "$@" ;;
wait-job/1) wait_job "$1" 10 ;;
wait-job/2) wait_job "$1" "$2" ;;
options/1) mapfile -d '' -t args <"$dir/jobs/$1.args" && echo "${args[4]}" ;;
*) fail "do not know '$verb' with $# arguments" 2 ;;
esac
