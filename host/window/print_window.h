// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/window/jobs/job_desk.h"
#include "host/window/messages/message_queue.h"
#include "host/window/messages/session_messages.h"
#include "host/window/printers/printer_status_poller.h"
#include "host/window/session_opener.h"
#include "host/window/waiting/panel_wait.h"
#include "host/window/window_layout.h"

#include <QDialog>

namespace host {

class DialogButton;
class Guide;
class PageBook;
class PdfSaver;
class PrinterPicker;
class ResultPage;
class PresetMenu;
class UnavailablePage;
class WaitingPage;

// The print dialog: its state, and the session of the chosen printer, which it owns. The print system and the
// extensions are borrowed; they outlive the window and its work on other threads. Only open() and the start
// of a submission wait for a nearby server, 50 ms at most; longer operations show a page or an indicator with
// a way to stop them.
class PrintWindow : public QDialog
{
    Q_OBJECT
public:
    PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task);
    ~PrintWindow() override;

    // Opens the first session, in the background if the print server takes longer. False with an error only
    // if it is known at once that the task is impossible; all other problems are shown in the window.
    bool open(PrintError *error);
    DialogSession *session() const { return m_session.get(); } // null if there is none
    // The last job that was accepted, or may have been; null if there was none.
    const std::optional<Submission> &submission() const { return m_jobs.submission(); }
    const PrintError &refusal() const { return m_refusal; } // of the task, if open() could not report it
    const QString &jobTitle() const { return m_documents.title(); } // null unless the user can choose it
    // Whether the window shows its final state: no printer is being opened, and no panel queries its device.
    bool isSettled() const { return !m_opener.isBusy() && !m_wait.isUnderWay(); }
    bool isDismissed() const { return m_wait.isDismissed(); } // closed, possibly before open() returned
    PageBook *book() const { return m_book; }
    // Shows the session's pages again, for example after its panels have changed.
    void showSession();

public Q_SLOTS:
    // Prints, or asks questions that must be settled first. If a panel is querying its device, this happens
    // when it returns.
    void print();
    void reject() override;
    void done(int result) override;
    void finishLater(); // the work that can wait until the window is visible

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class State { Unavailable, Waiting, Choosing, Sending, Done };

    void connectParts();
    void connectWork();
    void showState(State state);
    void takeSession(SessionOpener::Result result);
    void beginTask();
    void changePrinter(std::unique_ptr<DialogSession> session);
    void adopt(std::unique_ptr<DialogSession> session);
    void detachSession();
    void refuse(const PrintError &error);
    void pickPrinter(const QString &name);
    void stayWithPrinter();
    void stopWaiting();
    void sessionChanged();
    bool isReady();
    void savePages();
    void allowPrinting();
    void deliver();
    void showError(const PrintError &error);

    PrintTask m_task;
    DocumentChoice m_documents;
    std::unique_ptr<DialogSession> m_session;
    SessionOpener m_opener;
    PrintError m_refusal;
    State m_state = State::Unavailable;
    PrinterPicker *m_picker;
    PrinterStatusPoller m_poller;
    PresetMenu *m_presets;
    MessageQueue m_queue;
    SessionMessages m_messages;
    PageBook *m_book;
    UnavailablePage *m_unavailable;
    ResultPage *m_result;
    DialogButton *m_cancel;
    DialogButton *m_print;
    PanelWait m_wait;
    WaitingPage *m_waiting;
    JobDesk m_jobs;
    PdfSaver *m_pdf;
    Guide *m_guide;
    WindowLayout m_layout;
};

} // namespace host
