// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

// The host part of a CUPS device URI with percent escapes and brackets gone: "10.0.0.1", "fe80::1%eth0",
// "Office Printer._ipp._tcp.local". Case is kept. Null when the URI has no host or cannot be read; a port,
// user-info and path are not looked at.
QString hostOfDeviceUri(const QString &uri);
