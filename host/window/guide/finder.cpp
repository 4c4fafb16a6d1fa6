// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/finder.h"

#include "host/session/dialog_session.h"
#include "host/window/guide/search_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_controls.h"
#include "host/window/pages/page_frame.h"
#include "host/window/pages/page_list.h"
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

Finder::Finder(PageBook *book) : QObject(book->window()), m_book(book)
{
    // Queued, since new rows become visible when control returns to the event loop.
    connect(book, &PageBook::grown, this, &Finder::seek, Qt::QueuedConnection);
}

void Finder::open()
{
    if (!m_book->session() || m_book->isHidden())
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
    m_bar = new SearchBar(m_book->window(), [this](const QString &query) { return search(query); });
    auto *column = static_cast<QVBoxLayout *>(m_book->window()->layout());
    column->insertWidget(column->indexOf(m_book), m_bar);
    connect(m_bar, &SearchBar::picked, this, [this](int index) { showSetting(m_found.at(index)); });
    connect(m_bar, &SearchBar::opened, this, &Finder::partsChanged);
    connect(m_bar, &SearchBar::closed, this, &Finder::partsChanged);
}

void Finder::buildIndex()
{
    m_index = {};
    for (int row = 0; row < m_book->list()->count(); ++row)
        m_index.addPage(m_book->nameOf(row), m_book->titleOf(row));
    m_index.addSession(*m_book->session());
    addPages(&m_index);
}

// Adds the controls of panels, whose views exist before their pages are built, and of the host's built pages.
void Finder::addPages(SettingIndex *index) const
{
    const DialogSession *session = m_book->session();
    QHash<QString, platform::PrintDialogPanel *> panels;
    for (int i = 0; i < session->panels().count(); ++i)
        panels.insert(session->panels().panel(i)->panelKind(), session->panels().panel(i));
    for (int row = 0; row < m_book->list()->count(); ++row) {
        const QString name = m_book->nameOf(row);
        platform::PrintDialogPanel *panel = panels.value(name);
        auto *views = dynamic_cast<platform::PanelViews *>(panel);
        const QWidget *page = panel ? panel->panelView() : m_book->builtPage(row);
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
    QStringList parts{m_book->titleOf(m_book->pageNamed(setting.page)), setting.option};
    if (!setting.choice.isEmpty())
        parts.append(setting.choiceText);
    // The path follows the layout direction of the window, whatever the script of its parts.
    const QChar mark(m_book->isRightToLeft() ? 0x200f : 0x200e);
    return parts.join(mark + QStringLiteral("  \u203a  ") + mark);
}

// Opens the page of a setting, scrolls to its control, gives it the focus and highlights it briefly. If the
// control does not exist yet, waits until it does.
void Finder::showSetting(const FoundSetting &setting)
{
    const int row = m_book->pageNamed(setting.page);
    m_book->showPage(row);
    if (row < 0 || m_book->currentRow() != row) {
        m_bar->close();
        return;
    }
    m_sought = setting;
    QTimer::singleShot(0, this, &Finder::seek); // after the page has been laid out
}

void Finder::seek()
{
    auto *page = qobject_cast<PageFrame *>(m_book->builtPage(m_book->currentRow()));
    if (!m_sought || !page || m_book->nameOf(m_book->currentRow()) != m_sought->page)
        return;
    QWidget *control = findControl(page, m_sought->keyword, m_sought->option);
    if (control) {
        m_sought.reset();
        control->show(); // a new row is hidden until it is laid out
    }
    m_book->focusOn(control);
    m_bar->close();
    if (!control)
        return; // perhaps found when the page has grown
    QTimer::singleShot(0, control, [page, control] {
        page->reveal(control);
        flash(control);
    });
}

} // namespace host
