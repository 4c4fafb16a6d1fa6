// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"

#include "host/printing/file_name.h"
#include "host/session/session_history.h"
#include "host/window/guide/finder.h"
#include "host/window/guide/guide_buttons.h"
#include "host/window/guide/help_desk.h"
#include "host/window/jobs/result_page.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"
#include "host/window/look/focus_ring.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/text_direction.h"
#include "host/window/messages/greyed_choices.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/presets/settings_control.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/unavailable_page.h"
#include "host/window/waiting/wait_sign.h"
#include "host/window/waiting/waiting_page.h"
#include "platform/key_value_object.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QShortcut>

namespace host {

namespace {

constexpr int usualLines = 34; // that the window is high where there is room for it

} // namespace

PrintWindow::PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task)
    : m_system(system), m_extensions(extensions), m_task(std::move(task)),
      m_documentChoice(m_task.settingsOnly ? QStringList() : m_task.files),
      m_opener(
          system, [this] { return m_wait.isUnderWay(); }, this),
      m_picker(new PrinterPicker(this)), m_news(system, m_picker), m_settings(new SettingsControl(this)),
      m_bar(new MessageBar(this)),
      m_messages(m_bar, m_task.settingsOnly, [this] { return m_wait.isUnderWay(); }),
      m_book(new PageBook(this)), m_unavailable(new UnavailablePage(this)), m_result(new ResultPage(this)),
      m_cancel(new DialogButton(tr("Cancel"), this)), m_print(new DialogButton(tr("&Print"), this)),
      m_wait(this, m_cancel), m_waiting(new WaitingPage(this)), m_jobs(system, m_waiting, m_result, this),
      m_finder(new Finder(m_book)), m_greyed(new GreyedChoices(m_bar, this)), m_help(new HelpDesk(m_book)),
      m_layout(this, {m_picker,
                      m_book,
                      {m_unavailable, m_waiting, m_result},
                      m_bar,
                      {m_wait.sign(), m_cancel, m_print},
                      m_finder})
{
    if (m_task.settingsOnly)
        m_documentChoice.setTitle(m_task.title);
    const QString documents = documentNames();
    setWindowTitle(documents.isEmpty() ? tr("Print") : tr("Print %1").arg(documents));
    new FocusRing(this);
    if (!m_task.acceptLabel.isEmpty())
        m_print->setText(m_task.acceptLabel);
    m_picker->addBeside(m_settings->button());
    m_print->setDefault(true);
    m_book->setDocuments(&m_documentChoice);
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
    m_news.forgetChosen();
    m_book->clear();
    m_messages.clear();
    m_settings->setSession(nullptr);
    m_greyed->setSession(nullptr);
}

void PrintWindow::connectAll()
{
    connect(m_picker, &PrinterPicker::picked, this, &PrintWindow::pickPrinter);
    connect(m_book, &PageBook::left, m_settings, &SettingsControl::note);
    connect(m_book, &PageBook::left, &m_messages, [this] { m_messages.check(); });
    connect(m_book, &PageBook::shown, m_settings, &SettingsControl::absorb);
    connect(m_book, &PageBook::shown, &m_layout, &WindowLayout::arrange);
    connect(m_book, &PageBook::grown, this, [this] { keepLabelsAligned(this); });
    connect(m_book, &PageBook::shown, &m_messages, &SessionMessages::showNotices);
    connect(m_bar, &MessageBar::buttonsChanged, &m_layout, &WindowLayout::arrange);
    connect(m_book, &PageBook::chosen, this, [this] {
        sessionChanged();
        m_messages.check();
    });
    connect(m_book, &PageBook::savePdfWanted, this, &PrintWindow::savePdf);
    connect(m_settings, &SettingsControl::changed, m_book, &PageBook::showChanges);
    connect(m_settings, &SettingsControl::applied, this, [this] {
        m_news.setChosen(m_session->destination());
        sessionChanged();
        m_messages.check();
    });
    connect(m_settings, &SettingsControl::presetsChanged, this, [this] {
        m_news.setChosen(m_session->destination());
        m_news.loadList();
    });
    connect(m_settings, &SettingsControl::failed, this, &PrintWindow::showError);
    connect(m_bar, &MessageBar::answered, this, &PrintWindow::answer);
    connect(m_finder, &Finder::partsChanged, &m_layout, &WindowLayout::arrange);
    connect(m_help, &HelpDesk::shown, &m_layout, &WindowLayout::arrange);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_finder, &Finder::open);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_help,
            &HelpDesk::toggle);
    connect(m_unavailable, &UnavailablePage::retryWanted, this, &PrintWindow::retry);
    connect(m_waiting, &WaitingPage::cancelled, this, &PrintWindow::stopWaiting);
    connect(&m_wait, &PanelWait::panelReturned, this, &PrintWindow::goOn);
    connect(m_print, &QPushButton::clicked, this, &PrintWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_wait.giveUp();
        submission() ? accept() : reject();
    });
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_print, &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this), &QShortcut::activated, this,
            [this] { turn(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this), &QShortcut::activated, this,
            [this] { turn(-1); });
    connect(&m_messages, &SessionMessages::saved, this, &PrintWindow::sessionChanged);
    connect(&m_messages, &SessionMessages::printWanted, this, &PrintWindow::deliver);
    connectOpener();
    connectJob();
}

void PrintWindow::turn(int steps)
{
    if (m_state == State::Choosing && !m_wait.isUnderWay())
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
    m_news.follow(state == State::Choosing || (state == State::Done && !submission()->job.status.isFinal()));
    m_print->setVisible(state != State::Done);
    if (state != State::Choosing)
        m_print->setEnabled(false);
    m_layout.arrange();
    showSaving();
}

void PrintWindow::adopt(std::unique_ptr<DialogSession> session)
{
    letGo();
    m_session = std::move(session);
    connect(m_session.get(), &DialogSession::changed, this, &PrintWindow::sessionChanged);
    connect(m_session.get(), &DialogSession::blockingBegan, &m_wait, &PanelWait::begin);
    connect(m_session.get(), &DialogSession::blockingEnded, &m_wait, &PanelWait::end);
    m_news.setChosen(m_session->destination());
    showSession();
    showState(State::Choosing);
    if (focusWidget() == m_cancel) // where it went while there was nothing else
        m_book->list()->setFocus(Qt::OtherFocusReason);
    allowPrinting();
    m_messages.showNotices();
}

void PrintWindow::allowPrinting()
{
    const bool hasQueue = !m_session->destination().queue.isEmpty();
    const bool canPrint = hasQueue && (m_task.settingsOnly || !m_task.files.isEmpty());
    m_print->setEnabled(canPrint && !isSaving());
    m_print->setToolTip(canPrint ? QString() : tr("There is no document or no printer to print it on"));
}

void PrintWindow::showSession()
{
    for (int i = 0; i < m_session->panelCount(); ++i)
        connect(m_session->panel(i)->keyValueObject(), &platform::KeyValueObject::valueDidChange, &m_messages,
                &SessionMessages::checkLater);
    m_settings->setSession(m_session.get());
    m_greyed->setSession(m_session.get());
    m_messages.setSession(m_session.get(), m_settings->history());
    m_book->setSession(m_session.get(), m_settings->history());
}

void PrintWindow::sessionChanged()
{
    m_settings->note();
    m_book->refresh();
    m_messages.showNotices();
}

void PrintWindow::answer(int index)
{
    if (m_wait.isUnderWay() || isOpening()) { // assistive technology presses past what keeps input away
        m_messages.checkWhenIdle();
        return;
    }
    if (m_session)
        m_settings->history()->endGesture();
    if (!m_greyed->answer(index)) {
        m_messages.answer(index);
        return;
    }
    m_settings->history()->endGesture(); // a greyed choice and what it takes are one step
    sessionChanged();
    m_messages.check();
}

// What nobody needs before the window can be seen: ways to help, and what its parts say of themselves.
void PrintWindow::showGuide()
{
    if (m_guide)
        return;
    m_guide = new GuideButtons(this);
    connect(m_guide, &GuideButtons::findWanted, m_finder, &Finder::open);
    connect(m_guide, &GuideButtons::helpWanted, m_help, &HelpDesk::toggle);
    // Its place is then taken by what is waited for.
    connect(&m_wait, &PanelWait::noticed, m_guide, &QWidget::hide);
    connect(&m_wait, &PanelWait::ended, m_guide, [this] {
        m_guide->setVisible(m_state == State::Choosing && !isSaving());
        showSaving();
    });
    m_layout.addGuide(m_guide);
    m_guide->setVisible(m_state == State::Choosing && !m_wait.isUnderWay());
    for (const auto &[part, setting] : std::initializer_list<std::pair<QWidget *, QString>>{
             {m_picker, QStringLiteral("printer")},
             {m_settings->button(), QStringLiteral("presets")},
             {m_book->list(), QStringLiteral("pages")},
             {m_cancel, QStringLiteral("cancel")}})
        part->setWhatsThis(explanationOf(setting));
    if (!m_task.settingsOnly)
        m_print->setWhatsThis(explanationOf(QStringLiteral("print")));
    m_layout.arrange();
}

void PrintWindow::finishLater()
{
    m_news.loadList();
    checkDocuments();
    m_book->beginPreview();
    showGuide();
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
    m_messages.showProblem(error);
}

void PrintWindow::showError(const PrintError &error)
{
    if (m_session) {
        m_messages.showError(error);
        return;
    }
    m_unavailable->setReason(error.message);
    showState(State::Unavailable);
}

} // namespace host
