// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Device URIs, whose hosts are also resolved, with name services that return nothing.

#include "device/device_uri.h"
#include "device/network_resolver.h"
#include "tests/fuzz/fuzz_support.h"

#include <QDateTime>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isPrepared = [] {
        QVNetworkResolver_M880::setServices(
            {.now = [] { return QDateTime(); },
             .addressOfHost = [](const QByteArray &, int) { return QByteArray(); },
             .resolveService =
                 [](const char *, const char *, const char *, DNSServiceResolveReply reply, void *context) {
                     reply(nullptr, 0, 0, 0, "", "", 0, 0, nullptr, context);
                 }});
        return true;
    }();
    requireThat(isPrepared);
    const QString uri = QString::fromUtf8(bytesOf(data, size));
    const QString host = hostOfDeviceUri(uri);
    requireThat(host.isNull() == host.isEmpty());
    QVNetworkResolver_M880 resolver;
    for (const QString &text : {uri, host}) {
        const bool isAddress = resolver.stringIsAnIP(text);
        const QString address = QVNetworkResolver_M880::resolveToIP(text);
        requireThat(isAddress ? address == text : address.isNull());
    }
    return 0;
}
