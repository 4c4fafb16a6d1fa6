// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_system.h"
#include "platform/awaited.h"

#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace host {

class NetworkSearch;
class PrinterPicker;

// Updates a printer picker: loads the list of printers, polls the state of the selected printer, and asks the
// printer itself about supplies and loaded media, all on worker threads. Owned by the picker's window. The
// print system is borrowed and outlives it.
class PrinterStatusPoller : public QObject
{
    Q_OBJECT
public:
    PrinterStatusPoller(PrintSystem &system, PrinterPicker *picker);

    // Sets the selected printer, and shows it in the picker. A destination without a queue stands for a PPD
    // file, and is not polled.
    void setChosen(const Destination &printer);
    // No printer is selected; pending responses about the previous one are discarded.
    void clearChosen();
    // Starts polling the state of the selected printer, every five seconds, or stops it.
    void follow(bool follows);

public Q_SLOTS:
    // Requests the print server's printers and the recently used printers.
    void loadList();
    // Searches for printers without a queue on the print server.
    void searchNetwork();

Q_SIGNALS:
    // The selected printer has reported what is loaded in its trays.
    void reported(const DeviceReport &report);

private:
    bool isPpdAlone() const { return m_chosen && m_chosen->queue.isEmpty(); }
    void askState();
    void askDevice();
    Destination withReport(Destination printer) const;

    PrintSystem &m_system;
    PrinterPicker *m_picker;
    std::optional<Destination> m_chosen;
    NetworkSearch *m_networkSearch = nullptr; // created on first use
    platform::Awaited<std::optional<QList<Destination>>> m_listing;
    platform::Awaited<QStringList> m_recent; // names of printers
    platform::Awaited<std::optional<Destination>> m_stateQuestion;
    platform::Awaited<std::optional<DeviceReport>> m_deviceQuestion;
    std::optional<DeviceReport> m_report; // of the selected printer
    QDeadlineTimer m_reportIsGood{0};     // until then the printer is not queried again
    bool m_mayAskDevice = false;          // set by loadList(), after the first paint
    QTimer m_stateTimer;
};

} // namespace host
