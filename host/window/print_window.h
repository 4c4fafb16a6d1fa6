// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/printing/print_system.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/window/jobs/job_desk.h"
#include "host/window/messages/session_messages.h"
#include "host/window/print_task.h"
#include "host/window/printers/printer_news.h"
#include "host/window/printers/printer_opener.h"
#include "host/window/waiting/panel_wait.h"
#include "host/window/window_layout.h"
#include "platform/awaited.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace host {

class DialogButton;
class Finder;
class GreyedChoices;
class GuideButtons;
class HelpDesk;
class MessageBar;
class PageBook;
class PdfSaver;
class PrinterPicker;
class ResultPage;
class SettingsControl;
class UnavailablePage;
class WaitingPage;

// The print dialog. Its session lives for as long as its printer is chosen; a change of printer makes a new
// one and takes along what has been chosen. The print system and the extensions are borrowed; they outlive it
// and everything that is under way beside its thread when it goes. What takes its time runs beside its thread
// and shows a page with a way out, or a sign in the footer; only open() and the beginning of sending wait for
// a near server, 50 ms at most.
class PrintWindow : public QDialog
{
    Q_OBJECT
public:
    PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task);
    ~PrintWindow() override;

    // Opens the first session; where the print server takes its time, later. False with an error only when
    // the task itself cannot be done, such as a setting that the printer does not have, and that is known at
    // once; a printer or server that is away is shown in the window, as is all that is known later.
    bool open(PrintError *error);
    DialogSession *session() const { return m_session.get(); }
    // What became of the job; nil before there is one, and when it was not accepted.
    const std::optional<Submission> &submission() const { return m_jobs.submission(); }
    // Why the task could not be done after all, where open() could not tell yet.
    const PrintError &refusal() const { return m_refusal; }
    // The title that the user has given the job; null where it cannot be chosen.
    const QString &jobTitle() const { return m_documentChoice.title(); }
    // Whether a printer is still being opened.
    bool isOpening() const { return m_opener.isOpening(); }
    // Whether the user has closed the dialog, which may be before open() has returned.
    bool isDismissed() const { return m_wait.isDismissed(); }
    MessageBar *messageBar() const { return m_bar; }
    PageBook *book() const { return m_book; }
    // Shows the session's pages anew, as after its panels have become others.
    void showSession();
    // How large the window may be, instead of what its screen has free.
    void setRoom(const QSize &room) { m_layout.setRoom(room); }

public Q_SLOTS:
    void print();
    void reject() override;
    void done(int result) override;
    void loadPrinterList() { m_news.loadList(); }
    // Does what can wait until the user sees the window.
    void finishLater();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    enum class State { Unavailable, Waiting, Choosing, Sending, Done };

    void connectAll();
    void connectJob();
    void connectOpener();
    void showState(State state);
    // Shows meanwhile which printer is awaited; the receiver gets it when no panel waits.
    void openWished(const PrinterWish &wish, PrinterOpener::Receiver receiver);
    void openTask();
    void retry();
    void openPicked(const QString &name);
    void showOpening();
    void showFirst(PrinterOpening opening);
    void showPicked(PrinterOpening opening);
    void stayWithPrinter();
    void refuse(const PrintError &error);
    std::unique_ptr<DialogSession> makeSession(OpenedPrinter opened);
    void adopt(std::unique_ptr<DialogSession> session);
    void letGo();
    void allowPrinting();
    void pickPrinter(const QString &name);
    void sessionChanged();
    void deliver();
    void goOn();
    void turn(int steps);
    void answer(int index);
    void checkDocuments();
    void showDocumentProblem();
    void showError(const PrintError &error);
    void stopWaiting();
    void send();
    void savePdf();
    bool isSaving() const;
    void showSaving();
    void pdfSaved(const PrintError &error, const QString &path);
    void showSending();
    void takeBack(const PrintError &error);
    void showResult();
    void tellElsewhere(const QString &text, const JobStatus &status);
    void printAgain();
    void showGuide();
    QString documentNames() const;

    PrintSystem &m_system;
    Extensions &m_extensions;
    PrintTask m_task;
    DocumentChoice m_documentChoice;
    PdfSaver *m_pdfSaver = nullptr; // made when first needed
    std::unique_ptr<DialogSession> m_session;
    std::shared_ptr<DocumentList> m_documents = std::make_shared<DocumentList>();
    PrinterOpener m_opener;
    PrintError *m_taskError = nullptr; // while open() runs
    PrintError m_refusal;
    PrintError m_documentProblem; // not yet shown
    State m_state = State::Unavailable;
    platform::Awaited<PrintError> m_checking;

    PrinterPicker *m_picker;
    PrinterNews m_news;
    SettingsControl *m_settings;
    MessageBar *m_bar;
    SessionMessages m_messages;
    PageBook *m_book;
    UnavailablePage *m_unavailable;
    ResultPage *m_result;
    DialogButton *m_cancel;
    DialogButton *m_print;
    PanelWait m_wait;
    WaitingPage *m_waiting;
    JobDesk m_jobs;
    Finder *m_finder;
    GreyedChoices *m_greyed;
    HelpDesk *m_help;
    GuideButtons *m_guide = nullptr; // made once the window can be seen
    WindowLayout m_layout;
};

} // namespace host
