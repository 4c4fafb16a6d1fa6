// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/finder.h"

#include "host/window/page_book.h"
#include "host/window/page_controls.h"
#include "host/window/page_frame.h"
#include "host/window/page_list.h"
#include "host/window/print_window.h"
#include "host/window/search_bar.h"
#include "platform/panel_extras.h"

#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr qsizetype mostFound = 60;

QString contextOf(const PageControl &found)
{
    return QStringList{found.control->toolTip(), found.control->accessibleDescription(),
                       found.control->whatsThis()}
        .join(QLatin1Char(' '));
}

} // namespace

Finder::Finder(PrintWindow *window) : QObject(window), m_window(window)
{
    // Queued, since new rows are shown when control returns to the event loop.
    connect(window->book(), &PageBook::grown, this, &Finder::seek, Qt::QueuedConnection);
}

void Finder::open()
{
    if (!m_window->session() || m_window->book()->isHidden())
        return;
    if (!m_bar)
        buildBar();
    buildIndex();
    m_bar->open();
}

QList<QWidget *> Finder::parts() const
{
    return m_bar ? QList<QWidget *>{m_bar, m_bar->results()} : QList<QWidget *>();
}

void Finder::buildBar()
{
    m_bar = new SearchBar(m_window, [this](const QString &query) { return search(query); });
    auto *column = static_cast<QVBoxLayout *>(m_window->layout());
    column->insertWidget(column->indexOf(m_window->book()), m_bar);
    connect(m_bar, &SearchBar::picked, this, [this](int index) { lead(m_found.at(index)); });
    connect(m_bar, &SearchBar::opened, this, &Finder::partsChanged);
    connect(m_bar, &SearchBar::closed, this, &Finder::partsChanged);
}

void Finder::buildIndex()
{
    m_index = {};
    const PageBook *book = m_window->book();
    for (int row = 0; row < book->list()->count(); ++row)
        m_index.addPage(book->nameOf(row), book->titleOf(row));
    m_index.addSession(*m_window->session());
    addPages(&m_index);
}

// Views of panels are there before their page is.
void Finder::addPages(SettingIndex *index) const
{
    const PageBook *book = m_window->book();
    const DialogSession *session = m_window->session();
    QHash<QString, platform::PrintDialogPanel *> panels;
    for (int i = 0; i < session->panelCount(); ++i)
        panels.insert(session->panel(i)->panelKind(), session->panel(i));
    for (int row = 0; row < book->list()->count(); ++row) {
        const QString name = book->nameOf(row);
        platform::PrintDialogPanel *panel = panels.value(name);
        auto *views = dynamic_cast<platform::PanelViews *>(panel);
        const QWidget *page = panel ? panel->panelView() : book->builtPage(row);
        for (const PageControl &found : page ? controlsOf(page) : QList<PageControl>()) {
            const bool isHidden = session->rule().hiddenOptions.contains(found.keyword);
            if (!isHidden && (!views || views->offersViewOf(found.control)))
                index->addControl({name, found.keyword, found.name, {}, {}}, contextOf(found));
        }
    }
}

QStringList Finder::search(const QString &query)
{
    m_found = m_index.find(query, mostFound);
    QStringList lines;
    for (const FoundSetting &setting : std::as_const(m_found))
        lines.append(line(setting));
    return lines;
}

QString Finder::line(const FoundSetting &setting) const
{
    const PageBook *book = m_window->book();
    QStringList parts{book->titleOf(book->pageNamed(setting.page)), setting.option};
    if (!setting.choice.isEmpty())
        parts.append(setting.choiceText);
    // The way goes as the window does, in whatever script its parts are.
    const QChar mark(m_window->isRightToLeft() ? 0x200f : 0x200e);
    return parts.join(mark + QStringLiteral("  \u203a  ") + mark);
}

void Finder::lead(const FoundSetting &setting)
{
    PageBook *book = m_window->book();
    const int row = book->pageNamed(setting.page);
    book->showPage(row);
    if (row < 0 || book->currentRow() != row)
        return;
    m_sought = setting;
    QTimer::singleShot(0, this, &Finder::seek); // once the page has been laid out
}

void Finder::seek()
{
    PageBook *book = m_window->book();
    auto *page = qobject_cast<PageFrame *>(book->builtPage(book->currentRow()));
    if (!m_sought || !page || book->nameOf(book->currentRow()) != m_sought->page)
        return;
    QWidget *control = findControl(page, m_sought->keyword, m_sought->option);
    if (!control)
        return;
    m_sought.reset();
    book->openViewOf(control);
    control->show(); // a row that has just been built waits for its layout
    control->setFocus(Qt::OtherFocusReason);
    QTimer::singleShot(0, control, [page, control] {
        page->reveal(control);
        flash(control);
    });
}

} // namespace host
