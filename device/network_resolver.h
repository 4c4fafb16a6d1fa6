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

// The two entries of a cache record, and the address that stands for "none".
extern const QString QVResolvedKey;   // "ResolvesTo"
extern const QString QVAgeKey;        // "AgeOfResolution"
extern const QString QVDoesntResolve; // "_%%DoesntResolve%%_"

// What the resolver asks of the system.
struct ResolverServices
{
    std::function<QDateTime()> now;
    // The first address of gethostbyname2(3) as text; empty when there is none. Called on any thread.
    std::function<QByteArray(const QByteArray &name, int family)> addressOfHost;
    // As bonjour::resolveService().
    std::function<void(const char *name, const char *type, const char *domain, DNSServiceResolveReply reply,
                       void *context)>
        resolveService;

    static ResolverServices system();
};

// Finds the numeric address of a printer: of a literal address, a Bonjour service name or a host name, tried
// in that order. Returns when it is done, after up to 5 seconds for Bonjour and two name look-ups, which run
// on a worker thread where the caller's thread has a platform::Waiter. A host that failed is not asked for
// again for 120 seconds, one that was given up on is; a host that succeeded is looked up anew each time. The
// cache lives as long as the process. Calls from several threads wait for each other. Every failure is null.
class QVNetworkResolver_M880
{
public:
    // Sets up the cache; runs by itself before the first use.
    static void initialize();
    // Of the session's current printer, by the host of its device URI, whatever its scheme.
    static QString ipFromPrintSession(PMPrintSession session);
    static QString resolveToIP(const QString &host);

    // The address or QVDoesntResolve written less than 120 seconds ago, else null. Takes no lock; nor does
    // the next.
    static QString checkCacheForHost(const QString &host);
    // A null address is kept as QVDoesntResolve; a null host is ignored.
    static void addToCacheForHost(const QString &address, const QString &host);
    // A copy of the cache: by host a record of QVResolvedKey and QVAgeKey, and the date of the cache itself.
    static QHash<QString, QVariant> cache();

    // Takes the place of the system, for all later calls.
    static void setServices(ResolverServices services);

    // Whether inet_pton reads the text as IPv4 or IPv6. It does not read a scope id ("fe80::1%eth0"); that is
    // left to resolveFromHostname(), which keeps the scope.
    bool stringIsAnIP(const QString &text) const;
    // Four labels, or five with an empty last one: "Office Printer._ipp._tcp.local" or the same with a final
    // dot.
    QString resolveFromBonjour(const QString &host);
    // IPv4 before IPv6.
    QString resolveFromHostname(const QString &name) const;
    void setIP(const QString &address) { m_tempIP = address; }
    const QString &tempIP() const { return m_tempIP; }

private:
    QString resolve(const QString &host);

    QString m_tempIP; // set by the last Bonjour reply
};

// The reply of a Bonjour resolution; `context` is the resolver. Only the target host counts.
void DNSSD_API ResolverCallback(DNSServiceRef service, DNSServiceFlags flags, uint32_t interfaceIndex,
                                DNSServiceErrorType error, const char *fullName, const char *hostTarget,
                                uint16_t port, uint16_t txtLength, const unsigned char *txtRecord,
                                void *context);
