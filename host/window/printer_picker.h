// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QComboBox;

namespace host {

class PrinterBox;
class PrinterList;
class ElidedLabel;

// The list of printers and, below it, how the chosen one is. Shows the chosen one alone until it gets the
// whole list, which may grow while it is shown.
class PrinterPicker : public QWidget
{
    Q_OBJECT
public:
    explicit PrinterPicker(QWidget *parent = nullptr);

    // All that the print server has; the chosen one stays in the list where it lacks it, and where it lacks
    // only the chosen preset, its printer is shown. `recent` are destination names, the latest first.
    void setPrinters(const QList<Destination> &printers, const QStringList &recent);
    // One more printer, or news of one that is there.
    void putPrinter(const Destination &news);
    // A printer that was found in the network.
    void putFound(const Destination &printer);
    // Whether more of them may come.
    void setSearching(bool searching);
    // Shows a printer without announcing it; adds it where the list lacks it.
    void setCurrent(const Destination &printer);
    // The destination name of a printer that has been asked for; shows what is known of it.
    void setAwaited(const QString &name);
    // Nothing is chosen and nothing can be from now on, as for a PPD without a queue; `text` stands in the
    // place.
    void setFixedText(const QString &text);
    QComboBox *box() const;
    // Puts something at the end of its line.
    void addBeside(QWidget *widget);
    // Leaves out how the printer is, for want of room.
    void setCompact(bool compact);

Q_SIGNALS:
    // The user chose a printer, by destination name; it may be the one that is shown.
    void picked(const QString &name);
    // The list is shown.
    void opened();

private:
    void showRow(int row);
    void describe(const Destination &printer);
    void dropStandIn();

    PrinterList *m_list;
    PrinterBox *m_box;
    ElidedLabel *m_state;
    QString m_current; // destination name
    QString m_standIn; // the row of a printer that the list lacks, there while it is the chosen one
    bool m_isFixed = false;
};

} // namespace host
