// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"

#include "host/window/general_page.h"
#include "host/window/message_bar.h"
#include "host/window/more_page.h"
#include "host/window/page_frame.h"
#include "host/window/page_list.h"
#include "host/window/printer_picker.h"
#include "host/window/result_page.h"
#include "host/window/summary_page.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTemporaryFile>
#include <QVBoxLayout>

namespace host {

namespace {

const QString generalName = QStringLiteral("general");
const QString moreName = QStringLiteral("more");
const QString summaryName = QStringLiteral("summary");

constexpr int ApplyProposal = 0; // answers about a conflict; any other keeps it

QFrame *separator(QFrame::Shape shape, QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Midlight);
    line->setFixedSize(shape == QFrame::HLine ? QSize(QWIDGETSIZE_MAX, 1) : QSize(1, QWIDGETSIZE_MAX));
    line->setSizePolicy(shape == QFrame::HLine ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                        shape == QFrame::HLine ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    line->setMinimumSize(1, 1);
    return line;
}

} // namespace

PrintWindow::PrintWindow(PrintSystem &system, Extensions &extensions, PrintTask task)
    : m_system(system), m_extensions(extensions), m_task(std::move(task)), m_picker(new PrinterPicker(this)),
      m_list(new PageList(this)), m_bar(new MessageBar(this)), m_stack(new QStackedWidget(this)),
      m_body(new QWidget(this)), m_result(new ResultPage(this)), m_status(new QLabel(this)),
      m_cancel(new QPushButton(tr("Cancel"), this)), m_print(new QPushButton(tr("&Print"), this))
{
    const QString document = m_task.files.isEmpty() ? QString() : QFileInfo(m_task.files.first()).fileName();
    setWindowTitle(document.isEmpty() || document == QLatin1String("-") ? tr("Print")
                                                                        : tr("Print “%1”").arg(document));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    buildHeader(column);
    buildBody(column);
    buildFooter(column);
    m_result->hide();
    resize(800, 600);

    connect(m_picker, &PrinterPicker::picked, this, &PrintWindow::pickPrinter);
    connect(m_list, &QListWidget::currentRowChanged, this, &PrintWindow::showPage);
    connect(m_bar, &MessageBar::answered, this, &PrintWindow::answer);
    connect(m_print, &QPushButton::clicked, this, &PrintWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_print, &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this), &QShortcut::activated, this,
            [this] { m_list->setCurrentRow(qMin(m_list->currentRow() + 1, m_list->count() - 1)); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this), &QShortcut::activated, this,
            [this] { m_list->setCurrentRow(qMax(m_list->currentRow() - 1, 0)); });
}

PrintWindow::~PrintWindow()
{
    dropPages(); // panels own their views
}

void PrintWindow::buildHeader(QVBoxLayout *column)
{
    m_picker->setContentsMargins(20, 16, 20, 12);
    column->addWidget(m_picker);
    column->addWidget(separator(QFrame::HLine, this));
}

void PrintWindow::buildBody(QVBoxLayout *column)
{
    auto *messages = new QVBoxLayout;
    messages->setContentsMargins(16, 10, 16, 0);
    messages->addWidget(m_bar);
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addLayout(messages);
    right->addWidget(m_stack, 1);
    auto *row = new QHBoxLayout(m_body);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_list);
    row->addWidget(separator(QFrame::VLine, this));
    row->addLayout(right, 1);
    column->addWidget(m_body, 1);
    column->addWidget(m_result, 1);
    column->addWidget(separator(QFrame::HLine, this));
}

void PrintWindow::buildFooter(QVBoxLayout *column)
{
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_print->setDefault(true);
    m_cancel->setAutoDefault(false);
    for (QPushButton *button : {m_cancel, m_print})
        button->setMinimumWidth(96);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(20, 12, 20, 14);
    row->setSpacing(10);
    row->addWidget(m_status, 1);
    row->addWidget(m_cancel);
    row->addWidget(m_print);
    column->addLayout(row);
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
    if (m_task.prepare && !m_task.prepare(session.get(), error))
        return false;
    adopt(std::move(session));
    if (!m_task.firstPage.isEmpty()) {
        const int row = pageNamed(m_task.firstPage);
        if (row < 0) {
            *error = {PrintError::Kind::BadValue, tr("There is no pane called “%1”.").arg(m_task.firstPage)};
            return false;
        }
        m_list->setCurrentRow(row);
    }
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

std::unique_ptr<DialogSession> PrintWindow::makeSession(const QString &printer, PrintError *error)
{
    if (printer.isEmpty() && !m_task.ppdFile.isEmpty()) {
        Destination nowhere;
        nowhere.info = QFileInfo(m_task.ppdFile).fileName();
        return sessionFor(nowhere, error);
    }
    const auto destination =
        printer.isEmpty() ? firstDestination(error) : m_system.destination(printer, error);
    return destination ? sessionFor(*destination, error) : nullptr;
}

std::unique_ptr<DialogSession> PrintWindow::sessionFor(const Destination &destination, PrintError *error)
{
    PrintError problem;
    const bool fromFile = !m_task.ppdFile.isEmpty();
    auto ppd = fromFile ? PpdDocument::open(m_task.ppdFile, &problem) : m_system.ppd(destination, &problem);
    // A queue whose PPD is broken still prints, with what every printer can be asked.
    if (!ppd && problem && (fromFile || problem.kind != PrintError::Kind::BrokenPpd)) {
        *error = problem;
        return nullptr;
    }
    auto session = std::make_unique<DialogSession>(destination, std::move(ppd));
    if (problem)
        session->addNotice(problem.message);
    session->loadPanels(m_extensions);
    return session;
}

void PrintWindow::adopt(std::unique_ptr<DialogSession> session)
{
    dropPages();
    m_session = std::move(session);
    connect(m_session.get(), &DialogSession::changed, this, &PrintWindow::sessionChanged);
    connect(m_session.get(), &DialogSession::blockingBegan, this, &PrintWindow::showBusy);
    connect(m_session.get(), &DialogSession::blockingEnded, this, &PrintWindow::showIdle);
    const bool hasQueue = !m_session->destination().queue.isEmpty();
    if (hasQueue)
        m_picker->setCurrent(m_session->destination());
    else
        m_picker->setFixedText(m_session->destination().displayName());
    buildPages();
    m_print->setEnabled(hasQueue && !m_task.files.isEmpty());
    m_print->setToolTip(m_print->isEnabled() ? QString()
                                             : tr("There is no document or no printer to print it on"));
    showNotices();
}

void PrintWindow::carryOver(const DialogSession &from, DialogSession *to)
{
    to->general() = from.general();
    if (!from.ppd() || !to->ppd())
        return;
    for (const QString &keyword : generalOptionKeywords(*from.ppd())) {
        const QString choice = from.ppd()->markedChoice(keyword);
        if (choice != from.ppd()->defaultChoice(keyword))
            to->markChoice(keyword, choice);
    }
}

void PrintWindow::rebuildPages()
{
    dropPages();
    buildPages();
}

void PrintWindow::buildPages()
{
    m_general = new GeneralPage(m_session.get());
    addPage(tr("General"), generalName, m_general);
    connect(m_general, &GeneralPage::chosen, this, &PrintWindow::afterChange);
    for (int i = 0; i < m_session->panelCount(); ++i) {
        if (QWidget *view = m_session->panel(i)->panelView())
            addPage(m_session->panel(i)->panelName(), m_session->panel(i)->panelKind(), view, i);
    }
    if (!m_session->otherKeywords().isEmpty()) {
        m_more = new MorePage(m_session.get());
        addPage(tr("More Options"), moreName, m_more);
        connect(m_more, &MorePage::chosen, this, &PrintWindow::afterChange);
    }
    m_summary = new SummaryPage;
    addPage(tr("Summary"), summaryName, m_summary);
    m_list->setCurrentRow(0);
}

void PrintWindow::addPage(const QString &title, const QString &name, QWidget *content, int panel)
{
    auto *frame = new PageFrame(title, content, m_stack);
    m_pages.push_back({title, name, frame, panel});
    m_stack->addWidget(frame);
    const QSignalBlocker quiet(m_list); // the first page becomes current when all are there
    m_list->addPage(title);
}

void PrintWindow::dropPages()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const Page &page : m_pages) {
        if (page.panel >= 0)
            page.frame->releaseContent();
        delete page.frame;
    }
    m_pages.clear();
    m_currentPage = -1;
    m_general = nullptr;
    m_more = nullptr;
    m_summary = nullptr;
}

int PrintWindow::pageNamed(const QString &name) const
{
    // "Color Settings 1" finds "com.kelmar.pde.color-settings-1" in every language.
    const QString kind = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    for (size_t i = 0; i < m_pages.size(); ++i) {
        const Page &page = m_pages[i];
        if (page.name == kind || page.name.endsWith(QLatin1Char('.') + kind) ||
            page.title.compare(name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

void PrintWindow::showPage(int row)
{
    if (row < 0 || row == m_currentPage || row >= static_cast<int>(m_pages.size()))
        return;
    if (!leaveCurrentPage()) {
        const QSignalBlocker quiet(m_list);
        m_list->setCurrentRow(m_currentPage);
        return;
    }
    const Page &page = m_pages[static_cast<size_t>(row)];
    if (page.panel >= 0) {
        m_session->restoreUpTo(page.panel);
        m_session->panel(page.panel)->willShow();
    }
    if (page.name == summaryName)
        m_summary->show(m_session->summary());
    m_currentPage = row;
    if (m_list->currentRow() != row) {
        const QSignalBlocker quiet(m_list);
        m_list->setCurrentRow(row);
    }
    m_stack->setCurrentWidget(page.frame);
    sessionChanged();
}

bool PrintWindow::leaveCurrentPage()
{
    if (m_currentPage < 0)
        return true;
    const int panel = m_pages[static_cast<size_t>(m_currentPage)].panel;
    if (panel >= 0 && !m_session->panel(panel)->shouldHide())
        return false;
    m_session->save();
    showConflicts();
    return true;
}

void PrintWindow::afterChange()
{
    sessionChanged();
    showConflicts();
}

void PrintWindow::sessionChanged()
{
    if (m_general)
        m_general->refresh();
    if (m_more)
        m_more->refresh();
    showNotices();
}

void PrintWindow::showNotices()
{
    const QStringList notices = m_session->takeNotices();
    if (!notices.isEmpty() && !m_askingConflict)
        m_bar->showMessage(MessageBar::Kind::Notice, tr("Please note"), notices);
}

bool PrintWindow::showConflicts()
{
    const QList<Conflict> conflicts = m_session->conflicts();
    if (conflicts.isEmpty()) {
        if (std::exchange(m_askingConflict, false))
            m_bar->hide();
        return false;
    }
    QStringList lines;
    for (const Conflict &conflict : conflicts) {
        QStringList sides;
        for (const OptionChoice &side : conflict.sides)
            sides.append(side.text());
        lines.append(QStringLiteral("•  ") + sides.join(QStringLiteral("  –  ")));
    }
    m_proposal = m_session->proposal();
    QStringList answers;
    if (m_proposal) {
        QStringList changes;
        for (const OptionChoice &change : *m_proposal)
            changes.append(change.text());
        lines.append(tr("Suggestion: %1").arg(changes.join(QStringLiteral(", "))));
        answers.append(tr("App&ly Suggestion"));
    }
    answers.append(tr("&Keep and Review"));
    m_askingConflict = true;
    m_bar->showMessage(MessageBar::Kind::Question, tr("These settings cannot be used together"), lines,
                       answers);
    return true;
}

void PrintWindow::answer(int index)
{
    if (!m_session) {
        retry();
        return;
    }
    const bool accepted = std::exchange(m_askingConflict, false) && m_proposal && index == ApplyProposal;
    if (!accepted)
        return;
    m_session->apply(*m_proposal);
    if (m_currentPage >= 0 && m_pages[static_cast<size_t>(m_currentPage)].name == summaryName)
        m_summary->show(m_session->summary());
    showConflicts();
}

void PrintWindow::pickPrinter(const QString &name)
{
    PrintError error;
    auto session = makeSession(name, &error);
    if (!session) {
        showError(error);
        if (m_session)
            m_picker->setCurrent(m_session->destination());
        return;
    }
    m_bar->hide();
    m_askingConflict = false;
    if (m_session)
        carryOver(*m_session, session.get());
    adopt(std::move(session));
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

void PrintWindow::retry()
{
    PrintError error;
    m_bar->hide();
    if (!open(&error))
        showError(error);
    loadPrinterList();
}

void PrintWindow::showError(const PrintError &error)
{
    m_askingConflict = false;
    if (m_session) {
        m_bar->showMessage(MessageBar::Kind::Error, error.message, {});
        return;
    }
    // Nothing to show but the reason, and a way to try again.
    m_print->setEnabled(false);
    m_bar->showMessage(MessageBar::Kind::Error, error.message, {}, {tr("&Try Again")});
}

void PrintWindow::showBusy(const QString &what)
{
    if (++m_busyDepth == 1)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    m_status->setText(what);
    if (!isVisible())
        show();
    repaint(); // the next thing blocks
}

void PrintWindow::showIdle()
{
    if (--m_busyDepth > 0)
        return;
    QApplication::restoreOverrideCursor();
    m_status->clear();
}

bool PrintWindow::openDocuments(QList<Document> *documents, PrintError *error)
{
    for (const QString &path : m_task.files) {
        std::optional<Document> document;
        if (path != QLatin1String("-")) {
            document = openDocument(path, error);
        } else {
            QFile input;
            if (!m_spool && input.open(stdin, QIODevice::ReadOnly))
                m_spool = spoolInput(&input, error);
            document = m_spool ? openDocument(m_spool->fileName(), error) : std::nullopt;
            if (document)
                document->name = tr("Standard input");
        }
        if (!document)
            return false;
        documents->append(*document);
    }
    return true;
}

void PrintWindow::print()
{
    if (m_job || !m_print->isEnabled())
        return;
    if (!m_general->problem().isNull() && !m_general->problem().isEmpty()) {
        m_list->setCurrentRow(pageNamed(generalName));
        m_general->showProblem();
        return;
    }
    m_session->save();
    sessionChanged();
    if (showConflicts())
        return;
    QList<Document> documents;
    PrintError error;
    if (!openDocuments(&documents, &error)) {
        showError(error);
        return;
    }
    showBusy(tr("Sending the document to the print server…"));
    const QString title = m_task.title.isEmpty() ? documents.first().name : m_task.title;
    m_job = m_system.submit(
        {m_session->destination(), documents, title, m_session->jobOptions() + m_passedOn}, &error);
    showIdle();
    if (!m_job) {
        showError(error);
        return;
    }
    RememberedPrinter().setName(m_session->destination().name());
    showResult();
}

void PrintWindow::showResult()
{
    const Destination destination = m_session->destination();
    m_result->showJob(destination.displayName(), *m_job,
                      [this, destination] { return m_system.jobStatus(destination, m_job->id); });
    m_picker->setEnabled(false);
    m_body->hide();
    m_result->show();
    m_print->hide();
    m_cancel->setText(tr("&Close"));
    m_cancel->setDefault(true);
    m_cancel->setFocus();
    disconnect(m_cancel, nullptr, this, nullptr);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::accept);
}

} // namespace host
