// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// How the window comes to the session of a printer, the first one and those that are picked.

#include "host/session/carry_over.h"
#include "host/window/look/dialog_button.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/presets/settings_control.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/waiting/waiting_page.h"

#include <algorithm>

namespace host {

bool PrintWindow::open(PrintError *error)
{
    m_taskError = error;
    openTask();
    // The one time that the window waits on its thread: there is nothing to be seen of it yet.
    m_opener.deliverNear();
    return !std::exchange(m_taskError, nullptr) || !*error;
}

void PrintWindow::openTask()
{
    openWished({m_task.printer, m_task.ppdFile, m_task.printerMayBeGone},
               [this](PrinterOpening opening) { showFirst(std::move(opening)); });
}

void PrintWindow::openWished(const PrinterWish &wish, PrinterOpener::Receiver receiver)
{
    m_opener.open(wish, std::move(receiver));
    if (!m_session && !wish.printer.isEmpty())
        m_picker->setAwaited(wish.printer);
    else if (!m_session && wish.isForAnyone())
        m_opener.askUsedLast();
}

void PrintWindow::connectOpener()
{
    connect(&m_opener, &PrinterOpener::wanted, this, &PrintWindow::openPicked);
    connect(&m_opener, &PrinterOpener::delayed, this, &PrintWindow::showOpening);
    connect(&m_opener, &PrinterOpener::usedLastKnown, this, [this](const QString &name) {
        if (!m_session)
            m_picker->setAwaited(name);
    });
}

void PrintWindow::showOpening()
{
    m_waiting->setTask(tr("Asking the print server…"), tr("Do &Not Wait"));
    showState(State::Waiting);
}

// A printer that cannot do what the task asks for is not offered without it.
void PrintWindow::refuse(const PrintError &error)
{
    if (m_taskError) {
        *m_taskError = error;
        return;
    }
    m_refusal = error;
    letGo();
    m_session.reset();
    showError(error);
}

void PrintWindow::showFirst(PrinterOpening opening)
{
    if (!opening.printer) {
        if (m_task.ppdFile.isEmpty())
            showError(opening.error);
        else
            refuse(opening.error);
        return;
    }
    adopt(makeSession(std::move(*opening.printer)));
    const int row = m_task.firstPage.isEmpty() ? 0 : m_book->pageNamed(m_task.firstPage);
    if (row < 0) {
        refuse({PrintError::Kind::BadValue, tr("There is no pane called “%1”.").arg(m_task.firstPage)});
        return;
    }
    m_book->showPage(row);
    if (isDismissed()) // while a panel waited
        return;
    // On the shown page, so that panels answer the settings as they answer the user's.
    PrintError problem;
    if (m_task.prepare && !m_task.prepare(m_session.get(), &problem)) {
        refuse(problem);
        return;
    }
    m_settings->absorb();
    m_book->refresh();
    m_book->showChanges();
    m_messages.showNotices();
    m_messages.check();
    showDocumentProblem();
}

// A queue whose PPD is broken still prints, with what every printer can be asked.
std::unique_ptr<DialogSession> PrintWindow::makeSession(OpenedPrinter opened)
{
    auto session = std::make_unique<DialogSession>(opened.destination, std::move(opened.ppd));
    if (opened.ppdProblem)
        session->addNotice(opened.ppdProblem.message);
    session->loadPanels(m_extensions);
    if (m_task.begin && !m_session)
        m_task.begin(session.get());
    return session;
}

void PrintWindow::pickPrinter(const QString &name)
{
    if (m_wait.isUnderWay()) {
        m_picker->setCurrent(m_session->destination());
        return;
    }
    if (m_session && name == m_session->destination().name()) {
        if (isOpening() || m_opener.isPicking()) {
            m_opener.drop();
            stayWithPrinter();
        }
        return;
    }
    m_print->setEnabled(false);
    m_opener.pick(name);
}

void PrintWindow::openPicked(const QString &name)
{
    if (!m_session) { // the settings of the task are still to be made
        m_task.printer = name;
        m_task.printerMayBeGone = false;
        openTask();
        return;
    }
    openWished({name, m_task.ppdFile, false},
               [this](PrinterOpening opening) { showPicked(std::move(opening)); });
}

void PrintWindow::showPicked(PrinterOpening opening)
{
    if (!opening.printer) {
        stayWithPrinter();
        showError(opening.error);
        return;
    }
    m_session->save(); // what the page that is shown has pending
    auto session = makeSession(std::move(*opening.printer));
    m_bar->hide();
    const QString page = m_book->currentName();
    letGo();
    const auto earlier = std::move(m_session);
    adopt(std::move(session));
    carryOver(*earlier, m_session.get());
    m_settings->absorb();
    m_book->showPage(std::max(m_book->pageNamed(page), 0));
    m_messages.showNotices();
    m_messages.check();
}

void PrintWindow::stayWithPrinter()
{
    m_picker->setCurrent(m_session->destination());
    showState(State::Choosing);
    allowPrinting();
    // Other pages have hidden them.
    m_messages.showNotices();
    m_messages.check();
    showDocumentProblem();
}

void PrintWindow::retry()
{
    openTask();
    m_news.loadList();
}

} // namespace host
