// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/snmp_library.h"

#include "platform/logging.h"

void DynamicLibraryCloser::operator()(void *handle) const
{
    if (::dlclose(handle) != 0)
        qCWarning(lcDevice, "Error: %s", ::dlerror());
}

// The name Debian 12 has, the one of a development package, then later and earlier ones. The calls used have
// the same form in all of them.
SnmpLibrary::SnmpLibrary()
    : names{"libnetsnmp.so.40", "libnetsnmp.so",    "libnetsnmp.so.45", "libnetsnmp.so.44",
            "libnetsnmp.so.42", "libnetsnmp.so.41", "libnetsnmp.so.35"}
{
}

SnmpLibrary &SnmpLibrary::instance()
{
    // Never destroyed: at exit net-snmp may already be half gone.
    static auto *library = new SnmpLibrary;
    return *library;
}

bool SnmpLibrary::load()
{
    // Only the first call looks. After a failure the later ones are told that all is well; see isUsable().
    if (libraryLoaded++ != 0)
        return true;
    for (const QByteArray &name : names) {
        snmpLibrary.reset(::dlopen(name.constData(), RTLD_NOW | RTLD_LOCAL));
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
