#!/bin/bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Replaces the dialog in tests: acts according to the title of the request, and records requests in $STUB_LOG.
read -r line
[ -z "${STUB_LOG:-}" ] || printf '%s\n' "$line" >>"$STUB_LOG"
follow() { # until it is asked to exit
    cat >>"${STUB_LOG:-/dev/null}"
    echo gone >>"${STUB_LOG:-/dev/null}"
}
case $line in
*'"title":"crash"'*) kill -KILL $$ ;;
*'"title":"garbage"'*) printf 'no json\n[1]\n{"response":"x"}\n' ;;
*'"title":"endless"'*) tr '\0' x </dev/zero ;;
*'"title":"silent"'*) follow ;;
*'"title":"no display"'*) echo '{"response":2,"reason":"display"}' ;;
*'"title":"message"'*)
    echo '{"response":2,"reason":"document"}'
    follow # like a message that the user has not closed yet
    ;;
*'"title":"cancel"'*) echo '{"response":1}' ;;
*'"title":"wait"'*)
    echo '{"event":"shown"}'
    follow
    ;;
*'"kind":"choose"'*)
    echo '{"response":0,"settings":{"printer":"office"},"pageSetup":{"PPDName":"A4"},"job":{"printer":"office","options":[["Code","12345",0]]}}'
    ;;
*)
    if [[ -n "${STUB_LOG:-}" && $line =~ '"document":'([0-9]+) ]]; then
        cat "/proc/self/fd/${BASH_REMATCH[1]}" >>"$STUB_LOG.document"
    fi
    printf '{"event":"shown"}\n{"response":0}\n'
    ;;
esac
