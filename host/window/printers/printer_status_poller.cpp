// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_status_poller.h"

#include "host/printing/network_search.h"
#include "host/window/printers/printer_picker.h"

namespace host {

namespace {

constexpr std::chrono::seconds betweenStates(5);

}

PrinterStatusPoller::PrinterStatusPoller(PrintSystem &system, PrinterPicker *picker)
    : m_system(system), m_picker(picker)
{
    connect(m_picker, &PrinterPicker::opened, this, &PrinterStatusPoller::searchNetwork);
    connect(&m_stateTimer, &QTimer::timeout, this, &PrinterStatusPoller::askState);
}

void PrinterStatusPoller::setChosen(const Destination &printer)
{
    m_chosen = printer;
    if (isPpdAlone())
        m_picker->setFixedText(printer.displayName());
    else
        m_picker->setCurrent(printer);
}

void PrinterStatusPoller::forgetChosen()
{
    m_stateQuestion.drop();
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
    // Reading the settings file may be slower than the print server.
    m_recent.start(
        this, [] { return RememberedPrinter().recent(); },
        [this](const QStringList &recent) { m_picker->setRecent(recent); });
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
                m_picker->putPrinter(*now);
            else if (m_chosen)
                m_picker->putPrinter(m_chosen->withoutState());
        });
}

} // namespace host
