// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_list.h"

#include "host/printing/ppd_texts.h"
#include "host/window/look/foreign_text.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <tuple>

namespace host {

namespace {

struct PrinterText
{
    Q_DECLARE_TR_FUNCTIONS(PrinterText)
};

// "Black 12 %", one supply per line.
QString suppliesText(const QList<Supply> &supplies)
{
    QStringList lines;
    for (const Supply &supply : supplies) {
        lines.append(
            supply.percent < 0
                ? PrinterText::tr("%1: level not known", "a toner").arg(supply.name)
                : PrinterText::tr("%1 %2 %", "a toner and its level").arg(supply.name).arg(supply.percent));
    }
    return lines.join(QLatin1Char('\n'));
}

QStringList stateParts(const Destination &printer)
{
    QStringList parts;
    if (printer.stopped)
        parts.append(PrinterText::tr("Stopped: jobs wait until it is started again"));
    else if (!printer.accepting)
        parts.append(PrinterText::tr("Not accepting jobs"));
    else if (printer.isOnNetwork)
        parts.append(PrinterText::tr("Found on the network"));
    else if (!printer.isStateKnown)
        parts.append(PrinterText::tr("State not known"));
    else
        parts.append(PrinterText::tr("Ready"));
    if (!printer.problem.isEmpty())
        parts.append(printer.problem);
    for (const Supply &supply : printer.supplies) {
        if (supply.isLow)
            parts.append(suppliesText({supply}));
    }
    if (!printer.location.isEmpty())
        parts.append(printer.location);
    if (!printer.makeAndModel.isEmpty())
        parts.append(printer.makeAndModel);
    return parts;
}

} // namespace

void PrinterList::setPrinters(QList<Destination> printers)
{
    for (const Destination &known : std::as_const(m_printers)) {
        const auto isSame = [&](const Destination &printer) {
            return printer.queue == known.queue || printer.isSameDevice(known);
        };
        if (known.isOnNetwork && std::none_of(printers.begin(), printers.end(), isSame))
            printers.append(known);
    }
    beginResetModel();
    forgetStandIn();
    m_printers = inOrder(std::move(printers));
    endResetModel();
}

void PrinterList::setRecent(const QStringList &recent)
{
    m_recent = recent;
    const QList<Destination> before = m_printers;
    Q_EMIT layoutAboutToBeChanged();
    m_printers = inOrder(std::move(m_printers));
    const QModelIndexList places = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &place : places)
        moved.append(index(rowOf(before.at(place.row()).name())));
    changePersistentIndexList(places, moved);
    Q_EMIT layoutChanged();
}

QList<Destination> PrinterList::inOrder(QList<Destination> printers) const
{
    const auto rank = [this](const Destination &printer) {
        const qsizetype place = m_recent.indexOf(printer.name());
        return place < 0 ? m_recent.size() : place;
    };
    std::stable_sort(printers.begin(), printers.end(),
                     [&](const Destination &a, const Destination &b) { return rank(a) < rank(b); });
    return printers;
}

int PrinterList::put(const Destination &printer)
{
    int row = rowOf(printer.name());
    if (isAwaited(printer.name())) // now it has been reported
        forgetStandIn();
    if (row >= 0) {
        m_printers[row] = printer;
        Q_EMIT dataChanged(index(row), index(row));
        return row;
    }
    row = rowCount();
    beginInsertRows({}, row, row);
    m_printers.append(printer);
    endInsertRows();
    return row;
}

void PrinterList::putFound(const Destination &printer)
{
    if (printer.name() == m_standIn && !m_isAwaited)
        forgetStandIn();
    const bool isKnown = std::any_of(m_printers.begin(), m_printers.end(), [&](const Destination &known) {
        return (known.queue == printer.queue && !isAwaited(known.name())) || known.isSameDevice(printer);
    });
    if (!isKnown)
        put(printer);
}

int PrinterList::putAwaited(const QString &name)
{
    if (const int row = rowOf(name); row >= 0)
        return row;
    Destination awaited;
    std::tie(awaited.queue, awaited.instance) = splitDestinationName(name);
    const int row = putMissing(awaited);
    m_isAwaited = true;
    Q_EMIT dataChanged(index(row), index(row));
    return row;
}

int PrinterList::putMissing(const Destination &printer)
{
    dropStandIn(printer.name());
    m_standIn = printer.name();
    return put(printer);
}

void PrinterList::dropStandIn(const QString &chosen)
{
    const int row = m_standIn == chosen ? -1 : rowOf(m_standIn);
    if (row < 0)
        return;
    forgetStandIn();
    beginRemoveRows({}, row, row);
    m_printers.removeAt(row);
    endRemoveRows();
}

void PrinterList::forgetStandIn()
{
    m_standIn.clear();
    m_isAwaited = false;
}

int PrinterList::rowOf(const QString &name) const
{
    const auto found = std::find_if(m_printers.begin(), m_printers.end(),
                                    [&](const Destination &printer) { return printer.name() == name; });
    return found == m_printers.end() ? -1 : static_cast<int>(found - m_printers.begin());
}

int PrinterList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_printers.size());
}

Qt::ItemFlags PrinterList::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags itemFlags = QAbstractListModel::flags(index);
    return index.isValid() && isAwaited(at(index.row()).name())
               ? itemFlags & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable)
               : itemFlags;
}

QVariant PrinterList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_printers.size())
        return {};
    const Destination &printer = m_printers.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return oneLine(printer.displayName());
    case DestinationRole:
        return QVariant::fromValue(printer);
    case DetailRole:
        return oneLine(printerStateText(printer));
    case Qt::AccessibleTextRole:
        return oneLine((QStringList(printer.displayName()) + stateParts(printer)).join(QStringLiteral(", ")));
    case SearchRole:
        return QStringList{printer.name(), printer.info, printer.location, printer.makeAndModel}
            .join(QLatin1Char('\n'))
            .toLower();
    default:
        return {};
    }
}

QString printerStateText(const Destination &printer)
{
    return stateParts(printer).join(QStringLiteral("  ·  "));
}

QString printerSuppliesText(const Destination &printer)
{
    QStringList lines{suppliesText(printer.supplies), suppliesText(printer.report.paper)};
    for (const LoadedTray &tray : printer.report.trays) {
        if (!tray.source.isEmpty() && !tray.size.isEmpty())
            lines.append(PrinterText::tr("%1: %2", "a tray and the paper in it")
                             .arg(traySourceText(tray.source), tray.size));
    }
    lines.removeAll(QString());
    if (!lines.isEmpty() && printer.report.time.isValid())
        lines.append(PrinterText::tr("Reported by the printer at %1")
                         .arg(QLocale().toString(printer.report.time.time(), QLocale::ShortFormat)));
    return lines.join(QLatin1Char('\n'));
}

void PrinterSearch::setWords(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    beginFilterChange();
#endif
    m_words = text.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    endFilterChange(Direction::Rows);
#else
    invalidateFilter();
#endif
}

bool PrinterSearch::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QString text = sourceModel()->index(row, 0, parent).data(PrinterList::SearchRole).toString();
    return std::all_of(m_words.begin(), m_words.end(),
                       [&](const QString &word) { return text.contains(word); });
}

} // namespace host
