// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// This header must be included first.
#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <QByteArray>
#include <QList>

#include <dlfcn.h>

#include <memory>
#include <mutex>

// The required entry points of net-snmp, in the order of their look-up.
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

// Optional functions that prevent net-snmp from reading the user's files and the environment, and from
// writing to the terminal.
#define KELMAR_SNMP_CONFIGURATION_POINTS(X)                                                                  \
    X(netsnmp_ds_set_boolean)                                                                                \
    X(netsnmp_ds_set_string)                                                                                 \
    X(netsnmp_register_loghandler)

struct DynamicLibraryCloser
{
    // Logs a failure.
    void operator()(void *handle) const;
};
using DynamicLibraryHandle = std::unique_ptr<void, DynamicLibraryCloser>;

// The resolved entry points. Work that may outlive its client holds a copy.
struct SnmpCalls
{
#define KELMAR_DECLARE_SLOT(name) decltype(&::name) tap_##name = nullptr;
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_DECLARE_SLOT)
#undef KELMAR_DECLARE_SLOT
};

// The dynamically loaded net-snmp library. One per process; never linked. Main thread only, except for
// initialize(). The code of a loaded library stays in memory, since it leaves callbacks behind and an
// abandoned request may still be running in it.
struct SnmpLibrary : SnmpCalls
{
    static SnmpLibrary &instance();

    bool load();
    void unload();
    // Whether all entry points can be called; unlike load(), this reports each time.
    bool isUsable() const;
    // Calls init_snmp(), after configuring the library not to read files, as far as it allows that. Called on
    // any thread, since it still reads the files of MIBFILES; calls are serialized.
    void initialize(const char *application);

    quint32 libraryLoaded = 0; // load() calls without a matching unload(), including a failed first one
    DynamicLibraryHandle snmpLibrary;
    // File names, tried in order until one opens. An empty list means the version that was compiled in.
    QList<QByteArray> names;

private:
    SnmpLibrary() = default;
    void configure();

    std::mutex m_initializing;
    // guarded by a mutex; of the library that was configured last
    decltype(&::init_snmp) m_configured = nullptr;
};

// The value of the entry points of a closed library, so that a stale call crashes instead of corrupting data.
constexpr quintptr poisonedEntryPoint = 0xDEADBEEF;

// Frees a response. (net-snmp owns a request once it is sent.)
struct SnmpPduFreer
{
    decltype(&::snmp_free_pdu) free;
    void operator()(netsnmp_pdu *pdu) const { free(pdu); }
};
using SnmpPduHandle = std::unique_ptr<netsnmp_pdu, SnmpPduFreer>;

// An open session. Shared by the client and its requests, so that an abandoned request can finish.
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
    void *const handle; // net-snmp's single-session handle; null if it could not be opened
    bool isToBeClosed = true;
};
