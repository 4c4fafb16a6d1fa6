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
#include <mutex>

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

// Further functions that keep the user's files and the environment out of it, and its remarks off the
// terminal. None of them is required.
#define KELMAR_SNMP_CONFIGURATION_POINTS(X)                                                                  \
    X(netsnmp_ds_set_boolean)                                                                                \
    X(netsnmp_ds_set_string)                                                                                 \
    X(netsnmp_register_loghandler)

struct DynamicLibraryCloser
{
    // Logs when it fails.
    void operator()(void *handle) const;
};
using DynamicLibraryHandle = std::unique_ptr<void, DynamicLibraryCloser>;

// The entry points as they were found. Work that may outlive the client that asked for it has a copy.
struct SnmpCalls
{
#define KELMAR_DECLARE_SLOT(name) decltype(&::name) tap_##name = nullptr;
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_DECLARE_SLOT)
#undef KELMAR_DECLARE_SLOT
};

// net-snmp as the dynamic loader found it. One a process; never linked. Main thread only, but for
// initialize(). The code of a library that was opened once stays in memory: it leaves callbacks behind, and a
// request that was given up on may still be under way in it.
struct SnmpLibrary : SnmpCalls
{
    static SnmpLibrary &instance();

    bool load();
    void unload();
    // Whether every entry point may be called: load() says so once only.
    bool isUsable() const;
    // Calls init_snmp(), after telling the library to read no file where it can be told. On any thread, for
    // it reads the files of MIBFILES all the same; calls run one after the other.
    void initialize(const char *application);

    quint32 libraryLoaded = 0; // load() calls without their unload(), a failed first one included
    DynamicLibraryHandle snmpLibrary;
    // File names, tried in order until one opens. An empty list stands for the version compiled in.
    QList<QByteArray> names;

private:
    SnmpLibrary() = default;
    void configure();

    std::mutex m_initializing;
    decltype(&::init_snmp) m_configured = nullptr; // guarded; of the library that was configured last
};

// What a closed library leaves in the slots, so that a stale call fails loudly.
constexpr quintptr poisonedEntryPoint = 0xDEADBEEF;

// A response. (A request belongs to net-snmp once it is sent.)
struct SnmpPduFreer
{
    decltype(&::snmp_free_pdu) free;
    void operator()(netsnmp_pdu *pdu) const { free(pdu); }
};
using SnmpPduHandle = std::unique_ptr<netsnmp_pdu, SnmpPduFreer>;

// An open session. Shared by the client and its requests, so that one that was given up on can end.
struct SnmpSession
{
    SnmpSession(const SnmpCalls &entryPoints, void *openedHandle) : calls(entryPoints), handle(openedHandle)
    {
    }
    ~SnmpSession()
    {
        if (isToBeClosed && handle != nullptr)
            calls.tap_snmp_sess_close(handle);
    }
    SnmpSession(const SnmpSession &) = delete;
    SnmpSession &operator=(const SnmpSession &) = delete;

    const SnmpCalls calls;
    void *const handle; // net-snmp's single-session handle; null when it could not be opened
    bool isToBeClosed = true;
};
