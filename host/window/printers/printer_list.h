// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QAbstractListModel>
#include <QSortFilterProxyModel>

namespace host {

// The list of available printers, recently used ones first. Rows are added as printers are found.
class PrinterList : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        DestinationRole = Qt::UserRole,
        DetailRole, // state and location, one line
        SearchRole  // all searchable texts, in lower case
    };

    using QAbstractListModel::QAbstractListModel;

    // Replaces all printers except those found on the network.
    void setPrinters(QList<Destination> printers);
    // Sets the destination names of recently used printers, the latest first.
    void setRecent(const QStringList &recent);
    // Adds or updates a printer. Returns its row.
    int put(const Destination &printer);
    // Adds a printer that was found on the network, unless it has a queue.
    void putFound(const Destination &printer);
    // Adds a row for a requested printer that has not been reported yet, unless it is in the list. The row
    // cannot be selected until put(), putFound() or setPrinters() adds the printer. Returns the row.
    int putAwaited(const QString &name);
    bool isAwaited(const QString &name) const { return m_isAwaited && name == m_standIn; }
    // Adds a row for a selected printer that is missing from the list, but may still exist. Returns the row.
    int putMissing(const Destination &printer);
    // Removes the row added by putAwaited() or putMissing(), if another printer is selected. There is at most
    // one such row.
    void dropStandIn(const QString &chosen);
    int rowOf(const QString &name) const; // -1 if there is none
    Destination at(int row) const { return m_printers.value(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void forgetStandIn();
    QList<Destination> inOrder(QList<Destination> printers) const;

    QList<Destination> m_printers;
    QStringList m_recent;
    QString m_standIn;        // the destination name of that row; empty if there is none
    bool m_isAwaited = false; // the printer has not been reported yet
};

// The state, problem and location of a printer as text: "Ready · Room 655".
QString printerStateText(const Destination &printer);
// The levels of its supplies, and what is loaded in its trays, one per line: "Black 12 %", "Tray 1: A4".
// Empty if the printer does not report them.
QString printerSuppliesText(const Destination &printer);

// Filters a printer list by search words, which may occur in any order in name, description, location and
// model.
class PrinterSearch : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void setWords(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};

} // namespace host
