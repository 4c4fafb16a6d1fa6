// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// What the window asks of the print system, and how it passes the time until the answer.

#include "host/printing/later_writes.h"
#include "host/session/printed_pages.h"
#include "host/window/guide/guide_buttons.h"
#include "host/window/jobs/desktop_notice.h"
#include "host/window/jobs/result_page.h"
#include "host/window/look/dialog_button.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/presets/settings_control.h"
#include "host/window/preview/pdf_saver.h"
#include "host/window/print_window.h"
#include "host/window/waiting/wait_sign.h"
#include "host/window/waiting/waiting_page.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QTimer>

namespace host {

// What the window and the job it sends tell each other.
void PrintWindow::connectJob()
{
    connect(&m_jobs, &JobDesk::delayed, this, &PrintWindow::showSending);
    connect(&m_jobs, &JobDesk::rejected, this, &PrintWindow::takeBack);
    connect(&m_jobs, &JobDesk::sent, this, &PrintWindow::showResult);
    connect(&m_jobs, &JobDesk::left, this, [this](bool kept) { done(kept ? Accepted : Rejected); });
    connect(&m_jobs, &JobDesk::ended, &m_news, [this] { m_news.follow(false); });
    connect(&m_jobs, &JobDesk::newsCame, this, &PrintWindow::tellElsewhere);
    connect(m_result, &ResultPage::printAgainWanted, this, &PrintWindow::printAgain);
}

void PrintWindow::stopWaiting()
{
    if (m_jobs.stop())
        return;
    m_opener.drop();
    if (m_session)
        stayWithPrinter();
    else
        showError({PrintError::Kind::ServerAway, tr("The print server has not answered yet.")});
}

void PrintWindow::goOn()
{
    m_messages.goOn();
    m_opener.deliverHeld();
}

void PrintWindow::print()
{
    if (submission() || m_jobs.isSending() || m_wait.isUnderWay() || isOpening() || m_opener.isPicking() ||
        isSaving() || !m_print->isEnabled() || m_book->isHidden())
        return;
    if (!m_book->checkTyped())
        return;
    m_session->save();
    sessionChanged();
    if (m_messages.check(true)) {
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
    m_jobs.send({m_documents,
                 m_documentChoice.included(),
                 m_task.documentName,
                 {m_session->destination(), {}, m_task.title, m_session->jobOptions()},
                 m_settings->rememberUse()},
                documentNames());
}

void PrintWindow::showSending()
{
    showState(State::Sending);
    m_waiting->cancelButton()->setFocus();
}

// To what was to be printed.
void PrintWindow::takeBack(const PrintError &error)
{
    showState(State::Choosing);
    allowPrinting();
    showError(error);
}

bool PrintWindow::isSaving() const
{
    return m_pdfSaver && m_pdfSaver->isBusy();
}

// The dialog can be used meanwhile, but for printing.
void PrintWindow::showSaving()
{
    if (!isSaving() || m_wait.isUnderWay() || m_book->isHidden())
        return;
    if (m_guide)
        m_guide->hide();
    m_wait.sign()->begin(PdfSaver::tr("Save as PDF"));
    m_wait.sign()->showMoving();
}

void PrintWindow::savePdf()
{
    if (m_jobs.isSending() || m_wait.isUnderWay() || isOpening() || !m_book->checkTyped())
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
    if (!m_wait.isUnderWay()) {
        m_wait.sign()->end();
        if (m_guide)
            m_guide->setVisible(m_state == State::Choosing);
    }
    if (m_book->isHidden()) // another printer is being opened
        return;
    allowPrinting();
    if (error)
        showError(error);
    else
        m_bar->showMessage(MessageBar::Kind::Success, tr("The PDF file has been written"), {path});
}

void PrintWindow::showResult()
{
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
    m_jobs.setAside();
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleDescription(QString());
    m_print->setDefault(true);
    send();
}

void PrintWindow::done(int result)
{
    m_wait.dismiss();
    QDialog::done(result);
}

// Escape and Cancel end the sending, not the dialog; who presses again does not want to see how it ends.
void PrintWindow::reject()
{
    if (m_jobs.isCancelled())
        close();
    else if (m_jobs.isSending())
        stopWaiting();
    else
        QDialog::reject();
}

// Whoever closes the window does not wait for it: the job is cancelled, and its end is seen to unseen.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    if (m_jobs.leave())
        QDialog::closeEvent(event);
    else
        event->accept();
}

} // namespace host
