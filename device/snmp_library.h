// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The first of these must come first.
#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <QByteArray>
#include <QList>

#include <dlfcn.h>

#include <memory>

// The entry points of net-snmp that are used, in the order in which they are looked up. The one list of them.
#define KELMAR_SNMP_ENTRY_POINTS(X)                                                                          \
    X(init_snmp)                                                                                             \
    X(snmp_add_null_var)                                                                                     \
    X(snmp_free_pdu)                                                                                         \
    X(snmp_pdu_create)                                                                                       \
    X(snmp_sess_close)                                                                                       \
    X(snmp_sess_init)                                                                                        \
    X(snmp_sess_open)                                                                                        \
    X(snmp_sess_session)                                                                                     \
    X(snmp_sess_synch_response)

struct DynamicLibraryCloser
{
    // Logs when it fails.
    void operator()(void *handle) const;
};
using DynamicLibraryHandle = std::unique_ptr<void, DynamicLibraryCloser>;

// net-snmp as the dynamic loader found it. One a process; never linked. Main thread only, no lock.
struct SnmpLibrary
{
    static SnmpLibrary &instance();

    bool load();
    void unload();
    // Whether every entry point may be called: load() says so once only.
    bool isUsable() const;

    quint32 libraryLoaded = 0; // load() calls without their unload(), a failed first one included
    DynamicLibraryHandle snmpLibrary;
    QList<QByteArray> names; // tried in order until one opens

#define KELMAR_DECLARE_SLOT(name) decltype(&::name) tap_##name = nullptr;
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_DECLARE_SLOT)
#undef KELMAR_DECLARE_SLOT

private:
    SnmpLibrary();
};

// What a closed library leaves in the slots, so that a stale call fails loudly.
constexpr quintptr poisonedEntryPoint = 0xDEADBEEF;

// A response. (A request belongs to net-snmp once it is sent.)
struct SnmpPduFreer
{
    void operator()(netsnmp_pdu *pdu) const { SnmpLibrary::instance().tap_snmp_free_pdu(pdu); }
};
using SnmpPduHandle = std::unique_ptr<netsnmp_pdu, SnmpPduFreer>;
