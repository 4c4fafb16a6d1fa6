// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_system.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/session/extensions.h"
#include "host/window/job_sender.h"
#include "host/window/print_task.h"
#include "host/window/printer_opener.h"
#include "host/window/sent_job.h"
#include "platform/awaited.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;

namespace host {

class AccessKeys;
class DialogButton;
class DialogWaiter;
class Finder;
class GreyedChoices;
class GuideButtons;
class HelpDesk;
class MessageBar;
class NetworkSearch;
class PageBook;
class PdfSaver;
class PrinterPicker;
class ResultPage;
class SettingsControl;
class UnavailablePage;
class WaitSign;
class WaitingPage;

// The print dialog. Its session lives for as long as its printer is chosen; a change of printer makes a new
// one and takes along what has been chosen. The print system and the extensions are borrowed; they outlive it
// and everything that is under way beside its thread when it goes. What takes its
// time runs beside its thread and shows a page with a way out, or a sign in the footer; only open() and the
// beginning of sending wait for a near server, 50 ms at most.
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
    const std::optional<Submission> &submission() const { return m_job.submission(); }
    // Why the task could not be done after all, where open() could not tell yet.
    const PrintError &refusal() const { return m_refusal; }
    // Whether a printer is still being opened.
    bool isOpening() const { return m_opener.isOpening(); }
    // Whether the user has closed the dialog, which may be before open() has returned.
    bool isDismissed() const { return m_isDismissed; }
    MessageBar *messageBar() const { return m_bar; }
    PageBook *book() const { return m_book; }
    // Shows the session's pages anew, as after its panels have become others.
    void showSession();
    // How large the window may be, instead of what its screen has free.
    void setRoom(const QSize &room);

public Q_SLOTS:
    void print();
    void reject() override;
    void done(int result) override;
    void loadPrinterList();
    // Looks for printers that the print server has no queue for.
    void searchNetwork();
    // Does what can wait until the user sees the window.
    void finishLater();
    void retry();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    enum class State { Unavailable, Waiting, Choosing, Sending, Done };

    void build();
    void connectAll();
    void connectJob();
    void connectOpener();
    void showState(State state);
    // Tab order, access keys and size follow what is shown.
    void arrange();
    void fit();
    void setCompact(bool compact);
    // Shows meanwhile which printer is awaited; the receiver gets it when no panel waits.
    void openWished(const PrinterWish &wish, PrinterOpener::Receiver receiver);
    void openTask();
    void openPicked(const QString &name);
    void showOpening();
    void showFirst(PrinterOpening opening);
    void showPicked(PrinterOpening opening);
    void stayWithPrinter();
    void refuse(const PrintError &error);
    std::unique_ptr<DialogSession> makeSession(OpenedPrinter opened);
    void adopt(std::unique_ptr<DialogSession> session);
    void letGo();
    void showDestination();
    void allowPrinting();
    bool showProtectionGap();
    void pickPrinter(const QString &name);
    void sessionChanged();
    void showNotices();
    // True when something holds printing up. `toPrint` when the user wants to print now, and may all the
    // same.
    bool showConflicts(bool toPrint = false);
    void deliver();
    void recheckLater();
    void recheck();
    void goOn();
    void turn(int steps);
    void answer(int index);
    void checkDocuments();
    void showDocumentProblem();
    void showError(const PrintError &error);
    void showBusy(const QString &what);
    void showPainted();
    void showIdle();
    void showSaving();
    void endWaitSign();
    void stopWaiting();
    void askState();
    void send();
    void savePdf();
    bool isSaving() const;
    void pdfSaved(const PrintError &error, const QString &path);
    void sent(const Submission &submission);
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
    bool m_askingConflict = false;
    int m_printAnyway = -1; // which answer of that question it is; -1 where it is none
    bool m_recheckQueued = false;
    bool m_recheckDue = false; // once no panel waits
    QStringList m_notices;     // not yet closed by the user
    QString m_toldGap;         // in the protection of the job
    std::optional<Resolution> m_proposal;
    PrinterOpener m_opener;
    JobSender m_sender;
    SentJob m_job;
    bool m_isLeaving = false;          // once the end of the job on its way is known
    PrintError *m_taskError = nullptr; // while open() runs
    PrintError m_refusal;
    PrintError m_documentProblem; // not yet shown
    bool m_isDismissed = false;
    State m_state = State::Unavailable;
    platform::Awaited<std::optional<QList<Destination>>> m_listing;
    platform::Awaited<QStringList> m_recent; // names of printers
    platform::Awaited<std::optional<Destination>> m_stateQuestion;
    platform::Awaited<PrintError> m_checking;
    QTimer m_stateTimer;

    PrinterPicker *m_picker;
    SettingsControl *m_settings;
    MessageBar *m_bar;
    PageBook *m_book;
    UnavailablePage *m_unavailable;
    ResultPage *m_result;
    DialogButton *m_cancel;
    DialogButton *m_print;
    WaitSign *m_waitSign;
    WaitingPage *m_waiting;
    AccessKeys *m_keys;
    std::shared_ptr<DialogWaiter> m_waiter;
    platform::Waiter::Scope m_waiterScope;
    Finder *m_finder;
    GreyedChoices *m_greyed;
    HelpDesk *m_help;
    GuideButtons *m_guide = nullptr;          // made once the window can be seen
    NetworkSearch *m_networkSearch = nullptr; // made when it is first wanted
    QHBoxLayout *m_footer;
    QHBoxLayout *m_messages;
    QSize m_room;        // null for what the screen has free
    int m_ownHeight = 0; // that fit() gave the window; another one is the user's wish
    int m_busyDepth = 0;
};

} // namespace host
