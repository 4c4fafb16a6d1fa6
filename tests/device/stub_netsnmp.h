// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

// Exported by the stub library as `stub_control`: records the requests and defines the responses.
struct StubControl
{
    int inits, closes, frees;
    char application[32], peer[64], community[16];
    netsnmp_session opened;
    netsnmp_pdu request;

    bool failOpen;
    netsnmp_pdu response;
    netsnmp_variable_list variable, last; // the first variable of the response, and an optional further one
};
