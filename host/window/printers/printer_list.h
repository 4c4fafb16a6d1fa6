// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QAbstractListModel>
#include <QSortFilterProxyModel>

namespace host {

// The printers to choose from, those used lately first. Rows are added as they are found.
class PrinterList : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        DestinationRole = Qt::UserRole,
        DetailRole, // state and place, one line
        SearchRole  // all that a search looks at, in lower case
    };

    using QAbstractListModel::QAbstractListModel;

    // Replaces everything but what was found in the network.
    void setPrinters(QList<Destination> printers);
    // The destination names of those used lately, the latest first.
    void setRecent(const QStringList &recent);
    // Adds a printer, or brings the one of this name up to what it is now. Its row.
    int put(const Destination &printer);
    // Adds a printer that was found in the network, unless it has a queue.
    void putFound(const Destination &printer);
    // A row for a requested printer that has not been reported yet, unless it is there. It cannot
    // be chosen before put(), putFound() or setPrinters() bring the printer. Its row.
    int putAwaited(const QString &name);
    bool isAwaited(const QString &name) const { return m_isAwaited && name == m_standIn; }
    // A row for a chosen printer that the list lacks, and that may still be there. Its row.
    int putMissing(const Destination &printer);
    // There is one row of these two kinds at a time. It goes once another printer is chosen: there is nothing
    // more to be had of it.
    void dropStandIn(const QString &chosen);
    int rowOf(const QString &name) const; // -1 when there is none
    Destination at(int row) const { return m_printers.value(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void forgetStandIn();
    QList<Destination> inOrder(QList<Destination> printers) const;

    QList<Destination> m_printers;
    QStringList m_recent;
    QString m_standIn;        // the destination name of that row; empty where there is none
    bool m_isAwaited = false; // it has not been reported yet
};

// How a printer is, what it reports and where it stands, in words: "Ready · Room 655".
QString printerStateText(const Destination &printer);
// What is left of its supplies, one a line: "Black 12 %". Empty where the printer tells nothing of them.
QString printerSuppliesText(const Destination &printer);

// Those rows of a printer list that hold every word of a search, in any order and any of name, description,
// place and model.
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
