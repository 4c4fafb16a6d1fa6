// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// kelmar-printer-levels DEVICE-URI: writes a line for each supply and tray of the printer, as described in
// printer_levels.h. Exits with 1 if the printer does not report any. A separate program, since the SNMP
// client belongs to the main thread, which in the dialog must not wait.

#include "device/device_uri.h"
#include "device/printer_levels.h"
#include "device/snmp_client.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc != 2) {
        fputs("usage: kelmar-printer-levels DEVICE-URI\n", stderr);
        return 2;
    }
    const QString host = hostOfDeviceUri(QString::fromLocal8Bit(argv[1]));
    const auto client = host.isNull() ? nullptr : QVSNMP_M880::initWithHostAndReturnError(host, nullptr);
    if (!client)
        return 1;
    const QList<PrinterLevel> levels = printerLevels(client.get());
    client->closeSession();
    for (const PrinterLevel &level : levels)
        puts(level.line().constData());
    return levels.isEmpty() ? 1 : 0;
}
