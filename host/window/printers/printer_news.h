// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_system.h"
#include "platform/awaited.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace host {

class NetworkSearch;
class PrinterPicker;

// Keeps a printer picker up with what there is to pick and how the chosen printer is; asks beside the
// dialog's thread. Belongs to the picker's window. The print system is borrowed and outlives it.
class PrinterNews : public QObject
{
    Q_OBJECT
public:
    PrinterNews(PrintSystem &system, PrinterPicker *picker);

    // This is the chosen printer; the picker shows it. One without a queue is a PPD alone: nothing is asked.
    void setChosen(const Destination &printer);
    // None is chosen; what is being asked about it comes too late.
    void forgetChosen();
    // Asks how the chosen printer is, every five seconds from now on, or no more.
    void follow(bool follows);

public Q_SLOTS:
    // Asks for the print server's printers, and for those used lately.
    void loadList();
    // Looks for printers that the print server has no queue for.
    void searchNetwork();

private:
    bool isPpdAlone() const { return m_chosen && m_chosen->queue.isEmpty(); }
    void askState();

    PrintSystem &m_system;
    PrinterPicker *m_picker;
    std::optional<Destination> m_chosen;
    NetworkSearch *m_networkSearch = nullptr; // made when it is first wanted
    platform::Awaited<std::optional<QList<Destination>>> m_listing;
    platform::Awaited<QStringList> m_recent; // names of printers
    platform::Awaited<std::optional<Destination>> m_stateQuestion;
    QTimer m_stateTimer;
};

} // namespace host
