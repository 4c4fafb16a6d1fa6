// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"

#include "host/printing/later_writes.h"
#include "host/session/carry_over.h"
#include "host/session/printed_pages.h"
#include "host/session/session_history.h"
#include "host/window/guide/guide.h"
#include "host/window/jobs/pdf_saver.h"
#include "host/window/jobs/result_page.h"
#include "host/window/look/access_keys.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/focus_ring.h"
#include "host/window/look/list_escape.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/presets/preset_menu.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/unavailable_page.h"
#include "host/window/waiting/wait_sign.h"
#include "host/window/waiting/waiting_page.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QShortcut>

namespace host {

namespace {

// Whether there is a printer, and a document to print.
bool canPrint(const PrintTask &task, const DialogSession *session)
{
    return session && !session->destination().queue.isEmpty() && (task.settingsOnly || !task.files.isEmpty());
}

} // namespace

PrintWindow::PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task)
    : m_task(std::move(task)), m_documents(m_task.settingsOnly ? QStringList() : m_task.files),
      m_opener(
          system, extensions, m_task, [this] { return m_wait.isUnderWay(); },
          [this](SessionOpener::Result result) { takeSession(std::move(result)); }),
      m_picker(new PrinterPicker(this)), m_poller(system, m_picker), m_presets(new PresetMenu(this)),
      m_queue(new MessageBar(this), [this] { return isSettled(); }),
      m_messages(&m_queue, m_task.settingsOnly, [this] { return m_wait.isUnderWay(); }),
      m_book(new PageBook(&m_documents, this)), m_unavailable(new UnavailablePage(this)),
      m_result(new ResultPage(this)), m_cancel(new DialogButton(tr("Cance&l"), this)),
      m_print(new DialogButton(tr("&Print"), this)), m_wait(this, {m_cancel, m_print}),
      m_waiting(new WaitingPage(this)), m_jobs(system, m_waiting, m_result, &m_queue, this),
      m_pdf(new PdfSaver(&m_documents, &m_wait, &m_queue, this)), m_guide(new Guide(m_book)),
      m_layout(this, {m_picker,
                      m_book,
                      {m_unavailable, m_waiting, m_result},
                      m_queue.bar(),
                      {m_wait.sign(), m_cancel, m_print},
                      m_guide->finder()})
{
    if (m_task.settingsOnly)
        m_documents.setTitle(m_task.title);
    const QString documents = m_task.namesOf(m_documents.included());
    setWindowTitle(documents.isEmpty() ? tr("Print") : tr("Print %1").arg(documents));
    new FocusRing(this);
    new ListEscape(this);
    if (!m_task.acceptLabel.isEmpty())
        m_print->setText(m_task.acceptLabel);
    m_picker->addBeside(m_presets->button());
    m_print->setDefault(true);
    m_cancel->setProperty(AccessKeys::otherKeyProperty, true);
    connectParts();
    connectWork();
    showState(State::Unavailable);
}

PrintWindow::~PrintWindow()
{
    detachSession();
}

void PrintWindow::connectParts()
{
    connect(m_picker, &PrinterPicker::picked, this, &PrintWindow::pickPrinter);
    connect(m_book, &PageBook::left, m_presets, &PresetMenu::note);
    connect(m_book, &PageBook::left, &m_messages, [this] { m_messages.check(); });
    connect(m_book, &PageBook::pageUpdated, m_presets, &PresetMenu::resync);
    connect(m_book, &PageBook::pageUpdated, &m_layout, &WindowLayout::arrange);
    connect(m_book, &PageBook::grown, &m_layout, &WindowLayout::arrangeKeys);
    connect(m_book, &PageBook::pageUpdated, &m_messages, &SessionMessages::showNotices);
    const auto settingsChanged = [this] {
        sessionChanged();
        m_messages.check();
    };
    connect(m_book, &PageBook::chosen, this, settingsChanged);
    connect(m_book, &PageBook::savePdfWanted, this, [this] {
        if (!isReady())
            return;
        savePages();
        m_pdf->save(*m_session, m_task.title);
    });
    connect(m_presets, &PresetMenu::changed, m_book, &PageBook::showChanges);
    connect(m_presets, &PresetMenu::applied, this, [this, settingsChanged] {
        m_poller.setChosen(m_session->destination());
        settingsChanged();
    });
    connect(m_presets, &PresetMenu::presetsChanged, this, [this] {
        m_poller.setChosen(m_session->destination());
        m_poller.loadList();
    });
    connect(m_presets, &PresetMenu::failed, this, &PrintWindow::showError);
    connect(&m_poller, &PrinterStatusPoller::reported, &m_messages,
            [this](const DeviceReport &report) { m_messages.setLoaded(report.trays); });
    connect(&m_messages, &SessionMessages::saved, this, &PrintWindow::sessionChanged);
    connect(&m_messages, &SessionMessages::chosen, this, settingsChanged);
    connect(&m_messages, &SessionMessages::codeWanted, m_book, &PageBook::leadTo);
    connect(&m_messages, &SessionMessages::printWanted, this, [this] {
        if (isReady())
            deliver();
    });
    connect(m_queue.bar(), &MessageBar::buttonsChanged, &m_layout, &WindowLayout::arrangeBar);
    connect(m_guide, &Guide::partsChanged, &m_layout, &WindowLayout::arrange);
}

void PrintWindow::connectWork()
{
    connect(m_print, &QPushButton::clicked, this, &PrintWindow::print);
    // A shortcut of the button, so that it works while a panel waits.
    connect(new QShortcut(QKeySequence::Print, m_print), &QShortcut::activated, m_print, &QPushButton::click);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_wait.giveUp();
        m_state == State::Done ? accept() : reject();
    });
    connect(&m_opener, &SessionOpener::awaited, m_picker, &PrinterPicker::setAwaited);
    connect(&m_opener, &SessionOpener::delayed, this, [this] {
        m_waiting->setTask(tr("Asking the print server…"), tr("Do &Not Wait"));
        showState(State::Waiting);
    });
    connect(m_unavailable, &UnavailablePage::retryWanted, this, [this] {
        m_opener.openTask();
        m_poller.loadList();
    });
    connect(m_waiting, &WaitingPage::cancelled, this, &PrintWindow::stopWaiting);
    connect(&m_wait, &PanelWait::signShown, m_guide, &Guide::setButtonsHidden);
    connect(&m_wait, &PanelWait::acceptWanted, this, &PrintWindow::print);
    connect(&m_wait, &PanelWait::panelReturned, &m_messages, &SessionMessages::resumeCheck);
    connect(&m_wait, &PanelWait::panelReturned, &m_opener, &SessionOpener::deliverHeld);
    connect(&m_jobs, &JobDesk::delayed, this, [this] {
        showState(State::Sending);
        m_waiting->cancelButton()->setFocus();
    });
    connect(&m_jobs, &JobDesk::rejected, this, [this] { showState(State::Choosing); });
    connect(&m_jobs, &JobDesk::sent, this, [this] {
        showState(State::Done);
        m_cancel->setText(tr("&Close"));
        m_cancel->setDefault(true);
        m_cancel->ignoreMouseFor(std::chrono::milliseconds(QApplication::doubleClickInterval()));
        m_cancel->setFocus();
    });
    connect(&m_jobs, &JobDesk::left, this, [this](bool kept) { done(kept ? Accepted : Rejected); });
    connect(&m_jobs, &JobDesk::ended, &m_poller, [this] {
        if (m_state == State::Done)
            m_poller.follow(false);
    });
    connect(m_result, &ResultPage::focusReleased, m_cancel, qOverload<>(&QWidget::setFocus));
    // Prints the same documents with the same settings again.
    connect(m_result, &ResultPage::printAgainWanted, this, [this] {
        if (!isReady())
            return;
        m_cancel->setText(tr("Cance&l"));
        m_print->setDefault(true);
        deliver();
    });
    connect(m_pdf, &PdfSaver::busyChanged, this, &PrintWindow::allowPrinting);
}

void PrintWindow::showState(State state)
{
    m_state = state;
    m_book->setVisible(state == State::Choosing);
    m_queue.setActive(state == State::Choosing);
    m_unavailable->setVisible(state == State::Unavailable);
    m_waiting->setVisible(state == State::Waiting || state == State::Sending);
    m_result->setVisible(state == State::Done);
    m_picker->setEnabled(state != State::Done && state != State::Sending);
    m_presets->setActive(state == State::Choosing);
    m_guide->setActive(state == State::Choosing);
    m_poller.follow(state == State::Choosing ||
                    (state == State::Done && !submission()->job.status.isFinal()));
    m_print->setVisible(state != State::Done);
    allowPrinting();
    m_layout.arrange();
}

bool PrintWindow::open(PrintError *error)
{
    m_opener.openTask();
    // Blocks the thread for 50 ms at most; the window is not visible yet.
    m_opener.deliverNear();
    if (m_refusal)
        *error = m_refusal;
    return !m_refusal;
}

void PrintWindow::takeSession(SessionOpener::Result result)
{
    if (!result.session && m_session)
        stayWithPrinter();
    if (!result.session && result.isForTask && !m_task.ppdFile.isEmpty()) {
        refuse(result.error);
    } else if (!result.session) {
        showError(result.error);
    } else if (result.isForTask) {
        adopt(std::move(result.session));
        beginTask();
    } else {
        changePrinter(std::move(result.session));
    }
}

// Shows the page and applies the settings of the task.
void PrintWindow::beginTask()
{
    const int row = m_task.firstPage.isEmpty() ? 0 : m_book->pageNamed(m_task.firstPage);
    if (row < 0) {
        refuse({PrintError::Kind::BadValue, tr("There is no pane called “%1”.").arg(m_task.firstPage)});
        return;
    }
    m_book->showPage(row);
    if (isDismissed()) // while a panel was waiting
        return;
    // After the page was shown, so that panels respond to the settings as to the user's changes.
    PrintError problem;
    if (m_task.prepare && !m_task.prepare(m_session.get(), &problem)) {
        refuse(problem);
        return;
    }
    m_presets->resync();
    m_book->refresh();
    m_book->showChanges();
    m_messages.check();
}

void PrintWindow::changePrinter(std::unique_ptr<DialogSession> session)
{
    m_session->save(); // pending changes of the current page
    const QString page = m_book->currentName();
    detachSession();
    const auto earlier = std::move(m_session);
    adopt(std::move(session));
    carryOver(*earlier, m_session.get());
    m_presets->resync();
    m_book->showPage(qMax(m_book->pageNamed(page), 0));
    m_messages.check();
}

void PrintWindow::adopt(std::unique_ptr<DialogSession> session)
{
    detachSession();
    m_session = std::move(session);
    connect(m_session.get(), &DialogSession::changed, this, &PrintWindow::sessionChanged);
    m_poller.setChosen(m_session->destination());
    showSession();
    // After the connection of the book, which shows the reason on its page before the sign paints the window.
    connect(m_session.get(), &DialogSession::blockingBegan, &m_wait, &PanelWait::begin);
    connect(m_session.get(), &DialogSession::blockingEnded, &m_wait, &PanelWait::end);
    showState(State::Choosing);
    if (focusWidget() == m_cancel) // the waiting page had moved the focus to Cancel
        m_book->list()->setFocus(Qt::OtherFocusReason);
    m_messages.showNotices();
}

void PrintWindow::showSession()
{
    m_presets->setSession(m_session.get());
    m_messages.setSession(m_session.get(), m_presets->history());
    m_book->setSession(m_session.get(), m_presets->history());
}

// Call before the session is destroyed: its panels own views in the pages.
void PrintWindow::detachSession()
{
    m_poller.clearChosen();
    m_book->clear();
    m_messages.clear();
    m_presets->setSession(nullptr);
}

// Reports that the task is impossible with this printer, and closes the session.
void PrintWindow::refuse(const PrintError &error)
{
    m_refusal = error;
    detachSession();
    m_session.reset();
    m_opener.refuseTask();
    showError(error);
}

void PrintWindow::pickPrinter(const QString &name)
{
    if (m_wait.isUnderWay()) {
        m_picker->setCurrent(m_session->destination());
        return;
    }
    if (m_session && name == m_session->destination().name()) {
        if (m_opener.isBusy()) {
            m_opener.drop();
            stayWithPrinter();
        }
        return;
    }
    m_print->setEnabled(false);
    m_opener.pick(name);
}

void PrintWindow::stayWithPrinter()
{
    m_picker->setCurrent(m_session->destination());
    showState(State::Choosing);
}

void PrintWindow::stopWaiting()
{
    if (m_jobs.stop())
        return;
    m_opener.drop();
    if (m_session)
        stayWithPrinter();
    else
        showError({PrintError::Kind::ServerAway, tr("The print server has not responded yet.")});
}

void PrintWindow::sessionChanged()
{
    m_presets->note();
    m_book->refresh();
    m_messages.showNotices();
}

void PrintWindow::allowPrinting()
{
    const bool can = canPrint(m_task, m_session.get());
    m_print->setEnabled(can && m_state == State::Choosing && !m_pdf->isBusy());
    m_print->setToolTip(can ? QString() : tr("There is no document or no printer to print it on"));
}

// Whether nothing else is in progress and all input is valid; if it is not, shows the field.
bool PrintWindow::isReady()
{
    return isSettled() && !isDismissed() && !m_jobs.isSending() && !m_pdf->isBusy() && m_book->checkTyped();
}

// Marks pending changes of the current page.
void PrintWindow::savePages()
{
    m_session->save();
    sessionChanged();
}

void PrintWindow::print()
{
    if (m_state != State::Choosing || m_opener.isBusy() || !m_print->isEnabled())
        return;
    if (m_wait.isUnderWay()) {
        m_wait.runAfterwards(tr("The document will be printed when the printer has responded."),
                             [this] { print(); });
        return;
    }
    if (!isReady())
        return;
    savePages();
    if (!m_messages.checkToPrint())
        deliver();
}

void PrintWindow::deliver()
{
    if (m_task.settingsOnly) {
        rememberUseLater(m_session->destination().name(), m_presets->rememberUse());
        accept();
        return;
    }
    const QStringList files = m_documents.included();
    m_jobs.send({m_documents.opened(),
                 files,
                 m_task.documentName,
                 {m_session->destination(), {}, m_task.title, m_session->jobOptions()},
                 settingsForCheck(*m_session),
                 m_presets->rememberUse()},
                m_task.namesOf(files));
}

void PrintWindow::showError(const PrintError &error)
{
    if (m_session) {
        m_queue.tell(MessageQueue::Subject::Outcome, {StatusGlyph::Kind::Error, error.message, {}, {}});
        return;
    }
    m_unavailable->setReason(error.message);
    showState(State::Unavailable);
}

void PrintWindow::finishLater()
{
    m_picker->offerToAdd();
    m_poller.loadList();
    m_jobs.checkDocuments(m_task.files);
    QList<std::pair<QWidget *, QString>> explained{{m_picker, QStringLiteral("printer")},
                                                   {m_presets->button(), QStringLiteral("presets")},
                                                   {m_book->list(), QStringLiteral("pages")},
                                                   {m_cancel, QStringLiteral("cancel")}};
    if (!m_task.settingsOnly)
        explained.append({m_print, QStringLiteral("print")});
    m_layout.addGuide(m_guide->addButtons(explained));
    for (QWidget *note : m_book->addNotes())
        m_guide->addNote(note);
    m_layout.arrange();
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("kelmar-print"), QIcon::fromTheme(QStringLiteral("printer"))));
}

void PrintWindow::showEvent(QShowEvent *event)
{
    m_layout.fit();
    QDialog::showEvent(event);
    if (!focusWidget())
        m_book->list()->setFocus();
}

void PrintWindow::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_layout.adapt();
}

// Escape leaves everything unchanged if a question is shown; otherwise it closes the dialog.
void PrintWindow::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Cancel) || !m_queue.dismiss())
        QDialog::keyPressEvent(event);
}

void PrintWindow::done(int result)
{
    m_wait.dismiss();
    QDialog::done(result);
}

// Escape and Cancel cancel a submission and keep the dialog open. When pressed again, they close the dialog.
void PrintWindow::reject()
{
    if (m_jobs.isCancelled())
        close();
    else if (m_jobs.isSending())
        stopWaiting();
    else
        QDialog::reject();
}

// Closes the dialog at once. A job that is being sent is canceled; done() follows when that has ended.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    if (m_jobs.leave())
        QDialog::closeEvent(event);
    else
        event->accept();
}

} // namespace host
