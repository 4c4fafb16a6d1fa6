// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/printer_levels.h"

#include "device/snmp_client.h"

#include <QByteArrayList>
#include <QElapsedTimer>

#include <array>

namespace {

constexpr quint32 mostRows = 40;
constexpr qint64 noResponseTime = 2500; // milliseconds; a request that takes longer has timed out
constexpr int receptacle = 4;           // a value of "prtMarkerSuppliesClass": a waste container

// Columns of "prtMarkerSuppliesEntry" and "prtInputEntry".
enum class Supplies : SnmpOid { Class = 4, Description = 6, Capacity = 8, Level = 9 };
enum class Input : SnmpOid { Capacity = 9, Level = 10, MediaName = 12, Name = 13 };

using Cell = std::array<SnmpOid, 13>; // the last two elements are the device and the row

Cell cellOf(Supplies column, quint32 row)
{
    return {1, 3, 6, 1, 2, 1, 43, 11, 1, 1, static_cast<SnmpOid>(column), 1, row};
}

Cell cellOf(Input column, quint32 row)
{
    return {1, 3, 6, 1, 2, 1, 43, 8, 2, 1, static_cast<SnmpOid>(column), 1, row};
}

template <typename Column>
QVariant valueAt(QVSNMP_M880 *client, Column column, quint32 row)
{
    const Cell cell = cellOf(column, row);
    return client->sendRequestWithSize(cell.data(), cell.size());
}

// Numbers that the printer does not report count as unknown.
qint64 numberOf(const QVariant &value)
{
    return value.isValid() ? value.toLongLong() : -2;
}

// The levels of a column with their rows.
template <typename Column>
QList<std::pair<quint32, qint64>> levelsOf(QVSNMP_M880 *client, Column column)
{
    Cell first = cellOf(column, 1);
    const auto values = client->sendBulkRequestWithSizeAndCount(first.data(), first.size(), mostRows);
    const QList<quint32> rows = client->rowsOfLastColumn();
    QList<std::pair<quint32, qint64>> levels;
    for (qsizetype i = 0; values && i < std::min(values->size(), rows.size()); ++i)
        levels.append({rows.at(i), numberOf(values->at(i))});
    return levels;
}

QByteArray withoutControls(const QString &text)
{
    QString kept = text;
    for (QChar &c : kept) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return kept.simplified().toUtf8();
}

} // namespace

QByteArray PrinterLevel::line() const
{
    return QByteArrayList{kind == Kind::Supply ? "supply" : "tray", withoutControls(name),
                          QByteArray::number(level), QByteArray::number(most), withoutControls(media)}
        .join('\t');
}

QList<PrinterLevel> printerLevels(QVSNMP_M880 *client)
{
    QElapsedTimer timer;
    timer.start();
    const auto supplies = levelsOf(client, Supplies::Level);
    if (supplies.isEmpty() && timer.hasExpired(noResponseTime))
        return {};
    client->determineDefaultCharsetForPrinter();
    QList<PrinterLevel> levels;
    for (const auto &[row, level] : supplies) {
        if (numberOf(valueAt(client, Supplies::Class, row)) != receptacle)
            levels.append({PrinterLevel::Kind::Supply, valueAt(client, Supplies::Description, row).toString(),
                           level, numberOf(valueAt(client, Supplies::Capacity, row)), QString()});
    }
    for (const auto &[row, level] : levelsOf(client, Input::Level))
        levels.append({PrinterLevel::Kind::Tray, valueAt(client, Input::Name, row).toString(), level,
                       numberOf(valueAt(client, Input::Capacity, row)),
                       valueAt(client, Input::MediaName, row).toString()});
    return levels;
}
