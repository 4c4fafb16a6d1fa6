// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/printing_manager.h"

namespace platform {

void PrintSettings::setValue(const QString &key, const QVariant &value)
{
    if (value.isValid())
        m_values.insert(key, value);
    else
        m_values.remove(key);
}

} // namespace platform

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value)
{
    *value = settings ? settings->value(key) : QVariant();
    if (!settings)
        return kPMInvalidParameter;
    return value->isValid() ? kPMNoError : kPMKeyNotFound;
}

OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key, const QVariant &value, bool)
{
    if (!settings)
        return kPMInvalidParameter;
    settings->setValue(key, value);
    return kPMNoError;
}

OSStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *printer)
{
    *printer = session && session->printer ? &*session->printer : nullptr;
    if (!session)
        return kPMInvalidParameter;
    return *printer ? kPMNoError : kPMKeyNotFound;
}

OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri)
{
    *uri = printer ? printer->deviceUri : QString();
    if (!printer)
        return kPMInvalidParameter;
    return uri->isNull() ? kPMKeyNotFound : kPMNoError;
}

OSStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_s **ppd)
{
    *ppd = session ? session->ppd : nullptr;
    if (!session)
        return kPMInvalidParameter;
    return *ppd ? kPMNoError : kPMKeyNotFound;
}

#if KELMAR_OLDER_HOSTS
OSStatus PMSessionGetTicketFromSession(PMPrintSession session, const QString &name, PMTicketRef *ticket)
{
    *ticket = nullptr;
    if (!session)
        return kPMInvalidParameter;
    const auto found = session->tickets.find(name);
    if (found == session->tickets.end())
        return kPMKeyNotFound;
    *ticket = &*found;
    return kPMNoError;
}

OSStatus PMTicketGetPPDDict(PMTicketRef ticket, quint32 nodeIndex1, quint32 nodeIndex2,
                            QVariantMap **dictionary)
{
    *dictionary = nullptr;
    if (!ticket || nodeIndex1 != 0 || nodeIndex2 != 0)
        return kPMInvalidParameter;
    if (!ticket->ppdDictionary)
        return kPMKeyNotFound;
    *dictionary = &*ticket->ppdDictionary;
    return kPMNoError;
}
#endif
