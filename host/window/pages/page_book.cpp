// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_book.h"

#include "host/policy/policy.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/session/job_settings.h"
#include "host/session/printed_pages.h"
#include "host/session/session_changes.h"
#include "host/session/session_history.h"
#include "host/session/session_state.h"
#include "host/session/sheet_finish.h"
#include "host/window/look/separator.h"
#include "host/window/pages/change_marks.h"
#include "host/window/pages/general_page.h"
#include "host/window/pages/hidden_controls.h"
#include "host/window/pages/job_cost_label.h"
#include "host/window/pages/job_page.h"
#include "host/window/pages/locked_controls.h"
#include "host/window/pages/more_page.h"
#include "host/window/pages/page_frame.h"
#include "host/window/pages/page_list.h"
#include "host/window/pages/print_mode_page.h"
#include "host/window/pages/summary_page.h"
#include "host/window/preview/dialog_preview.h"
#include "platform/panel_extras.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

namespace host {

namespace {

const QString generalName = QStringLiteral("general");
const QString moreName = QStringLiteral("more");
const QString printModeName = QStringLiteral("print-mode");
const QString jobName = QStringLiteral("job");
const QString summaryName = QStringLiteral("summary");
constexpr int spareWidth = 12; // pixels between a page and the preview

// The fixed settings on the page of a panel, with the administrator's name; null if there are none.
QString policyNote(const DialogSession &session, int panel)
{
    if (panel < 0)
        return {};
    const QString attribution = Policy::current().attribution();
    if (session.isPanelLocked(panel))
        return PageBook::tr("These settings cannot be changed. %1").arg(attribution);
    QStringList fixed;
    for (const QString &keyword : session.panels().keywords(panel)) {
        const QString choice = session.rule().lockedChoice(session.ppd(), keyword);
        if (!choice.isNull())
            fixed.append(session.ppd()->described(keyword, choice).text());
    }
    return fixed.isEmpty() ? QString()
                           : PageBook::tr("Fixed: %1. %2").arg(fixed.join(QStringLiteral(", ")), attribution);
}

// Disables the locked controls on the page of a panel, and hides those that the policy hides. If a choice is
// changed nevertheless, it is reset; see DialogSession.
void lockControls(const DialogSession &session, int panel, ChangeMarks *marks, PageFrame *frame)
{
    QList<QWidget *> locked, hidden;
    for (const QString &keyword : session.panels().keywords(panel)) {
        if (session.rule().hiddenOptions.contains(keyword))
            hidden += marks->controlsOf(keyword);
        else if (!session.rule().lockedChoice(session.ppd(), keyword).isNull())
            locked += marks->controlsOf(keyword);
    }
    if (!locked.isEmpty())
        new LockedControls(locked, Policy::current().attribution(), frame);
    if (!hidden.isEmpty())
        new HiddenControls(hidden, frame, frame);
}

// An area that scrolls the list if its rows do not fit.
QScrollArea *scrolling(PageList *list)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(list);
    return area;
}

} // namespace

PageBook::PageBook(DocumentChoice *documents, QWidget *parent)
    : QWidget(parent), m_list(new PageList), m_side(scrolling(m_list)), m_area(new QWidget(this)),
      m_stack(new QStackedWidget(m_area)), m_documents(documents)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_side);
    row->addWidget(new Separator(Qt::Vertical, this));
    row->addWidget(m_area, 1);
    auto *pages = new QHBoxLayout(m_area);
    pages->setContentsMargins(0, 0, 0, 0);
    pages->setSpacing(0);
    pages->addWidget(m_stack, 1);
    if (!documents->paths().isEmpty()) {
        m_preview = new DialogPreview(documents, pages, m_area);
        connect(m_preview, &DialogPreview::opened, this, &PageBook::updatePreview);
        connect(m_preview, &DialogPreview::rangesPicked, this, &PageBook::setRanges);
    }
    // These widgets paint nothing themselves, so the page need not be painted again when the message bar
    // appears below it.
    for (QWidget *part : QList<QWidget *>{this, m_area, m_stack, m_side, m_side->viewport()})
        part->setAttribute(Qt::WA_StaticContents);
    connect(m_list, &QTabBar::currentChanged, this, &PageBook::showPage);
    for (const auto &[key, steps] : {std::pair(Qt::Key_PageDown, 1), {Qt::Key_PageUp, -1}})
        connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this,
                [this, steps = steps] { turn(steps); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followFocus(now); });
}

PageBook::~PageBook()
{
    clear(); // panels own their views
}

QList<QWidget *> PageBook::addNotes()
{
    m_cost = new JobCostLabel(
        m_documents, [this] { return m_session; }, this);
    return m_preview ? QList<QWidget *>{m_preview->begin(), m_cost} : QList<QWidget *>{m_cost};
}

// The list has the width of its names, but leaves the larger part of a narrow window to the pages. The
// preview is next to the page if there is space for both.
void PageBook::fitParts()
{
    const int least = m_list->minimumSizeHint().width();
    m_side->setFixedWidth(qBound(least, m_list->sizeHint().width(), qMax(least, width() * 2 / 5)));
    if (!m_preview)
        return;
    // On other pages the size of the window does not include the preview. The spare width lets a label become
    // slightly wider there, for example with its access key, without hiding or moving the preview. The
    // summary uses the whole width.
    const int share = previewShare() > 0 ? previewShare() : -spareWidth;
    const bool mayShow = m_current >= 0 && currentName() != summaryName;
    m_preview->setRoom(mayShow ? width() - wantedSize().width() + share : 0);
    updatePreview();
}

// The width of the preview that wantedSize() includes, in pixels. It is 0 on other pages than the general
// page, for which the window does not grow.
int PageBook::previewShare() const
{
    return m_preview && currentName() == generalName ? DialogPreview::preferredWidth : 0;
}

void PageBook::updatePreview()
{
    if (m_session && m_preview && m_preview->isShown())
        m_preview->setSettings(pageSettings(*m_session), sheetFinish(*m_session));
}

// Sets the ranges on the general page, which is built if necessary, since it shows them as if they were
// typed.
void PageBook::setRanges(const QString &ranges)
{
    if (m_session && !m_general)
        makeFrame(&m_pages[static_cast<size_t>(pageNamed(generalName))]);
    if (m_general)
        m_general->setRanges(ranges);
}

void PageBook::setSession(DialogSession *session, SessionHistory *history)
{
    clear();
    m_session = session;
    m_history = history;
    connect(session, &DialogSession::blockingBegan, this, &PageBook::showWaiting, Qt::UniqueConnection);
    addPage(tr("General"), generalName);
    const Policy::Rule &rule = session->rule();
    const auto hidesAll = [&rule](const QStringList &keywords) {
        return std::all_of(keywords.begin(), keywords.end(),
                           [&](const QString &keyword) { return rule.hiddenOptions.contains(keyword); });
    };
    for (int i = 0; i < session->panels().count(); ++i) {
        const QStringList keywords = session->panels().keywords(i);
        if (session->panels().panel(i)->panelView() &&
            !rule.hidesPanel(session->panels().panel(i)->panelKind()) &&
            (keywords.isEmpty() || !hidesAll(keywords)))
            addPage(session->panels().panel(i)->panelName(), session->panels().panel(i)->panelKind(), i);
    }
    if (!offeredPrintModes(*session).isEmpty() && !rule.hidesPanel(printModeName))
        addPage(tr("Print Mode"), printModeName);
    if (!hidesAll(session->otherKeywords()))
        addPage(tr("More Options"), moreName);
    addPage(tr("Job"), jobName);
    addPage(tr("Summary"), summaryName);
    fitParts();
}

void PageBook::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitParts();
}

void PageBook::addPage(const QString &title, const QString &name, int panel)
{
    m_pages.push_back({title, name, panel});
    const QSignalBlocker quiet(m_list); // pages are built on first use
    m_list->addPage(title);
}

void PageBook::makeFrame(Page *page)
{
    QWidget *content = contentOf(page);
    content->setEnabled(page->panel < 0 || !m_session->isPanelLocked(page->panel));
    page->frame = new PageFrame(page->title, policyNote(*m_session, page->panel), content, m_stack);
    connect(page->frame, &PageFrame::laidOut, this, &PageBook::fitParts);
    if (page->name != summaryName)
        page->marks = new ChangeMarks(content, page->panel, m_session, m_history);
    if (page->panel >= 0)
        lockControls(*m_session, page->panel, page->marks, page->frame);
    m_stack->addWidget(page->frame);
}

QWidget *PageBook::contentOf(Page *page)
{
    if (page->panel >= 0)
        return m_session->panels().panel(page->panel)->panelView();
    if (page->name == summaryName) {
        m_summary = new SummaryPage;
        connect(m_summary, &SummaryPage::followed, this, &PageBook::leadTo, Qt::QueuedConnection);
        showSummary();
        return m_summary;
    }
    page->own = makeOwn(page->name);
    connect(page->own, &HostPage::chosen, this, &PageBook::chosen);
    return page->own;
}

HostPage *PageBook::makeOwn(const QString &name)
{
    if (name == printModeName)
        return new PrintModePage(m_session);
    if (name == jobName)
        return new JobPage(m_session);
    if (name == moreName) {
        auto *more = new MorePage(m_session);
        connect(more, &MorePage::grown, this, &PageBook::grown);
        return more;
    }
    m_general = new GeneralPage(m_session, m_documents);
    connect(m_general, &GeneralPage::pagesChanged, this, &PageBook::updatePreview);
    connect(m_general, &GeneralPage::grown, this, [this] {
        Q_EMIT pageUpdated();
        showChanges();
    });
    connect(m_general, &GeneralPage::savePdfWanted, this, &PageBook::savePdfWanted);
    return m_general;
}

// Forgets all pages before it removes them: removing one makes another one current and updates the layout.
void PageBook::clear()
{
    const std::vector<Page> pages = std::exchange(m_pages, {});
    m_session = nullptr;
    m_history = nullptr;
    m_current = -1;
    m_general = nullptr;
    m_summary = nullptr;
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const Page &page : pages) {
        delete page.marks;
        if (page.panel >= 0 && page.frame)
            page.frame->releaseContent();
        delete page.frame;
    }
}

int PageBook::pageNamed(const QString &name) const
{
    // "Color Settings 1" matches "com.kelmar.pde.color-settings-1" in every language.
    const QString kind = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    const auto page = std::find_if(m_pages.begin(), m_pages.end(), [&](const Page &p) {
        return p.name == kind || p.name.endsWith(QLatin1Char('.') + kind) ||
               p.title.compare(name, Qt::CaseInsensitive) == 0;
    });
    return page == m_pages.end() ? -1 : static_cast<int>(page - m_pages.begin());
}

const PageBook::Page *PageBook::pageAt(int row) const
{
    return row < 0 || row >= static_cast<int>(m_pages.size()) ? nullptr : &m_pages[static_cast<size_t>(row)];
}

QString PageBook::nameOf(int row) const
{
    return pageAt(row) ? pageAt(row)->name : QString();
}

QString PageBook::titleOf(int row) const
{
    return pageAt(row) ? pageAt(row)->title : QString();
}

QWidget *PageBook::builtPage(int row) const
{
    return pageAt(row) ? pageAt(row)->frame : nullptr;
}

void PageBook::showPage(int row)
{
    if (row == m_current && builtPage(row))
        m_stack->setCurrentWidget(builtPage(row));
    if (!pageAt(row) || row == m_current)
        return;
    QWidget *const focus = window()->focusWidget();
    const bool wasOnPage = focus && m_stack->isAncestorOf(focus);
    const bool allowed = !m_isPreparing && leave();
    if (allowed && wasOnPage) // the focus would move to the next widget
        m_list->setFocus();
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentIndex(allowed ? row : m_current);
    const QRect place = m_list->tabRect(m_list->currentIndex());
    m_side->ensureVisible(place.left(), place.center().y(), 0, place.height());
    if (!allowed)
        return;
    Page &page = m_pages[static_cast<size_t>(row)];
    const bool isBuilt = page.frame;
    if (!isBuilt)
        makeFrame(&page);
    m_current = row;
    m_stack->setCurrentWidget(page.frame); // before preparing a panel that may query its device
    page.frame->scrollToTop();
    if (page.panel >= 0)
        prepare(page);
    if (isBuilt)
        refresh();
    fitParts();
    Q_EMIT pageUpdated();
    showChanges();
}

// Prepares the panel of a page. Its changes meanwhile are not recorded as changes by the user.
void PageBook::prepare(const Page &page)
{
    const auto paused = m_history->pause();
    const QScopedValueRollback<bool> preparing(m_isPreparing, true);
    m_session->prepare(page.panel);
    m_session->panels().panel(page.panel)->willShow();
    page.frame->setWaiting({});
}

void PageBook::showWaiting(const QString &what)
{
    if (m_isPreparing && m_current >= 0)
        m_pages[static_cast<size_t>(m_current)].frame->setWaiting(what);
}

bool PageBook::leave()
{
    if (m_current < 0)
        return true;
    const int panel = m_pages[static_cast<size_t>(m_current)].panel;
    if (panel >= 0 && !m_session->panels().panel(panel)->shouldHide())
        return false;
    m_session->save();
    Q_EMIT left();
    return true;
}

void PageBook::refresh()
{
    for (const Page &page : m_pages) {
        if (page.own)
            page.own->refresh();
    }
    if (m_current >= 0 && m_pages[static_cast<size_t>(m_current)].name == summaryName)
        showSummary();
    updatePreview();
}

void PageBook::showSummary()
{
    m_summary->show(*m_session, m_session->summary(),
                    changesBetween(*m_session, m_history->base().state, m_session->state()));
}

int PageBook::rowOf(const QString &key) const
{
    const int place = pageOf(*m_session, key);
    if (place == morePage)
        return pageNamed(moreName);
    if (place == jobPage)
        return pageNamed(jobName);
    if (place == printModePage)
        return qMax(pageNamed(printModeName), 0);
    for (size_t row = 0; row < m_pages.size(); ++row) {
        if (place >= 0 && m_pages[row].panel == place)
            return static_cast<int>(row);
    }
    return pageNamed(generalName);
}

void PageBook::showChanges()
{
    if (!m_session)
        return;
    QSet<int> changed;
    for (const QString &key : m_history->base().state.differencesTo(m_history->now())) {
        if (key == QLatin1String("destination"))
            continue;
        changed.insert(rowOf(key));
        if (m_session->ppd() &&
            generalOptionKeywords(*m_session->ppd()).contains(key)) // a panel may also have it
            changed.insert(pageNamed(generalName));
    }
    for (int row = 0; row < static_cast<int>(m_pages.size()); ++row)
        m_list->setChanged(row, changed.contains(row));
    if (m_current >= 0 && m_pages[static_cast<size_t>(m_current)].marks)
        m_pages[static_cast<size_t>(m_current)].marks->refresh();
    updatePreview();
    if (m_cost)
        m_cost->refresh();
}

void PageBook::focusOn(QWidget *control)
{
    const int panel = pageAt(m_current) ? pageAt(m_current)->panel : -1;
    auto *views =
        panel < 0 ? nullptr : dynamic_cast<platform::PanelViews *>(m_session->panels().panel(panel));
    if (views && control && views->offersViewOf(control))
        views->showViewOf(control);
    QWidget *const wanted = control && control->isEnabled() && !control->isHidden() ? control : m_list;
    wanted->setFocus(Qt::ShortcutFocusReason);
}

void PageBook::leadTo(const QString &key)
{
    if (!m_session) // a link of a summary that no longer exists
        return;
    const int row = rowOf(key);
    showPage(row);
    if (m_current != row || !m_pages[static_cast<size_t>(row)].marks)
        return;
    focusOn(m_pages[static_cast<size_t>(row)].marks->controlOf(key));
}

void PageBook::turn(int steps)
{
    if (!m_pages.empty())
        showPage(std::clamp(m_current + steps, 0, static_cast<int>(m_pages.size()) - 1));
}

QSize PageBook::wantedSize() const
{
    const PageFrame *frame = pageAt(m_current) ? pageAt(m_current)->frame : nullptr;
    if (!frame)
        return {0, 0};
    return {m_list->sizeHint().width() + 1 + frame->wantedWidth() + previewShare(), frame->wantedHeight()};
}

void PageBook::followFocus(QWidget *now)
{
    if (now && m_current >= 0 && m_stack->isAncestorOf(now))
        m_pages[static_cast<size_t>(m_current)].frame->reveal(now);
}

bool PageBook::checkTyped()
{
    for (size_t row = 0; row < m_pages.size(); ++row) {
        HostPage *page = m_pages[row].own;
        if (page && !page->problem().isEmpty()) {
            showPage(static_cast<int>(row));
            page->showProblem();
            return false;
        }
    }
    return true;
}

} // namespace host
