// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// What the window asks of the print system, and how it passes the time until the answer.

#include "host/printing/held_signals.h"
#include "host/printing/job_follower.h"
#include "host/printing/network_search.h"
#include "host/session/later_writes.h"
#include "host/session/printed_pages.h"
#include "host/window/desktop_notice.h"
#include "host/window/dialog_button.h"
#include "host/window/dialog_waiter.h"
#include "host/window/earlier_jobs.h"
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

#include <algorithm>
#include <atomic>

namespace host {

namespace {

// A print server that is near answers within this, and what it says is shown at once. Nobody notices.
constexpr std::chrono::milliseconds nearServer(50);
constexpr std::chrono::milliseconds betweenProgress(100);

} // namespace

// What a submission and the window that waits for it share.
struct PrintWindow::Sending
{
    std::atomic<qint64> sent{0};
    std::atomic<qint64> total{0}; // bytes
    std::atomic<bool> isCancelled{false};
    // Until the server is asked, nothing has to be undone: the work is dropped, however long it still reads.
    enum class Phase { Reading, Submitting, Dropped };
    std::atomic<Phase> phase{Phase::Reading};
    bool isToldToSend = false; // the user knows that the server is asked now
    bool enter(Phase next)
    {
        Phase reading = Phase::Reading;
        return phase.compare_exchange_strong(reading, next);
    }
    std::shared_ptr<DocumentList> documents; // the work's until it has ended
    JobRequest request;
    std::function<void()> rememberUse; // once the job has been accepted
};

void PrintWindow::stopWaiting()
{
    if (dropReading())
        return;
    if (m_sending) {
        m_sending->isCancelled = true;
        m_waiting->setCancelling(tr("Canceling the job…"));
        return;
    }
    dropOpening();
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
    m_waitSign->end();
    if (m_guide)
        m_guide->setVisible(m_state == State::Choosing);
    // The panel has to return first.
    QMetaObject::invokeMethod(this, &PrintWindow::goOn, Qt::QueuedConnection);
}

void PrintWindow::goOn()
{
    if (m_busyDepth > 0)
        return;
    if (m_recheckDue)
        recheck();
    if (const auto take = std::exchange(m_whenIdle, nullptr))
        take();
}

void PrintWindow::print()
{
    if (m_submission || m_sending || m_busyDepth > 0 || isOpening() || !m_picked.isEmpty() ||
        (m_pdfSaver && m_pdfSaver->isBusy()) || !m_print->isEnabled() || m_book->isHidden())
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
    remember(m_settings->rememberUse());
    accept();
}

// The files may be slow: nobody waits for them.
void PrintWindow::remember(const std::function<void()> &settings)
{
    writeLater([printer = m_session->destination().name(), settings] {
        RememberedPrinter().setName(printer);
        if (settings)
            settings();
    });
}

void PrintWindow::send()
{
    m_held = std::make_unique<HeldSignals>();
    m_sending = std::make_shared<Sending>();
    m_sending->documents = m_documents;
    m_sending->request = {m_session->destination(), {}, m_task.title, m_session->jobOptions()};
    m_sending->rememberUse = m_settings->rememberUse();
    auto work = [&system = m_system, sending = m_sending, files = m_documentChoice.included(),
                 name = m_task.documentName]() -> Submission {
        Submission failed;
        const auto isDropped = [&] { return sending->phase == Sending::Phase::Dropped; };
        if (!sending->documents->open(files, nullptr, &failed.error, isDropped) ||
            !sending->enter(Sending::Phase::Submitting))
            return failed;
        JobRequest &request = sending->request;
        request.documents = sending->documents->documents();
        if (request.title.isEmpty())
            request.title = sending->documents->title();
        if (!name.isEmpty())
            request.documents.first().name = name;
        const auto progress = [&](qint64 sent, qint64 total) {
            sending->sent = sent;
            sending->total = total;
        };
        return system.submit(request, {progress, [&] { return sending->isCancelled.load(); }});
    };
    m_submitting.start(this, std::move(work), [this](Submission submission) { sent(std::move(submission)); });
    if (m_submitting.deliverWithin(nearServer))
        return;
    m_waiting->setTask(tr("Reading the document…"), tr("Ca&ncel Printing"));
    showProgress();
    showState(State::Sending);
    m_waiting->cancelButton()->setFocus();
    m_progressTimer.start(betweenProgress);
}

void PrintWindow::savePdf()
{
    if (m_sending || m_busyDepth > 0 || isOpening() || !m_book->checkTyped())
        return;
    m_session->save();
    sessionChanged();
    if (!m_pdfSaver) {
        m_pdfSaver = new PdfSaver(this);
        connect(m_pdfSaver, &PdfSaver::began, this, [this] { m_print->setEnabled(false); });
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
    if (m_book->isHidden()) // another printer is being opened
        return;
    allowPrinting();
    if (error)
        showError(error);
    else
        m_bar->showMessage(MessageBar::Kind::Success, tr("The PDF file has been written"), {path});
}

void PrintWindow::showProgress()
{
    if (!m_sending)
        return;
    if (m_sending->phase == Sending::Phase::Reading) {
        if (HeldSignals::isPending()) // there is no job yet to be cancelled first
            dropReading();
        return;
    }
    if (!std::exchange(m_sending->isToldToSend, true) && !m_sending->isCancelled)
        m_waiting->setTask(tr("Sending the document to the print server…"), tr("Ca&ncel Printing"));
    m_waiting->setProgress(m_sending->sent, m_sending->total);
}

// True when the documents were still being read; then nothing is sent.
bool PrintWindow::dropReading()
{
    if (!m_sending || !m_sending->enter(Sending::Phase::Dropped))
        return false;
    m_submitting.drop();
    Submission dropped;
    dropped.outcome = Submission::Outcome::Rejected;
    dropped.error = {PrintError::Kind::Cancelled, tr("Printing was canceled.")};
    sent(std::move(dropped));
    return true;
}

void PrintWindow::sent(Submission submission)
{
    m_progressTimer.stop();
    const auto sending = std::move(m_sending);
    const bool isRejected = submission.outcome == Submission::Outcome::Rejected;
    if (!isRejected) {
        remember(submission.isAccepted() ? sending->rememberUse : nullptr);
        m_submission = std::move(submission);
    }
    if (m_isLeaving) {
        done(isRejected ? Rejected : Accepted);
        m_held.reset();
        return;
    }
    m_held.reset();
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
    m_result->showSubmission(m_session->destination().displayName(), documentNames(), *m_submission);
    if (m_submission->isAccepted() && !m_submission->job.status.isFinal())
        m_follower->follow(statusQuery());
    m_result->showEarlier(m_earlier ? m_earlier->lines() : QStringList());
    showState(State::Done);
    m_cancel->setText(tr("&Close"));
    m_cancel->setDefault(true);
    m_cancel->ignoreMouseFor(std::chrono::milliseconds(QApplication::doubleClickInterval()));
    m_cancel->setAccessibleDescription(m_result->text());
    m_cancel->setFocus();
}

std::function<JobStatus()> PrintWindow::statusQuery() const
{
    return [&system = m_system, destination = m_session->destination(), id = m_submission->job.id] {
        return system.jobStatus(destination, id);
    };
}

// Whoever looks elsewhere is told once that the job is done, and once that it needs somebody.
void PrintWindow::showJob(const JobStatus &status)
{
    m_result->showStatus(status);
    if (status.state != JobStatus::State::Unknown)
        m_submission->job.status = status;
    const bool isNews = status.isFinal() || status.needsSomebody();
    if (!isNews)
        m_jobWasTold = false;
    else if (!std::exchange(m_jobWasTold, !status.isFinal()) && !isActiveWindow())
        notifyDesktop(windowTitle(), m_result->text(), status.state != JobStatus::State::Completed);
}

void PrintWindow::changeJob(JobAction action)
{
    if (m_jobChange.isPending())
        return;
    m_jobChange.start(
        this,
        [&system = m_system, destination = m_session->destination(), id = m_submission->job.id, action] {
            PrintError error;
            system.changeJob(destination, id, action, &error);
            return error;
        },
        [this](const PrintError &error) {
            if (error)
                m_result->showProblem(error.message);
            m_follower->askSoon();
        });
}

// The same documents with the same settings, once more. What was sent before is still followed.
void PrintWindow::printAgain()
{
    m_follower->stop();
    if (!m_earlier) {
        m_earlier = new EarlierJobs(this);
        connect(m_earlier, &EarlierJobs::changed, this,
                [this] { m_result->showEarlier(m_earlier->lines()); });
        connect(m_earlier, &EarlierJobs::ended, this, [this](const QString &line, const JobStatus &status) {
            if (!isActiveWindow())
                notifyDesktop(windowTitle(), line, status.state != JobStatus::State::Completed);
        });
    }
    if (m_submission->isAccepted())
        m_earlier->add(m_submission->job.id, m_submission->job.status, statusQuery());
    m_jobChange.drop();
    m_submission.reset();
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleDescription(QString());
    m_print->setDefault(true);
    m_jobWasTold = false;
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
    if (m_sending && m_sending->isCancelled)
        close();
    else if (m_sending)
        stopWaiting();
    else
        QDialog::reject();
}

// Whoever closes the window does not wait for it: the job is cancelled, and its end is seen to unseen.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    if (!m_sending || dropReading()) {
        QDialog::closeEvent(event);
        return;
    }
    m_isLeaving = true;
    stopWaiting();
    event->accept();
}

} // namespace host
