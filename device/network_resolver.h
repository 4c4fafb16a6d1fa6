// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "device/dnssd.h"
#include "platform/printing_manager.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVariant>

#include <functional>

// The two entries of a cache record, and the address of a failed look-up.
extern const QString QVResolvedKey;   // "ResolvesTo"
extern const QString QVAgeKey;        // "AgeOfResolution"
extern const QString QVDoesntResolve; // "_%%DoesntResolve%%_"

// System calls of the resolver.
struct ResolverServices
{
    std::function<QDateTime()> now;
    // The first address of gethostbyname2(3) as text; empty if there is none. Called on any thread.
    std::function<QByteArray(const QByteArray &name, int family)> addressOfHost;
    // As bonjour::resolveService().
    std::function<void(const char *name, const char *type, const char *domain, DNSServiceResolveReply reply,
                       void *context)>
        resolveService;

    static ResolverServices system();
};

// Resolves the numeric address of a printer from a literal address, a Bonjour service name or a host name,
// tried in that order. Returns when done, after up to 5 seconds for Bonjour and two name look-ups, which run
// on a worker thread if the caller's thread has a platform::Waiter. A failed host is not queried again for
// 120 seconds, unless the user stopped the look-up; a resolved host is looked up again each time. The cache
// exists as long as the process. Concurrent calls wait for each other. All failures return null.
class QVNetworkResolver_M880
{
public:
    // Sets up the cache. Called automatically before the first use.
    static void initialize();
    // The address of the session's current printer, from the host of its device URI, whatever its scheme.
    static QString ipFromPrintSession(PMPrintSession session);
    static QString resolveToIP(const QString &host);

    // The address or QVDoesntResolve if stored less than 120 seconds ago, else null. Neither this function
    // nor the next one takes a lock.
    static QString checkCacheForHost(const QString &host);
    // A null address is stored as QVDoesntResolve; a null host is ignored.
    static void addToCacheForHost(const QString &address, const QString &host);
    // A copy of the cache: for each host a record of QVResolvedKey and QVAgeKey, and the date of the cache
    // itself.
    static QHash<QString, QVariant> cache();

    // Replaces the system calls for all later look-ups.
    static void setServices(ResolverServices services);

    // Whether inet_pton accepts the text as IPv4 or IPv6. It does not accept a scope ID ("fe80::1%eth0"),
    // which resolveFromHostname() handles.
    bool stringIsAnIP(const QString &text) const;
    // Four labels, or five of which the last is empty: "Office Printer._ipp._tcp.local" or the same with a
    // final dot.
    QString resolveFromBonjour(const QString &host);
    // IPv4 before IPv6.
    QString resolveFromHostname(const QString &name) const;
    void setIP(const QString &address) { m_tempIP = address; }
    const QString &tempIP() const { return m_tempIP; }

private:
    QString resolve(const QString &host);

    QString m_tempIP; // set by the last Bonjour reply
};

// The callback of a Bonjour resolution; `context` is the resolver. Only the target host is used.
void DNSSD_API ResolverCallback(DNSServiceRef service, DNSServiceFlags flags, uint32_t interfaceIndex,
                                DNSServiceErrorType error, const char *fullName, const char *hostTarget,
                                uint16_t port, uint16_t txtLength, const unsigned char *txtRecord,
                                void *context);
