// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/session_opener.h"

#include "host/session/dialog_session.h"

#include <utility>

namespace host {

SessionOpener::SessionOpener(PrintSystem &system, Extensions &extensions, const PrintTask &task,
                             std::function<bool()> isDeferred, Receiver receiver)
    : m_extensions(extensions), m_task(task), m_receiver(std::move(receiver)),
      m_printers(system, std::move(isDeferred), this)
{
    connect(&m_printers, &PrinterOpener::wanted, this, &SessionOpener::openPicked);
    connect(&m_printers, &PrinterOpener::delayed, this, &SessionOpener::delayed);
    connect(&m_printers, &PrinterOpener::usedLastKnown, this, &SessionOpener::awaited);
}

SessionOpener::~SessionOpener() = default;

void SessionOpener::openTask()
{
    m_isForTask = true;
    open({m_task.printer, m_task.ppdFile, m_task.printerMayBeGone});
}

void SessionOpener::openPicked(const QString &name)
{
    if (m_isForTask) {
        m_task.printer = name;
        m_task.printerMayBeGone = false;
        openTask();
    } else {
        open({name, m_task.ppdFile, false});
    }
}

void SessionOpener::open(const PrinterWish &wish)
{
    m_printers.open(wish, [this](PrinterOpening opening) { deliver(std::move(opening)); });
    if (m_isForTask && !wish.printer.isEmpty())
        Q_EMIT awaited(wish.printer);
    else if (m_isForTask && wish.isForAnyone())
        m_printers.askUsedLast();
}

// A queue with a broken PPD can still print, with the settings that every printer has.
void SessionOpener::deliver(PrinterOpening opening)
{
    Result result;
    result.error = opening.error;
    result.isForTask = m_isForTask;
    if (opening.printer) {
        OpenedPrinter &printer = *opening.printer;
        result.session = std::make_unique<DialogSession>(printer.destination, std::move(printer.ppd));
        if (printer.ppdProblem)
            result.session->addNotice(printer.ppdProblem.message);
        result.session->loadPanels(m_extensions);
        if (m_isForTask && m_task.begin)
            m_task.begin(result.session.get());
        m_isForTask = false;
    }
    m_receiver(std::move(result));
}

} // namespace host
