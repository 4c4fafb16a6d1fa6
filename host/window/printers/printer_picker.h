// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QList>
#include <QStringList>
#include <QWidget>

#include <optional>

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
    // only the chosen preset, its printer is shown.
    void setPrinters(const QList<Destination> &printers);
    // The destination names of those used lately, the latest first. They come first while the user does not
    // look at the list.
    void setRecent(const QStringList &recent);
    // One more printer, or news of one that is there.
    void putPrinter(const Destination &news);
    // A printer that was found in the network.
    void putFound(const Destination &printer);
    // Whether more of them may come.
    void setSearching(bool searching);
    // Shows a printer without announcing it; adds it where the list lacks it.
    void setCurrent(const Destination &printer);
    // The destination name of a printer that has been asked for; shows what is known of it. Where the list
    // lacks it, it cannot be picked before it is there, and leaves when another one is shown.
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

protected:
    void changeEvent(QEvent *event) override;

private:
    void muteState();
    void showRow(int row);
    void orderRecent();
    void describe(const Destination &printer);

    PrinterList *m_list;
    PrinterBox *m_box;
    ElidedLabel *m_state;
    QString m_current;                   // destination name
    std::optional<QStringList> m_recent; // until the list is in their order
    bool m_isFixed = false;
};

} // namespace host
