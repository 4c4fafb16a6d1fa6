# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by tests that need the computer's print server.

# Starts it if no service manager has done so, and then stops it when the test ends.
own_cupsd=
need_cupsd() {
    lpstat -h /run/cups/cups.sock -r 2>/dev/null | grep -q 'is running' && return
    mkdir -p /run/cups
    /usr/sbin/cupsd -f &
    own_cupsd=$!
    local tries
    for tries in {1..100}; do
        lpstat -h /run/cups/cups.sock -r 2>/dev/null | grep -q 'is running' && return
        sleep 0.1
    done
    echo "The print server does not start." && exit 1
}
end_cupsd() { [ -z "$own_cupsd" ] || { kill "$own_cupsd" && wait "$own_cupsd" || true; }; }
