// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"

#include "host/printing/file_name.h"
#include "host/printing/held_signals.h"
#include "host/session/carry_over.h"
#include "host/window/access_keys.h"
#include "host/window/dialog_button.h"
#include "host/window/focus_ring.h"
#include "host/window/foreign_text.h"
#include "host/window/message_bar.h"
#include "host/window/page_book.h"
#include "host/window/printer_picker.h"
#include "host/window/result_page.h"
#include "host/window/startup_clock.h"
#include "host/window/unavailable_page.h"
#include "platform/key_value_object.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QShortcut>
#include <QTimer>

#include <algorithm>

namespace host {

namespace {

constexpr int applyProposal = 0; // an answer about a conflict; any other keeps it
constexpr int usualLines = 34;   // that the window is high where there is room for it

// "“one.pdf”, “two.pdf”"; empty for the standard input.
QString namesOf(const QStringList &files)
{
    QStringList names;
    for (const QString &file : files) {
        if (file != QLatin1String("-"))
            names.append(PrintWindow::tr("“%1”").arg(oneLine(readableFileName(QFileInfo(file).fileName()))));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

PrintWindow::PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task)
    : m_system(system), m_extensions(extensions), m_task(std::move(task)), m_picker(new PrinterPicker(this)),
      m_bar(new MessageBar(this)), m_book(new PageBook(this)), m_unavailable(new UnavailablePage(this)),
      m_result(new ResultPage(this)), m_status(new QLabel(this)),
      m_cancel(new DialogButton(tr("Cancel"), this)), m_print(new DialogButton(tr("&Print"), this)),
      m_keys(new AccessKeys(this,
                            {m_print, m_picker, m_cancel, m_book->pages(), m_unavailable, m_result, m_bar}))
{
    const QString documents = namesOf(m_task.files);
    setWindowTitle(documents.isEmpty() ? tr("Print") : tr("Print %1").arg(documents));
    new FocusRing(this);
    if (!m_task.acceptLabel.isEmpty())
        m_print->setText(m_task.acceptLabel);
    build();
    connectAll();
    showState(State::Unavailable);
    resize(720, qMax(600, usualLines * fontMetrics().height()));
}

PrintWindow::~PrintWindow()
{
    m_book->clear(); // before the session, whose panels own views in it
}

void PrintWindow::connectAll()
{
    connect(m_picker, &PrinterPicker::picked, this, &PrintWindow::pickPrinter);
    connect(m_book, &PageBook::left, this, &PrintWindow::showConflicts);
    connect(m_book, &PageBook::shown, this, &PrintWindow::arrange);
    connect(m_book, &PageBook::shown, this, &PrintWindow::showNotices);
    connect(m_bar, &MessageBar::buttonsChanged, this, &PrintWindow::arrange);
    connect(m_book, &PageBook::chosen, this, [this] {
        sessionChanged();
        showConflicts();
    });
    connect(m_bar, &MessageBar::answered, this, &PrintWindow::answer);
    connect(m_unavailable, &UnavailablePage::retryWanted, this, &PrintWindow::retry);
    connect(m_print, &QPushButton::clicked, this, &PrintWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, [this] { m_submission ? accept() : reject(); });
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_print, &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this), &QShortcut::activated, this,
            [this] { m_book->turn(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this), &QShortcut::activated, this,
            [this] { m_book->turn(-1); });
}

void PrintWindow::showState(State state)
{
    m_book->setVisible(state == State::Choosing);
    if (state != State::Choosing)
        m_bar->hide();
    m_unavailable->setVisible(state == State::Unavailable);
    m_result->setVisible(state == State::Done);
    m_picker->setEnabled(state != State::Done);
    m_print->setVisible(state != State::Done);
    if (state != State::Choosing)
        m_print->setEnabled(false);
    arrange();
}

bool PrintWindow::open(PrintError *error)
{
    PrintError problem;
    auto session = makeSession(m_task.printer, &problem);
    if (!session) {
        if (!m_task.ppdFile.isEmpty()) {
            *error = problem;
            return false;
        }
        showError(problem);
        return true;
    }
    adopt(std::move(session));
    const int row = m_task.firstPage.isEmpty() ? 0 : m_book->pageNamed(m_task.firstPage);
    if (row < 0) {
        *error = {PrintError::Kind::BadValue, tr("There is no pane called “%1”.").arg(m_task.firstPage)};
        return false;
    }
    m_book->showPage(row);
    // On the shown page, so that panels answer the settings as they answer the user's.
    if (m_task.prepare && !m_task.prepare(m_session.get(), error))
        return false;
    m_book->refresh();
    showNotices();
    showConflicts();
    return true;
}

std::optional<Destination> PrintWindow::firstDestination(PrintError *error)
{
    const QString remembered = RememberedPrinter().name();
    PrintError ignored;
    if (!remembered.isEmpty()) {
        if (auto destination = m_system.destination(remembered, &ignored))
            return destination;
        if (ignored.kind == PrintError::Kind::ServerAway) {
            *error = ignored;
            return std::nullopt;
        }
    }
    if (auto destination = m_system.destination(QString(), error))
        return destination;
    if (error->kind == PrintError::Kind::ServerAway)
        return std::nullopt;
    // No default has been set: the first one will do.
    const auto all = m_system.destinations(error);
    if (all && !all->isEmpty())
        return all->first();
    if (all)
        *error = {PrintError::Kind::NoPrinters, tr("No printer has been set up.")};
    return std::nullopt;
}

std::optional<OpenedPrinter> PrintWindow::openPrinterOfTask(const QString &printer, PrintError *error)
{
    if (!printer.isEmpty() || !m_task.ppdFile.isEmpty())
        return openPrinter(m_system, {printer, m_task.ppdFile}, error);
    const auto destination = firstDestination(error);
    return destination ? openPrinter(m_system, *destination, QString(), error) : std::nullopt;
}

// A queue whose PPD is broken still prints, with what every printer can be asked.
std::unique_ptr<DialogSession> PrintWindow::makeSession(const QString &printer, PrintError *error)
{
    auto opened = openPrinterOfTask(printer, error);
    if (!opened)
        return nullptr;
    auto session = std::make_unique<DialogSession>(opened->destination, std::move(opened->ppd));
    if (opened->ppdProblem)
        session->addNotice(opened->ppdProblem.message);
    session->loadPanels(m_extensions);
    if (m_task.begin && !m_session)
        m_task.begin(session.get());
    return session;
}

void PrintWindow::adopt(std::unique_ptr<DialogSession> session)
{
    m_book->clear();
    m_session = std::move(session);
    connect(m_session.get(), &DialogSession::changed, this, &PrintWindow::sessionChanged);
    connect(m_session.get(), &DialogSession::blockingBegan, this, &PrintWindow::showBusy);
    connect(m_session.get(), &DialogSession::blockingEnded, this, &PrintWindow::showIdle);
    const bool hasQueue = !m_session->destination().queue.isEmpty();
    if (hasQueue)
        m_picker->setCurrent(m_session->destination());
    else
        m_picker->setFixedText(m_session->destination().displayName());
    showSession();
    showState(State::Choosing);
    m_print->setEnabled(hasQueue && (m_task.settingsOnly || !m_task.files.isEmpty()));
    m_print->setToolTip(m_print->isEnabled() ? QString()
                                             : tr("There is no document or no printer to print it on"));
    showNotices();
}

void PrintWindow::showSession()
{
    for (int i = 0; i < m_session->panelCount(); ++i)
        connect(m_session->panel(i)->keyValueObject(), &platform::KeyValueObject::valueDidChange, this,
                &PrintWindow::recheckLater);
    m_book->setSession(m_session.get());
}

void PrintWindow::sessionChanged()
{
    m_book->refresh();
    showNotices();
}

void PrintWindow::showNotices()
{
    const QStringList fresh = m_session->takeNotices();
    m_notices += fresh;
    const bool known = fresh.isEmpty() && m_bar->isShowing();
    if (m_notices.isEmpty() || m_askingConflict || known)
        return;
    m_bar->showMessage(MessageBar::Kind::Notice, tr("Please note"), m_notices);
}

bool PrintWindow::showConflicts()
{
    const QList<Conflict> conflicts = m_session->conflicts();
    if (conflicts.isEmpty()) {
        if (std::exchange(m_askingConflict, false)) {
            m_bar->hide();
            showNotices();
        }
        return showProtectionGap();
    }
    QStringList lines;
    for (const Conflict &conflict : conflicts) {
        QStringList sides;
        for (const OptionChoice &side : conflict.sides)
            sides.append(side.text());
        lines.append(QStringLiteral("•  ") + sides.join(QStringLiteral("  –  ")));
    }
    QString givenUp;
    m_proposal = m_session->proposal(&givenUp);
    if (!givenUp.isNull())
        lines.append(
            tr("No way out was found that keeps “%1”: change one of the settings yourself.").arg(givenUp));
    QStringList answers;
    if (m_proposal) {
        QStringList changes;
        for (const OptionChoice &change : *m_proposal)
            changes.append(change.text());
        lines.append(tr("Suggestion: %1").arg(changes.join(QStringLiteral(", "))));
        answers.append(tr("App&ly Suggestion"));
    }
    answers.append(tr("Keep and Re&view"));
    const bool known = std::exchange(m_askingConflict, true) && m_bar->isShowing() &&
                       m_bar->text().endsWith(lines.join(QLatin1Char('\n')));
    if (known) // not read out again
        return true;
    m_bar->showMessage(MessageBar::Kind::Question, tr("These settings cannot be used together"), lines,
                       answers);
    return true;
}

// Tells each gap once; true when it has. Who prints is held up by it that once.
bool PrintWindow::showProtectionGap()
{
    const QString gap = m_session->protectionGap();
    if (std::exchange(m_toldGap, gap) == gap || gap.isNull())
        return false;
    m_session->addNotice(gap);
    showNotices();
    return true;
}

// What a panel has changed is marked when it is saved; until then nobody knows whether a conflict that the
// user is asked about has gone.
void PrintWindow::recheckLater()
{
    if (!m_askingConflict || std::exchange(m_recheckQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_askingConflict && m_session) {
                m_session->save();
                sessionChanged();
                showConflicts();
            }
            m_recheckQueued = false;
        },
        Qt::QueuedConnection);
}

void PrintWindow::answer(int index)
{
    const bool accepted = std::exchange(m_askingConflict, false) && m_proposal && index == applyProposal;
    if (m_bar->kind() == MessageBar::Kind::Notice)
        m_notices.clear();
    if (accepted) {
        m_session->apply(*m_proposal);
        showConflicts();
    }
    if (m_session)
        showNotices();
}

void PrintWindow::pickPrinter(const QString &name)
{
    if (!m_session) { // the settings of the task are still to be made
        m_task.printer = name;
        reopen();
        return;
    }
    PrintError error;
    auto session = makeSession(name, &error);
    if (!session) {
        showError(error);
        m_picker->setCurrent(m_session->destination());
        return;
    }
    m_bar->hide();
    m_askingConflict = false;
    m_notices.clear();
    m_toldGap.clear();
    m_session->save(); // what the page that is shown has pending
    const QString page = m_book->currentName();
    m_book->clear(); // before the session, whose panels own views in it
    const auto earlier = std::move(m_session);
    adopt(std::move(session));
    carryOver(*earlier, m_session.get());
    m_book->showPage(std::max(m_book->pageNamed(page), 0));
    showNotices();
    showConflicts();
}

void PrintWindow::loadPrinterList()
{
    if (m_session && m_session->destination().queue.isEmpty())
        return;
    PrintError error;
    if (const auto printers = m_system.destinations(&error))
        m_picker->setPrinters(*printers);
}

void PrintWindow::finishLater()
{
    loadPrinterList();
    checkDocuments();
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("kelmar-print"), QIcon::fromTheme(QStringLiteral("printer"))));
}

void PrintWindow::checkDocuments()
{
    for (const QString &path : m_task.files) {
        PrintError error;
        if (path == QLatin1String("-") || isStream(path) || !m_session || openDocument(path, &error))
            continue;
        if (m_askingConflict)
            m_notices.append(error.message);
        else
            showError(error);
        return;
    }
}

// A printer that cannot do what the task asks for is not offered without it.
void PrintWindow::reopen()
{
    PrintError error;
    if (open(&error))
        return;
    m_book->clear();
    m_session.reset();
    m_notices.clear();
    showError(error);
}

void PrintWindow::retry()
{
    reopen();
    loadPrinterList();
}

void PrintWindow::showError(const PrintError &error)
{
    m_askingConflict = false;
    if (m_session) {
        m_bar->showMessage(MessageBar::Kind::Error, error.message, {});
        return;
    }
    m_unavailable->setReason(error.message);
    showState(State::Unavailable);
}

void PrintWindow::showBusy(const QString &what)
{
    if (++m_busyDepth == 1)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    m_status->setText(what);
    if (isVisible())
        repaint(); // the next thing blocks
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
    QApplication::restoreOverrideCursor();
    m_status->clear();
}

void PrintWindow::print()
{
    if (m_submission || !m_print->isEnabled())
        return;
    if (!m_book->checkTyped())
        return;
    m_session->save();
    sessionChanged();
    if (showConflicts()) {
        m_bar->takeFocus();
        return;
    }
    if (m_task.settingsOnly) {
        RememberedPrinter().setName(m_session->destination().name());
        accept();
        return;
    }
    PrintError error;
    if (!m_documents.open(m_task.files, nullptr, &error)) {
        showError(error);
        return;
    }
    showBusy(tr("Sending the document to the print server…"));
    const QString title = m_task.title.isEmpty() ? m_documents.title() : m_task.title;
    const HeldSignals held;
    QList<Document> documents = m_documents.documents();
    if (!m_task.documentName.isEmpty())
        documents.first().name = m_task.documentName;
    const Submission submission =
        m_system.submit({m_session->destination(), documents, title, m_session->jobOptions()}, {});
    showIdle();
    if (submission.outcome == Submission::Outcome::Rejected) {
        showError(submission.error);
        return;
    }
    m_submission = submission;
    RememberedPrinter().setName(m_session->destination().name());
    showResult();
}

void PrintWindow::showResult()
{
    const Destination destination = m_session->destination();
    m_result->showSubmission(
        destination.displayName(), namesOf(m_task.files), *m_submission,
        [this, destination] { return m_system.jobStatus(destination, m_submission->job.id); });
    showState(State::Done);
    m_cancel->setText(tr("&Close"));
    m_cancel->setDefault(true);
    m_cancel->ignoreMouseFor(std::chrono::milliseconds(QApplication::doubleClickInterval()));
    m_cancel->setAccessibleDescription(m_result->text());
    m_cancel->setFocus();
}

} // namespace host
