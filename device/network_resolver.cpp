// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/network_resolver.h"

#include "device/bonjour_wait.h"
#include "device/device_uri.h"
#include "platform/background.h"

#include <QMutexLocker>
#include <QRecursiveMutex>
#include <QStringList>
#include <QVariantMap>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>

#include <array>
#include <limits>
#include <optional>
#include <vector>

const QString QVResolvedKey = QStringLiteral("ResolvesTo");
const QString QVAgeKey = QStringLiteral("AgeOfResolution");
const QString QVDoesntResolve = QStringLiteral("_%%DoesntResolve%%_");

namespace {

constexpr double cacheLifeSeconds = 120.0;

ResolverServices &services()
{
    static ResolverServices current = ResolverServices::system();
    return current;
}

struct ResolverState
{
    ResolverState()
    {
        QVResolverCache.reserve(5);
        // The date of the cache itself is stored among the hosts.
        QVResolverCache.insert(QVAgeKey, services().now());
    }

    QRecursiveMutex lock;
    QHash<QString, QVariant> QVResolverCache;
};

ResolverState &state()
{
    static ResolverState current;
    return current;
}

// Null for text that is not ASCII, or contains a null character.
std::optional<QByteArray> asciiBytes(const QString &text)
{
    for (const QChar c : text) {
        if (c.unicode() == 0 || c.unicode() > 0x7f)
            return std::nullopt;
    }
    return text.toLatin1();
}

QString stringFromAscii(const char *text)
{
    if (text == nullptr)
        return {};
    const QByteArray bytes(text);
    for (const char c : bytes) {
        if (static_cast<unsigned char>(c) > 0x7f)
            return {};
    }
    return QString::fromLatin1(bytes);
}

double ageInSeconds(const QDateTime &written)
{
    const QDateTime now = services().now();
    if (!written.isValid() || !now.isValid())
        return std::numeric_limits<double>::quiet_NaN();
    return static_cast<double>(written.msecsTo(now)) / 1000.0;
}

// The address of "fe80::1%eth0" with its scope, which gethostbyname2 does not parse. Empty for any other
// text, and if there is no such interface.
QByteArray scopedAddress(const QByteArray &text)
{
    addrinfo hints{};
    hints.ai_family = AF_INET6;
    hints.ai_flags = AI_NUMERICHOST;
    addrinfo *found = nullptr;
    if (::getaddrinfo(text.constData(), nullptr, &hints, &found) != 0)
        return {};
    std::array<char, NI_MAXHOST> address{};
    const int status = ::getnameinfo(found->ai_addr, found->ai_addrlen, address.data(),
                                     static_cast<socklen_t>(address.size()), nullptr, 0, NI_NUMERICHOST);
    ::freeaddrinfo(found);
    return status == 0 ? QByteArray(address.data()) : QByteArray();
}

// The non-reentrant function stores its result where the next call on any thread overwrites it.
QByteArray addressByName(const QByteArray &name, int family)
{
    if (name.contains('%'))
        return family == AF_INET6 ? scopedAddress(name) : QByteArray();
    std::vector<char> room(1024);
    hostent entry{};
    hostent *found = nullptr;
    int error = 0;
    while (::gethostbyname2_r(name.constData(), family, &entry, room.data(), room.size(), &found, &error) ==
           ERANGE)
        room.resize(room.size() * 2);
    if (found == nullptr || found->h_addr_list == nullptr || found->h_addr_list[0] == nullptr)
        return {};
    std::array<char, 256> text{};
    ::inet_ntop(found->h_addrtype, found->h_addr_list[0], text.data(), static_cast<socklen_t>(text.size()));
    return {text.data()};
}

} // namespace

ResolverServices ResolverServices::system()
{
    return {.now = [] { return QDateTime::currentDateTimeUtc(); },
            .addressOfHost = addressByName,
            .resolveService = bonjour::resolveService};
}

void QVNetworkResolver_M880::setServices(ResolverServices replacement)
{
    services() = std::move(replacement);
}

void QVNetworkResolver_M880::initialize()
{
    state();
}

QHash<QString, QVariant> QVNetworkResolver_M880::cache()
{
    const QMutexLocker lock(&state().lock);
    return state().QVResolverCache;
}

QString QVNetworkResolver_M880::ipFromPrintSession(PMPrintSession session)
{
    // Both statuses can be ignored: without a printer or a URI there is no host, and so no address.
    PMPrinter printer = nullptr;
    PMSessionGetCurrentPrinter(session, &printer);
    QString uri;
    PMPrinterCopyDeviceURI(printer, &uri);
    return resolveToIP(hostOfDeviceUri(uri));
}

QString QVNetworkResolver_M880::resolveToIP(const QString &host)
{
    if (host.isNull())
        return {};
    const QMutexLocker lock(&state().lock);
    // Only failures are cached, since a printer may get another address at any time.
    if (checkCacheForHost(host) == QVDoesntResolve)
        return {};
    QVNetworkResolver_M880 resolver;
    const QString address = resolver.resolve(host);
    // An abandoned look-up has not necessarily failed.
    if (!address.isNull() || !platform::Background::isGivenUp())
        addToCacheForHost(address, host);
    return address;
}

QString QVNetworkResolver_M880::resolve(const QString &host)
{
    if (stringIsAnIP(host))
        return host;
    const QString address = resolveFromBonjour(host);
    return address.isNull() ? resolveFromHostname(host) : address;
}

QString QVNetworkResolver_M880::checkCacheForHost(const QString &host)
{
    // The date of the cache is not a record: read as a record it has no age, so it is never fresh.
    const QVariantMap record = state().QVResolverCache.value(host).toMap();
    if (!(ageInSeconds(record.value(QVAgeKey).toDateTime()) < cacheLifeSeconds))
        return {};
    return record.value(QVResolvedKey).toString();
}

void QVNetworkResolver_M880::addToCacheForHost(const QString &address, const QString &host)
{
    if (host.isNull())
        return;
    state().QVResolverCache.insert(host,
                                   QVariantMap{{QVResolvedKey, address.isNull() ? QVDoesntResolve : address},
                                               {QVAgeKey, services().now()}});
}

bool QVNetworkResolver_M880::stringIsAnIP(const QString &text) const
{
    const std::optional<QByteArray> bytes = asciiBytes(text);
    if (!bytes)
        return false;
    std::array<unsigned char, sizeof(in6_addr)> parsed{};
    return ::inet_pton(AF_INET, bytes->constData(), parsed.data()) == 1 ||
           ::inet_pton(AF_INET6, bytes->constData(), parsed.data()) == 1;
}

QString QVNetworkResolver_M880::resolveFromBonjour(const QString &host)
{
    const QStringList labels = host.split(u'.');
    if (labels.size() != 4 && !(labels.size() == 5 && labels.at(4).isEmpty()))
        return {};
    const std::optional<QByteArray> name = asciiBytes(labels.at(0));
    const std::optional<QByteArray> type = asciiBytes(labels.at(1) + u'.' + labels.at(2) + u'.');
    const std::optional<QByteArray> domain = asciiBytes(labels.at(3) + u'.');
    if (!name || !type || !domain)
        return {};
    setIP({});
    services().resolveService(name->constData(), type->constData(), domain->constData(), ResolverCallback,
                              this);
    return m_tempIP;
}

QString QVNetworkResolver_M880::resolveFromHostname(const QString &name) const
{
    const std::optional<QByteArray> bytes = asciiBytes(name);
    if (name.isNull() || !bytes)
        return {};
    const auto address = platform::callOnWorker([name = *bytes, addressOfHost = services().addressOfHost] {
        const QByteArray ipv4 = addressOfHost(name, AF_INET);
        return ipv4.isEmpty() ? addressOfHost(name, AF_INET6) : ipv4;
    });
    return address && !address->isEmpty() ? stringFromAscii(address->constData()) : QString();
}

void DNSSD_API ResolverCallback(DNSServiceRef, DNSServiceFlags, uint32_t, DNSServiceErrorType, const char *,
                                const char *hostTarget, uint16_t, uint16_t, const unsigned char *,
                                void *context)
{
    auto *resolver = static_cast<QVNetworkResolver_M880 *>(context);
    resolver->setIP(resolver->resolveFromHostname(stringFromAscii(hostTarget)));
}
