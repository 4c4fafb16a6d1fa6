// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/device_uri.h"

#include <QByteArray>

#include <cups/http.h>

#include <array>
#include <limits>

// CUPS writes device URIs, so CUPS also parses them. A general URL class rejects the spaces of a decoded
// Bonjour name, and does not support CUPS's "[v1.fe80::1+eth0]" for an address with a scope ID.
QString hostOfDeviceUri(const QString &uri)
{
    const QByteArray text = uri.toUtf8();
    if (text.isEmpty() || text.size() >= std::numeric_limits<int>::max())
        return {};
    const int room = static_cast<int>(text.size()) + 1;
    // No part is longer than the whole URI; a missing resource is returned as "/".
    std::array<QByteArray, 4> parts;
    parts.fill(QByteArray(room + 1, '\0'));
    auto &[scheme, user, host, resource] = parts;
    int port = 0;
    // The status is ignored: the host is valid even with a bad port or a missing path.
    httpSeparateURI(HTTP_URI_CODING_ALL, text.constData(), scheme.data(), room + 1, user.data(), room + 1,
                    host.data(), room + 1, &port, resource.data(), room + 1);
    return host.front() == '\0' ? QString() : QString::fromUtf8(host.constData());
}
