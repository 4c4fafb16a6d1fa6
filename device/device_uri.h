// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

// The host of a CUPS device URI, without percent encoding and brackets: "10.0.0.1", "fe80::1%eth0", "Office
// Printer._ipp._tcp.local". Case is preserved. Null if the URI has no host or cannot be parsed. Port,
// user-info and path are ignored.
QString hostOfDeviceUri(const QString &uri);
