// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QList>
#include <QStringList>
#include <QWidget>

#include <optional>

namespace host {

class PrinterBox;
class PrinterList;
class ElidedLabel;

// The list of printers and, below it, the state of the selected one. Shows only the selected printer until
// the complete list is set, which may grow while it is shown.
class PrinterPicker : public QWidget
{
    Q_OBJECT
public:
    explicit PrinterPicker(QWidget *parent = nullptr);
    ~PrinterPicker() override;

    // Sets the printers of the print server. The selected printer is added if it is missing; if only its
    // preset is missing, the printer is shown.
    void setPrinters(const QList<Destination> &printers);
    // Sets the destination names of recently used printers, the latest first. They are moved to the top while
    // the list is not open.
    void setRecent(const QStringList &recent);
    // Adds or updates a printer.
    void putPrinter(const Destination &news);
    // Adds a printer that was found on the network.
    void putFound(const Destination &printer);
    // Sets whether more printers may be found.
    void setSearching(bool searching);
    // Shows a printer without emitting a signal; adds it if it is not in the list.
    void setCurrent(const Destination &printer);
    // Shows a requested printer by its destination name, before it has been opened. If it is not in the list,
    // it cannot be selected before it is reported, and is removed when another printer is shown.
    void setAwaited(const QString &name);
    // No printer can be selected from now on, as for a PPD without a queue; shows `text` instead.
    void setFixedText(const QString &text);
    // Offers to add a printer, if the desktop has settings for printers. Call when the window is visible.
    void offerToAdd();
    // Adds a widget at the end of the state line.
    void addBeside(QWidget *widget);
    // Hides the state of the printer to save space.
    void setCompact(bool compact);

Q_SIGNALS:
    // The user has selected a printer, given by its destination name; it may be the current one.
    void picked(const QString &name);
    // The list was opened.
    void opened();
    // Printers may have been added: the user has returned from the desktop's printer settings.
    void listOutdated();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void muteState();
    void showRow(int row);
    void orderRecent();
    void openSettings();
    void describe(const Destination &printer);

    PrinterList *m_list;
    PrinterBox *m_box;
    ElidedLabel *m_state;
    QString m_current;                   // destination name
    std::optional<QStringList> m_recent; // until the list has been sorted accordingly
    bool m_isFixed = false;
    bool m_isInSettings = false; // until the window is active again
};

} // namespace host
