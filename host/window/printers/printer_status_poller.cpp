// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_status_poller.h"

#include "host/printing/network_search.h"
#include "host/window/printers/printer_picker.h"

namespace host {

namespace {

constexpr std::chrono::seconds betweenStates(5);
constexpr std::chrono::minutes betweenReports(1);
constexpr std::chrono::minutes betweenAttempts(5); // after one that failed, since each may take seconds

} // namespace

PrinterStatusPoller::PrinterStatusPoller(PrintSystem &system, PrinterPicker *picker)
    : m_system(system), m_picker(picker)
{
    connect(m_picker, &PrinterPicker::opened, this, &PrinterStatusPoller::searchNetwork);
    connect(m_picker, &PrinterPicker::listOutdated, this, &PrinterStatusPoller::loadList);
    connect(&m_stateTimer, &QTimer::timeout, this, &PrinterStatusPoller::askState);
}

void PrinterStatusPoller::setChosen(const Destination &printer)
{
    if (!m_chosen || m_chosen->queue != printer.queue) {
        m_report.reset();
        m_deviceQuestion.drop();
        m_reportIsGood.setRemainingTime(0);
    }
    m_chosen = printer;
    if (isPpdAlone())
        m_picker->setFixedText(printer.displayName());
    else
        m_picker->setCurrent(withReport(printer));
    if (m_mayAskDevice)
        askDevice();
}

void PrinterStatusPoller::clearChosen()
{
    m_stateQuestion.drop();
    m_deviceQuestion.drop();
    m_report.reset();
    m_chosen.reset();
}

void PrinterStatusPoller::follow(bool follows)
{
    if (follows)
        m_stateTimer.start(betweenStates);
    else
        m_stateTimer.stop();
}

void PrinterStatusPoller::loadList()
{
    if (isPpdAlone())
        return;
    m_listing.start(
        this,
        [&system = m_system] {
            PrintError ignored;
            return system.destinations(&ignored);
        },
        [this](const std::optional<QList<Destination>> &printers) {
            if (printers)
                m_picker->setPrinters(*printers);
        });
    // Read separately, since the settings file may be slower than the print server.
    m_recent.start(
        this, [] { return RememberedPrinter().recent(); },
        [this](const QStringList &recent) { m_picker->setRecent(recent); });
    m_mayAskDevice = true;
    askDevice();
}

void PrinterStatusPoller::searchNetwork()
{
    if (!m_networkSearch) {
        m_networkSearch = new NetworkSearch(m_system, this);
        connect(m_networkSearch, &NetworkSearch::found, m_picker, &PrinterPicker::putFound);
        connect(m_networkSearch, &NetworkSearch::ended, this, [this] { m_picker->setSearching(false); });
    }
    m_picker->setSearching(true);
    m_networkSearch->begin();
}

void PrinterStatusPoller::askState()
{
    if (!m_chosen || isPpdAlone() || m_stateQuestion.isPending())
        return;
    m_stateQuestion.start(
        this, [&system = m_system, printer = *m_chosen] { return system.withState(printer); },
        [this](const std::optional<Destination> &now) {
            if (now)
                m_picker->putPrinter(withReport(*now));
            else if (m_chosen)
                m_picker->putPrinter(m_chosen->withoutState());
        });
    askDevice();
}

void PrinterStatusPoller::askDevice()
{
    if (!m_chosen || isPpdAlone() || m_deviceQuestion.isPending() || !m_reportIsGood.hasExpired())
        return;
    m_reportIsGood.setRemainingTime(betweenAttempts);
    m_deviceQuestion.start(
        this, [&system = m_system, printer = *m_chosen] { return system.reportOf(printer); },
        [this](const std::optional<DeviceReport> &report) {
            m_report = report;
            if (!report || !m_chosen)
                return;
            m_reportIsGood.setRemainingTime(betweenReports);
            askState();
            Q_EMIT reported(*report);
        });
}

Destination PrinterStatusPoller::withReport(Destination printer) const
{
    if (m_report) {
        printer.report = *m_report;
        if (!m_report->supplies.isEmpty())
            printer.supplies = m_report->supplies;
    }
    return printer;
}

} // namespace host
