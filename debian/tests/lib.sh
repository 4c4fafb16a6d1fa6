# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by the tests: the functions of scripts/lib/setup.sh, and access to the computer's print server.

. scripts/lib/setup.sh

cupsd_answers() { lpstat -h /run/cups/cups.sock -r 2>/dev/null | grep -q 'is running'; }

# Starts the print server if it is not running. end_cupsd stops only a server that was started here.
own_cupsd=
need_cupsd() {
    ! cupsd_answers || return 0
    mkdir -p /run/cups
    /usr/sbin/cupsd -f &
    own_cupsd=$!
    wait_until 10 cupsd_answers || { echo "The print server does not start." && exit 1; }
}
end_cupsd() {
    [ -n "$own_cupsd" ] || return 0
    kill "$own_cupsd" || true
    wait "$own_cupsd" || true
    own_cupsd=
}
