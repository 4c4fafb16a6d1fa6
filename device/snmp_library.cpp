// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/snmp_library.h"

#include "platform/logging.h"

void DynamicLibraryCloser::operator()(void *handle) const
{
    if (::dlclose(handle) != 0)
        qCWarning(lcDevice, "Error: %s", ::dlerror());
}

SnmpLibrary &SnmpLibrary::instance()
{
    // Never destroyed, since net-snmp may be partly destroyed at exit.
    static auto *library = new SnmpLibrary;
    return *library;
}

bool SnmpLibrary::load()
{
    // Only the first call loads the library. After a failure, later calls return true; see isUsable().
    if (libraryLoaded++ != 0)
        return true;
    // The version whose headers were compiled in, since the structures of other versions differ.
    const QList<QByteArray> ownName{KELMAR_NETSNMP_SONAME};
    for (const QByteArray &name : names.isEmpty() ? ownName : names) {
        snmpLibrary.reset(::dlopen(name.constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
        if (snmpLibrary)
            break;
    }
#define KELMAR_LOOK_UP(name)                                                                                 \
    tap_##name =                                                                                             \
        snmpLibrary ? reinterpret_cast<decltype(tap_##name)>(::dlsym(snmpLibrary.get(), #name)) : nullptr;
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_LOOK_UP)
#undef KELMAR_LOOK_UP
    return isUsable();
}

bool SnmpLibrary::isUsable() const
{
    bool complete = snmpLibrary != nullptr;
#define KELMAR_CHECK(name) complete = complete && tap_##name != nullptr;
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_CHECK)
#undef KELMAR_CHECK
    return complete;
}

void SnmpLibrary::configure()
{
#define KELMAR_LOOK_UP(name)                                                                                 \
    const auto name = reinterpret_cast<decltype(&::name)>(::dlsym(snmpLibrary.get(), #name));
    KELMAR_SNMP_CONFIGURATION_POINTS(KELMAR_LOOK_UP)
#undef KELMAR_LOOK_UP
    // All OIDs are numeric, so no MIB is needed, and there are no warnings if none is installed. SNMP v2c has
    // no users or certificates that would have to be stored.
    if (netsnmp_ds_set_boolean != nullptr) {
        for (const int setting : {NETSNMP_DS_LIB_DONT_READ_CONFIGS, NETSNMP_DS_LIB_DONT_LOAD_HOST_FILES,
                                  NETSNMP_DS_LIB_DONT_PERSIST_STATE, NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD,
                                  NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE})
            netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, setting, 1);
    }
    if (netsnmp_ds_set_string != nullptr) {
        netsnmp_ds_set_string(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_MIBDIRS, "");
        for (const int folder : {NETSNMP_DS_LIB_CONFIGURATION_DIR, NETSNMP_DS_LIB_PERSISTENT_DIR})
            netsnmp_ds_set_string(NETSNMP_DS_LIBRARY_ID, folder, "/dev/null");
    }
    if (netsnmp_register_loghandler != nullptr)
        netsnmp_register_loghandler(NETSNMP_LOGHANDLER_NONE, LOG_DEBUG);
}

void SnmpLibrary::initialize(const char *application)
{
    const std::lock_guard lock(m_initializing);
    if (m_configured != tap_init_snmp)
        configure();
    m_configured = tap_init_snmp;
    tap_init_snmp(application);
}

void SnmpLibrary::unload()
{
    if (libraryLoaded != 0)
        --libraryLoaded;
    if (!snmpLibrary || libraryLoaded != 0)
        return;
    snmpLibrary.reset();
#define KELMAR_POISON(name) tap_##name = reinterpret_cast<decltype(tap_##name)>(poisonedEntryPoint);
    KELMAR_SNMP_ENTRY_POINTS(KELMAR_POISON)
#undef KELMAR_POISON
}
