// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// A library with only the required entry points of net-snmp. The test controls its behaviour, for values that
// no device can send and for broken libraries.

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include "tests/device/stub_netsnmp.h"

extern "C" {

#define STUB __attribute__((visibility("default")))

STUB StubControl stub_control{};

STUB void init_snmp(const char *type)
{
    ++stub_control.inits;
    strncpy(stub_control.application, type, sizeof stub_control.application - 1);
}
STUB void snmp_sess_init(netsnmp_session *session)
{
    // Like a version with a longer session structure.
    memset(static_cast<void *>(session), 0, sizeof *session + 8);
}
STUB void *snmp_sess_open(netsnmp_session *session)
{
    stub_control.opened = *session;
    strncpy(stub_control.peer, session->peername, sizeof stub_control.peer - 1);
    strncpy(stub_control.community, reinterpret_cast<const char *>(session->community),
            session->community_len);
    return stub_control.failOpen ? nullptr : &stub_control.opened;
}
STUB int snmp_sess_close(void *)
{
    ++stub_control.closes;
    return 1;
}
STUB netsnmp_pdu *snmp_pdu_create(int command)
{
    stub_control.request = {};
    stub_control.request.command = command;
    return &stub_control.request;
}
STUB netsnmp_variable_list *snmp_add_null_var(netsnmp_pdu *, const oid *, size_t)
{
    return &stub_control.variable;
}
STUB int snmp_sess_synch_response(void *, netsnmp_pdu *, netsnmp_pdu **response)
{
    stub_control.response.variables = &stub_control.variable;
    *response = &stub_control.response;
    return STAT_SUCCESS;
}
STUB void snmp_free_pdu(netsnmp_pdu *)
{
    ++stub_control.frees;
}
#ifndef STUB_WITHOUT_SESSION
STUB netsnmp_session *snmp_sess_session(void *session)
{
    return static_cast<netsnmp_session *>(session);
}
#endif
}
