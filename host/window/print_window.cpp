// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"

#include "host/printing/file_name.h"
#include "host/session/session_history.h"
#include "host/window/access_keys.h"
#include "host/window/dialog_button.h"
#include "host/window/dialog_waiter.h"
#include "host/window/finder.h"
#include "host/window/focus_ring.h"
#include "host/window/foreign_text.h"
#include "host/window/greyed_choices.h"
#include "host/window/guide_buttons.h"
#include "host/window/help_desk.h"
#include "host/window/message_bar.h"
#include "host/window/page_book.h"
#include "host/window/page_list.h"
#include "host/window/printer_picker.h"
#include "host/window/result_page.h"
#include "host/window/settings_control.h"
#include "host/window/text_direction.h"
#include "host/window/unavailable_page.h"
#include "host/window/wait_sign.h"
#include "host/window/waiting_page.h"
#include "platform/key_value_object.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QShortcut>

namespace host {

namespace {

constexpr int applyProposal = 0; // an answer about a conflict; any other keeps it
constexpr int usualLines = 34;   // that the window is high where there is room for it
constexpr std::chrono::seconds betweenStates(5);

} // namespace

PrintWindow::PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task)
    : m_system(system), m_extensions(extensions), m_task(std::move(task)),
      m_documentChoice(m_task.settingsOnly ? QStringList() : m_task.files),
      m_opener(
          system, [this] { return m_busyDepth > 0; }, this),
      m_sender(system, this), m_job(system, this), m_picker(new PrinterPicker(this)),
      m_settings(new SettingsControl(this)), m_bar(new MessageBar(this)), m_book(new PageBook(this)),
      m_unavailable(new UnavailablePage(this)), m_result(new ResultPage(this)),
      m_cancel(new DialogButton(tr("Cancel"), this)), m_print(new DialogButton(tr("&Print"), this)),
      m_waitSign(new WaitSign(this)), m_waiting(new WaitingPage(this)),
      m_keys(new AccessKeys(this, {m_print, m_picker, m_cancel, m_waitSign, m_book->pages(), m_unavailable,
                                   m_waiting, m_result, m_bar})),
      m_waiter(std::make_shared<DialogWaiter>(this)), m_waiterScope(m_waiter), m_finder(new Finder(this)),
      m_greyed(new GreyedChoices(this)), m_help(new HelpDesk(this))
{
    const QString documents = documentNames();
    setWindowTitle(documents.isEmpty() ? tr("Print") : tr("Print %1").arg(documents));
    new FocusRing(this);
    if (!m_task.acceptLabel.isEmpty())
        m_print->setText(m_task.acceptLabel);
    m_book->setDocuments(&m_documentChoice);
    build();
    connectAll();
    showState(State::Unavailable);
    resize(720, qMax(600, usualLines * fontMetrics().height()));
}

QString PrintWindow::documentNames() const
{
    QStringList names;
    if (!m_task.files.isEmpty() && !m_task.documentName.isEmpty())
        return tr("“%1”").arg(oneLine(m_task.documentName));
    for (const QString &file : m_documentChoice.included()) {
        if (file != QLatin1String("-"))
            names.append(tr("“%1”").arg(oneLine(readableFileName(QFileInfo(file).fileName()))));
    }
    return names.join(QStringLiteral(", "));
}

PrintWindow::~PrintWindow()
{
    letGo();
}

// Of the session, whose panels own views in the pages, before it goes.
void PrintWindow::letGo()
{
    m_stateQuestion.drop();
    m_book->clear();
    m_settings->setSession(nullptr);
}

void PrintWindow::connectAll()
{
    connect(m_picker, &PrinterPicker::picked, this, &PrintWindow::pickPrinter);
    connect(m_book, &PageBook::left, m_settings, &SettingsControl::note);
    connect(m_picker, &PrinterPicker::opened, this, &PrintWindow::searchNetwork);
    connect(m_book, &PageBook::left, this, [this] { showConflicts(); });
    connect(m_book, &PageBook::shown, m_settings, &SettingsControl::absorb);
    connect(m_book, &PageBook::shown, this, &PrintWindow::arrange);
    connect(m_book, &PageBook::grown, this, [this] { keepLabelsAligned(this); });
    connect(m_book, &PageBook::shown, this, &PrintWindow::showNotices);
    connect(m_bar, &MessageBar::buttonsChanged, this, &PrintWindow::arrange);
    connect(m_book, &PageBook::chosen, this, [this] {
        sessionChanged();
        showConflicts();
    });
    connect(m_book, &PageBook::savePdfWanted, this, &PrintWindow::savePdf);
    connect(m_settings, &SettingsControl::changed, m_book, &PageBook::showChanges);
    connect(m_settings, &SettingsControl::applied, this, [this] {
        showDestination();
        sessionChanged();
        showConflicts();
    });
    connect(m_settings, &SettingsControl::presetsChanged, this, [this] {
        showDestination();
        loadPrinterList();
    });
    connect(m_settings, &SettingsControl::failed, this, &PrintWindow::showError);
    connect(m_bar, &MessageBar::answered, this, &PrintWindow::answer);
    connect(m_finder, &Finder::partsChanged, this, &PrintWindow::arrange);
    connect(m_help, &HelpDesk::shown, this, &PrintWindow::arrange);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_finder, &Finder::open);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_help,
            &HelpDesk::toggle);
    connect(m_unavailable, &UnavailablePage::retryWanted, this, &PrintWindow::retry);
    connect(m_waiting, &WaitingPage::cancelled, this, &PrintWindow::stopWaiting);
    connect(m_waitSign, &WaitSign::stopped, m_waiter.get(), &DialogWaiter::giveUp);
    connect(m_waiter.get(), &DialogWaiter::waitingNoticed, m_waitSign, &WaitSign::offerStop);
    connect(&m_stateTimer, &QTimer::timeout, this, &PrintWindow::askState);
    connect(m_print, &QPushButton::clicked, this, &PrintWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_waiter->giveUp();
        submission() ? accept() : reject();
    });
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_print, &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this), &QShortcut::activated, this,
            [this] { turn(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this), &QShortcut::activated, this,
            [this] { turn(-1); });
    connectOpener();
    connectJob();
}

void PrintWindow::turn(int steps)
{
    if (m_state == State::Choosing && m_busyDepth == 0)
        m_book->turn(steps);
}

void PrintWindow::showState(State state)
{
    m_state = state;
    m_book->setVisible(state == State::Choosing);
    if (state != State::Choosing)
        m_bar->hide();
    m_unavailable->setVisible(state == State::Unavailable);
    m_waiting->setVisible(state == State::Waiting || state == State::Sending);
    m_result->setVisible(state == State::Done);
    m_picker->setEnabled(state != State::Done && state != State::Sending);
    m_settings->setActive(state == State::Choosing);
    if (m_guide)
        m_guide->setVisible(state == State::Choosing && !isSaving());
    if (state == State::Choosing || state == State::Done)
        m_stateTimer.start(betweenStates);
    else
        m_stateTimer.stop();
    m_print->setVisible(state != State::Done);
    if (state != State::Choosing)
        m_print->setEnabled(false);
    arrange();
}

void PrintWindow::adopt(std::unique_ptr<DialogSession> session)
{
    letGo();
    m_session = std::move(session);
    connect(m_session.get(), &DialogSession::changed, this, &PrintWindow::sessionChanged);
    connect(m_session.get(), &DialogSession::blockingBegan, this, &PrintWindow::showBusy);
    connect(m_session.get(), &DialogSession::blockingEnded, this, &PrintWindow::showIdle);
    showDestination();
    showSession();
    showState(State::Choosing);
    if (focusWidget() == m_cancel) // where it went while there was nothing else
        m_book->list()->setFocus(Qt::OtherFocusReason);
    allowPrinting();
    showNotices();
}

void PrintWindow::showDestination()
{
    if (m_session->destination().queue.isEmpty())
        m_picker->setFixedText(m_session->destination().displayName());
    else
        m_picker->setCurrent(m_session->destination());
}

void PrintWindow::allowPrinting()
{
    const bool hasQueue = !m_session->destination().queue.isEmpty();
    m_print->setEnabled(hasQueue && (m_task.settingsOnly || !m_task.files.isEmpty()));
    m_print->setToolTip(m_print->isEnabled() ? QString()
                                             : tr("There is no document or no printer to print it on"));
}

void PrintWindow::showSession()
{
    for (int i = 0; i < m_session->panelCount(); ++i)
        connect(m_session->panel(i)->keyValueObject(), &platform::KeyValueObject::valueDidChange, this,
                &PrintWindow::recheckLater);
    m_settings->setSession(m_session.get());
    m_book->setSession(m_session.get(), m_settings->history());
}

void PrintWindow::sessionChanged()
{
    m_settings->note();
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

bool PrintWindow::showConflicts(bool toPrint)
{
    const QList<Conflict> conflicts = m_session->conflicts();
    const bool couldPrint = std::exchange(m_printAnyway, -1) >= 0;
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
    if (toPrint || couldPrint) {
        for (const QString &protection : protectionAtRisk(conflicts, m_session->protection()))
            lines.append(
                tr("“%1” protects your document. If you print anyway, the printer may print without it.")
                    .arg(protection));
        m_printAnyway = static_cast<int>(answers.size());
        answers.append(m_task.settingsOnly ? tr("Use An&yway") : tr("Print An&yway"));
    }
    answers.append(tr("Keep and Re&view"));
    const bool known = std::exchange(m_askingConflict, true) && m_bar->isShowing() &&
                       m_bar->buttons().size() == answers.size() &&
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
            m_recheckQueued = false;
            recheck();
        },
        Qt::QueuedConnection);
}

void PrintWindow::recheck()
{
    m_recheckDue = m_busyDepth > 0; // a panel that is only half restored must not be saved
    if (m_recheckDue || !m_askingConflict || !m_session)
        return;
    m_session->save();
    sessionChanged();
    showConflicts();
}

void PrintWindow::answer(int index)
{
    if (m_busyDepth > 0 || isOpening()) { // assistive technology presses past what keeps input away
        m_recheckDue = m_askingConflict;
        return;
    }
    if (m_session)
        m_settings->history()->endGesture();
    if (m_greyed->answer(index)) {
        m_settings->history()->endGesture(); // a greyed choice and what it takes are one step
        sessionChanged();
        showConflicts();
        return;
    }
    const bool wasConflict = std::exchange(m_askingConflict, false);
    const bool printsAnyway = std::exchange(m_printAnyway, -1) == index && index >= 0 && wasConflict;
    const bool accepted = wasConflict && m_proposal && index == applyProposal && !printsAnyway;
    if (m_bar->kind() == MessageBar::Kind::Notice)
        m_notices.clear();
    if (accepted) {
        m_settings->history()->endGesture();
        m_session->apply(*m_proposal);
        m_settings->history()->endGesture();
        showConflicts();
    }
    if (m_session)
        showNotices();
    if (printsAnyway && !showProtectionGap())
        deliver();
}

void PrintWindow::finishLater()
{
    loadPrinterList();
    checkDocuments();
    m_book->beginPreview();
    showGuide();
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("kelmar-print"), QIcon::fromTheme(QStringLiteral("printer"))));
}

void PrintWindow::checkDocuments()
{
    m_checking.start(
        this,
        [files = m_task.files] {
            PrintError error;
            for (const QString &path : files) {
                if (path != QLatin1String("-") && !isStream(path) && !openDocument(path, &error))
                    break;
            }
            return error;
        },
        [this](const PrintError &error) {
            m_documentProblem = error;
            showDocumentProblem();
        });
}

void PrintWindow::showDocumentProblem()
{
    if (!m_session || m_state != State::Choosing || !m_documentProblem)
        return;
    const PrintError error = std::exchange(m_documentProblem, {});
    if (m_askingConflict)
        m_notices.append(error.message);
    else
        showError(error);
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

} // namespace host
