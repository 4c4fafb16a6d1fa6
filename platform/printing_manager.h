// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

struct ppd_file_s;

namespace platform {

// The printer of a session. A value.
struct Printer
{
    QString name;      // CUPS destination, "queue" or "queue/instance"
    QString deviceUri; // as reported by CUPS; null if unknown
};

// A job's key-value store. Owned by the host; lives as long as its dialog.
class KELMAR_PLATFORM_EXPORT PrintSettings
{
public:
    QVariant value(const QString &key) const { return m_values.value(key); }
    // A null value removes the key.
    void setValue(const QString &key, const QVariant &value);
    const QVariantMap &values() const { return m_values; }

private:
    QVariantMap m_values;
};

// A ticket of an older dialog host: a named store with one dictionary of PPD choices. A dictionary that was
// never set is null, which is distinct from an empty one.
struct Ticket
{
    std::optional<QVariantMap> ppdDictionary;
};

// The session of one dialog. Owned by the host. The PPD is borrowed and outlives the session.
struct PrintSession
{
    std::optional<Printer> printer;
    ppd_file_s *ppd = nullptr;
    QHash<QString, Ticket> tickets;
};

} // namespace platform

using OSStatus = qint32; // 0 is success
using PMPrintSettings = platform::PrintSettings *;
using PMPrintSession = platform::PrintSession *;
using PMPrinter = const platform::Printer *;
using PMTicketRef = platform::Ticket *;

constexpr OSStatus kPMNoError = 0;
constexpr OSStatus kPMInvalidParameter = -30877;
constexpr OSStatus kPMKeyNotFound = -9589;

// Null handles return kPMInvalidParameter and set the result to null. Results must not be null.

KELMAR_PLATFORM_EXPORT OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key,
                                                        QVariant *value);
// A null value removes the key. `locked` is ignored, since only the host may lock a setting.
KELMAR_PLATFORM_EXPORT OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                                        const QVariant &value, bool locked);
KELMAR_PLATFORM_EXPORT OSStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *printer);
KELMAR_PLATFORM_EXPORT OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri);
KELMAR_PLATFORM_EXPORT OSStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_s **ppd);

#if KELMAR_OLDER_HOSTS
KELMAR_PLATFORM_EXPORT OSStatus PMSessionGetTicketFromSession(PMPrintSession session, const QString &name,
                                                              PMTicketRef *ticket);
// Both indices are 0 for the only dictionary of a ticket. The dictionary is borrowed from the ticket.
KELMAR_PLATFORM_EXPORT OSStatus PMTicketGetPPDDict(PMTicketRef ticket, quint32 nodeIndex1, quint32 nodeIndex2,
                                                   QVariantMap **dictionary);
#endif
