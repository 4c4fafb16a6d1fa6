// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// What the window asks of the print system, and how it passes the time until the answer.

#include "host/printing/network_search.h"
#include "host/session/later_writes.h"
#include "host/session/printed_pages.h"
#include "host/window/desktop_notice.h"
#include "host/window/dialog_button.h"
#include "host/window/dialog_waiter.h"
#include "host/window/guide_buttons.h"
#include "host/window/message_bar.h"
#include "host/window/page_book.h"
#include "host/window/pdf_saver.h"
#include "host/window/print_window.h"
#include "host/window/printer_picker.h"
#include "host/window/result_page.h"
#include "host/window/settings_control.h"
#include "host/window/startup_clock.h"
#include "host/window/wait_sign.h"
#include "host/window/waiting_page.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

namespace host {

// What the window and the job it sends tell each other.
void PrintWindow::connectJob()
{
    connect(&m_sender, &JobSender::submitting, this, [this] {
        m_waiting->setTask(tr("Sending the document to the print server…"), tr("Ca&ncel Printing"));
    });
    connect(&m_sender, &JobSender::progressed, m_waiting, &WaitingPage::setProgress);
    connect(&m_sender, &JobSender::ended, this, &PrintWindow::sent);
    connect(&m_job, &SentJob::changed, m_result, &ResultPage::showStatus);
    connect(&m_job, &SentJob::newsCame, this,
            [this](const JobStatus &status) { tellElsewhere(m_result->text(), status); });
    connect(&m_job, &SentJob::changeFailed, m_result, &ResultPage::showProblem);
    connect(&m_job, &SentJob::earlierChanged, this, [this] { m_result->showEarlier(m_job.earlierLines()); });
    connect(&m_job, &SentJob::earlierEnded, this, &PrintWindow::tellElsewhere);
    connect(m_result, &ResultPage::actionWanted, &m_job, &SentJob::change);
    connect(m_result, &ResultPage::printAgainWanted, this, &PrintWindow::printAgain);
}

void PrintWindow::stopWaiting()
{
    if (m_sender.dropReading())
        return;
    if (m_sender.isSending()) {
        m_sender.cancel();
        m_waiting->setCancelling(tr("Canceling the job…"));
        return;
    }
    m_opener.drop();
    if (m_session)
        stayWithPrinter();
    else
        showError({PrintError::Kind::ServerAway, tr("The print server has not answered yet.")});
}

void PrintWindow::loadPrinterList()
{
    if (m_session && m_session->destination().queue.isEmpty())
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
    // The settings file may be slower than the print server.
    m_recent.start(
        this, [] { return RememberedPrinter().recent(); },
        [this](const QStringList &recent) { m_picker->setRecent(recent); });
}

void PrintWindow::searchNetwork()
{
    if (!m_networkSearch) {
        m_networkSearch = new NetworkSearch(m_system, this);
        connect(m_networkSearch, &NetworkSearch::found, m_picker, &PrinterPicker::putFound);
        connect(m_networkSearch, &NetworkSearch::ended, this, [this] { m_picker->setSearching(false); });
    }
    m_picker->setSearching(true);
    m_networkSearch->begin();
}

void PrintWindow::askState()
{
    if (m_state == State::Done && (!submission() || submission()->job.status.isFinal())) {
        m_stateTimer.stop();
        return;
    }
    if (!m_session || m_session->destination().queue.isEmpty() || m_stateQuestion.isPending())
        return;
    m_stateQuestion.start(
        this,
        [&system = m_system, destination = m_session->destination()] {
            return system.withState(destination);
        },
        [this](const std::optional<Destination> &now) {
            if (now)
                m_picker->putPrinter(*now);
            else if (m_session)
                m_picker->putPrinter(m_session->destination().withoutState());
        });
}

void PrintWindow::showBusy(const QString &what)
{
    if (m_busyDepth++ > 0)
        return;
    m_waiter->beginActivity();
    m_waiter->setOpenParts({m_waitSign, m_cancel});
    m_waitSign->begin(what);
    if (m_isDismissed) { // nobody waits for it, and nothing brings the window back
        m_waiter->giveUp();
        return;
    }
    if (isVisible())
        repaint();
    else
        showPainted();
}

// Shows the window and returns when it can be seen, or when the screen takes too long about it.
void PrintWindow::showPainted()
{
    QEventLoop untilPainted;
    FirstPaint painted(this);
    connect(&painted, &FirstPaint::done, &untilPainted, &QEventLoop::quit);
    QTimer::singleShot(std::chrono::seconds(1), &untilPainted, &QEventLoop::quit);
    show();
    untilPainted.exec(QEventLoop::ExcludeUserInputEvents);
}

void PrintWindow::showIdle()
{
    if (--m_busyDepth > 0)
        return;
    m_waiter->endActivity();
    endWaitSign();
    // The panel has to return first.
    QMetaObject::invokeMethod(this, &PrintWindow::goOn, Qt::QueuedConnection);
}

void PrintWindow::endWaitSign()
{
    m_waitSign->end();
    if (isSaving() && !m_book->isHidden())
        showSaving();
    else if (m_guide)
        m_guide->setVisible(m_state == State::Choosing);
}

// The dialog can be used meanwhile, but for printing.
void PrintWindow::showSaving()
{
    if (!isSaving() || m_busyDepth > 0 || m_book->isHidden())
        return;
    if (m_guide)
        m_guide->hide();
    m_waitSign->begin(PdfSaver::tr("Save as PDF"));
    m_waitSign->showMoving();
}

void PrintWindow::goOn()
{
    if (m_busyDepth > 0)
        return;
    if (m_recheckDue)
        recheck();
    m_opener.deliverHeld();
}

void PrintWindow::print()
{
    if (submission() || m_sender.isSending() || m_busyDepth > 0 || isOpening() || m_opener.isPicking() ||
        isSaving() || !m_print->isEnabled() || m_book->isHidden())
        return;
    if (!m_book->checkTyped())
        return;
    m_session->save();
    sessionChanged();
    if (showConflicts(true)) {
        m_bar->takeFocus();
        return;
    }
    deliver();
}

void PrintWindow::deliver()
{
    if (!m_task.settingsOnly) {
        send();
        return;
    }
    rememberUseLater(m_session->destination().name(), m_settings->rememberUse());
    accept();
}

void PrintWindow::send()
{
    if (!m_sender.send({m_documents,
                        m_documentChoice.included(),
                        m_task.documentName,
                        {m_session->destination(), {}, m_task.title, m_session->jobOptions()},
                        m_settings->rememberUse()}))
        return;
    m_waiting->setTask(tr("Reading the document…"), tr("Ca&ncel Printing"));
    m_sender.tellProgress();
    if (!m_sender.isSending()) // a signal has come meanwhile
        return;
    showState(State::Sending);
    m_waiting->cancelButton()->setFocus();
}

bool PrintWindow::isSaving() const
{
    return m_pdfSaver && m_pdfSaver->isBusy();
}

void PrintWindow::savePdf()
{
    if (m_sender.isSending() || m_busyDepth > 0 || isOpening() || !m_book->checkTyped())
        return;
    m_session->save();
    sessionChanged();
    if (!m_pdfSaver) {
        m_pdfSaver = new PdfSaver(this);
        connect(m_pdfSaver, &PdfSaver::began, this, [this] {
            constexpr std::chrono::milliseconds noticeable(300);
            m_print->setEnabled(false);
            QTimer::singleShot(noticeable, this, &PrintWindow::showSaving);
        });
        connect(m_pdfSaver, &PdfSaver::ended, this, &PrintWindow::pdfSaved);
    }
    const QStringList files = m_documentChoice.included();
    const QString name = m_task.title.isEmpty() && files.first() != QLatin1String("-")
                             ? QFileInfo(files.first()).completeBaseName()
                             : m_task.title;
    m_pdfSaver->save(m_documents, files, pageSettings(*m_session), name.isEmpty() ? tr("Document") : name);
}

void PrintWindow::pdfSaved(const PrintError &error, const QString &path)
{
    if (m_busyDepth == 0)
        endWaitSign();
    if (m_book->isHidden()) // another printer is being opened
        return;
    allowPrinting();
    if (error)
        showError(error);
    else
        m_bar->showMessage(MessageBar::Kind::Success, tr("The PDF file has been written"), {path});
}

void PrintWindow::sent(const Submission &submission)
{
    const bool isRejected = submission.outcome == Submission::Outcome::Rejected;
    if (!isRejected)
        m_job.take(m_session->destination(), submission);
    if (m_isLeaving) {
        done(isRejected ? Rejected : Accepted);
        m_sender.releaseSignals();
        return;
    }
    m_sender.releaseSignals();
    if (isRejected) {
        showState(State::Choosing);
        allowPrinting();
        showError(submission.error);
        return;
    }
    showResult();
}

void PrintWindow::showResult()
{
    m_result->showSubmission(m_session->destination().displayName(), documentNames(), *submission());
    m_job.follow();
    m_result->showEarlier(m_job.earlierLines());
    showState(State::Done);
    m_cancel->setText(tr("&Close"));
    m_cancel->setDefault(true);
    m_cancel->ignoreMouseFor(std::chrono::milliseconds(QApplication::doubleClickInterval()));
    m_cancel->setAccessibleDescription(m_result->text());
    m_cancel->setFocus();
}

// Whoever looks elsewhere is told once that the job is done, and once that it needs somebody.
void PrintWindow::tellElsewhere(const QString &text, const JobStatus &status)
{
    if (!isActiveWindow())
        notifyDesktop(windowTitle(), text, status.state != JobStatus::State::Completed);
}

// The same documents with the same settings, once more. What was sent before is still followed.
void PrintWindow::printAgain()
{
    m_job.setAside();
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleDescription(QString());
    m_print->setDefault(true);
    send();
}

void PrintWindow::done(int result)
{
    m_isDismissed = true;
    QDialog::done(result);
}

// Escape and Cancel end the sending, not the dialog; who presses again does not want to see how it ends.
void PrintWindow::reject()
{
    if (m_sender.isCancelled())
        close();
    else if (m_sender.isSending())
        stopWaiting();
    else
        QDialog::reject();
}

// Whoever closes the window does not wait for it: the job is cancelled, and its end is seen to unseen.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    if (!m_sender.isSending() || m_sender.dropReading()) {
        QDialog::closeEvent(event);
        return;
    }
    m_isLeaving = true;
    stopWaiting();
    event->accept();
}

} // namespace host
