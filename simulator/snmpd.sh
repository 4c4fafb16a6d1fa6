#!/bin/sh
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

# A simulated printer: snmpd on port 161 of a loopback address, serving the tables of a device file.
#
#   snmpd.sh start DIR ADDRESS DEVICEFILE   returns when it responds; DIR receives its configuration, log and PID file
#   snmpd.sh run DIR ADDRESS DEVICEFILE     the same in the foreground; prints "NET-SNMP version" when it responds
#   snmpd.sh stop DIR
#
# Port 161 requires root, or a private network namespace.
set -eu

usage() {
    sed -n 's/^#   //p' "$0" >&2
    exit 2
}

configure() {
    here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
    [ -r "$3" ] || { echo "snmpd.sh: cannot read $3" >&2; exit 1; }
    device=$(CDPATH='' cd -- "$(dirname -- "$3")" && pwd)/$(basename -- "$3")
    mkdir -p "$1"
    folder=$(CDPATH='' cd -- "$1" && pwd) # snmpd changes to the root folder
    # Only validates the file, since snmpd would hide errors in its log.
    python3 "$here/agent.py" "$device" </dev/null || exit 1
    # snmpd splits a command at spaces despite quotes, so the paths are passed in the environment.
    export SIMULATOR_AGENT="$here/agent.py" SIMULATOR_DEVICE="$device"
    agent='/bin/sh -c exec${IFS}python3${IFS}"$SIMULATOR_AGENT"${IFS}"$SIMULATOR_DEVICE"'
    case $2 in
        *:*) listen="udp6:[$2]:161" access="rocommunity6 public" ;;
        *) listen="udp:$2:161" access="rocommunity public" ;;
    esac
    # Each subtree has a separate agent process.
    cat >"$folder/snmpd.conf" <<CONF
$access
pass_persist .1.3.6.1.4.1.5309 $agent
pass_persist .1.3.6.1.2.1.43 $agent
CONF
    export MIBS="" MIBDIRS="" SNMPCONFPATH="$folder" SNMP_PERSISTENT_DIR="$folder"
}

daemon=$(PATH=$PATH:/usr/sbin command -v snmpd) || { echo "snmpd.sh: snmpd is not installed" >&2; exit 1; }
case "${1:-}:$#" in
    start:4)
        configure "$2" "$3" "$4"
        # The parent exits when the port is open.
        "$daemon" -Lf "$folder/snmpd.log" -C -c "$folder/snmpd.conf" -p "$folder/snmpd.pid" "$listen" ||
            { tail -n 3 "$folder/snmpd.log" >&2; exit 1; }
        ;;
    run:4)
        configure "$2" "$3" "$4"
        exec "$daemon" -f -Lo -C -c "$folder/snmpd.conf" "$listen"
        ;;
    stop:2)
        # Stopping a server that is not running is not an error.
        [ -e "$2/snmpd.pid" ] || exit 0
        pid=$(cat "$2/snmpd.pid")
        kill "$pid" 2>/dev/null || true
        tries=0
        while kill -0 "$pid" 2>/dev/null && [ $tries -lt 100 ]; do
            tries=$((tries + 1))
            sleep 0.05
        done
        rm -f "$2/snmpd.pid"
        ;;
    *) usage ;;
esac
