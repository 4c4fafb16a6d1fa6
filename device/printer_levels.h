// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class QVSNMP_M880;

// The level of a supply, or of the media in an input tray, from a printer's Printer-MIB (RFC 3805). A value.
struct PrinterLevel
{
    enum class Kind { Supply, Tray };
    Kind kind = Kind::Supply;
    QString name;      // "prtMarkerSuppliesDescription" or "prtInputName"
    qint64 level = -2; // negative if unknown
    qint64 most = -2;  // the level when full, in the same unit; negative if unknown
    QString media;     // "prtInputMediaName" of a tray; null if the printer does not report it

    // The kind, the name, both levels and the media, separated by tabs; without control characters.
    QByteArray line() const;
};

// Reads the levels of supplies that the printer consumes, and of its trays. The client is borrowed. Blocks
// for some milliseconds per level; 3 seconds if the printer does not respond. Empty if it reports no levels.
QList<PrinterLevel> printerLevels(QVSNMP_M880 *client);
