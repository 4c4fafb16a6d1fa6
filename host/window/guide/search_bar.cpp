// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/search_bar.h"

#include "host/window/look/announced.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/quiet_list.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

namespace host {

namespace {

constexpr int mostRows = 9;
constexpr int rowAir = 10; // pixels, in addition to the height of the text
constexpr int margin = 16; // pixels, at the sides

} // namespace

SearchBar::SearchBar(QWidget *window, Search search)
    : QFrame(window), m_search(std::move(search)), m_field(new QLineEdit(this)),
      m_results(new QuietList<QListWidget>(window)), m_count(new QLabel(this))
{
    m_field->setPlaceholderText(tr("Find a setting"));
    m_field->setAccessibleName(tr("Find a setting"));
    m_field->setWhatsThis(tr("Type the name of a setting, in your own words or as the printer driver has it. "
                             "Press Return to go to the setting."));
    m_field->setClearButtonEnabled(true);
    makeAnnounced(m_count);
    m_count->hide();
    auto *close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setText(QStringLiteral("✕"));
    close->setAccessibleName(tr("Close the search"));
    close->setToolTip(tr("Close the search"));
    close->setFocusPolicy(Qt::TabFocus);
    close->setWhatsThis(tr("Closes the search. The settings do not change."));
    connect(close, &QToolButton::clicked, this, &SearchBar::close);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(margin, 6, margin, 6);
    row->setSpacing(8);
    row->addWidget(m_field, 1);
    row->addWidget(m_count);
    row->addWidget(close);

    m_results->setAccessibleName(tr("Settings found"));
    m_results->setWhatsThis(
        tr("The settings that were found, each with its page. Press Return to go to the setting."));
    m_results->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_results->setTextElideMode(Qt::ElideMiddle);
    m_results->setUniformItemSizes(true);
    m_results->setMouseTracking(true);
    m_results->hide();
    hide();

    for (QWidget *watched : {static_cast<QWidget *>(m_field), static_cast<QWidget *>(m_results), window})
        watched->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &SearchBar::search);
    connect(m_results, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { pick(m_results->row(item)); });
}

void SearchBar::open()
{
    QWidget *const now = QApplication::focusWidget();
    if (now && now != m_field && now != m_results && !isAncestorOf(now))
        m_before = now;
    show();
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
    search();
    Q_EMIT opened();
}

void SearchBar::close()
{
    const QWidget *now = QApplication::focusWidget();
    const bool hasFocus = !now || isAncestorOf(now) || now == m_results;
    // First, since the focus of a hidden widget moves to the next one.
    if (hasFocus && m_before && m_before->isVisible() && m_before->isEnabled())
        m_before->setFocus(Qt::OtherFocusReason);
    m_results->hide();
    hide();
    Q_EMIT closed();
}

void SearchBar::search()
{
    const QStringList found = m_search(m_field->text());
    m_isPicked = false;
    m_results->clear();
    for (const QString &line : found) {
        auto *item = new QListWidgetItem(oneLine(line), m_results);
        item->setSizeHint({0, fontMetrics().height() + rowAir});
    }
    m_results->setCurrentRow(found.isEmpty() ? -1 : 0);
    m_results->setVisible(!found.isEmpty());
    showCount(static_cast<int>(found.size()));
    placeResults();
}

// Shows the number of results and announces it, since the list appears without getting the focus.
void SearchBar::showCount(int count)
{
    const QString text = m_field->text().trimmed().isEmpty() ? QString()
                         : count == 0                        ? tr("Nothing found")
                                                             : tr("%n settings found", nullptr, count);
    m_field->setAccessibleDescription(text);
    if (text != m_count->text()) {
        m_count->setText(text);
        announce(m_count, text);
    }
    m_count->setVisible(!text.isEmpty());
}

// Places the list below the field, with the same width, as high as needed, but within the window.
void SearchBar::placeResults()
{
    if (m_results->isHidden() || m_isPicked)
        return;
    const QPoint corner = m_field->mapTo(window(), QPoint(0, m_field->height() + 2));
    const int rows = qMin(mostRows, m_results->count());
    const int wanted = rows * m_results->sizeHintForRow(0) + 2 * m_results->frameWidth();
    const int room = window()->height() - corner.y() - 4;
    m_results->setGeometry(corner.x(), corner.y(), m_field->width(), qMax(0, qMin(wanted, room)));
    m_results->raise();
}

void SearchBar::pick(int index)
{
    if (index < 0 || index >= m_results->count())
        return;
    m_isPicked = true;
    m_results->resize(0, 0); // not hidden, since it may have the focus
    Q_EMIT picked(index);
}

bool SearchBar::handleKey(QObject *watched, int key)
{
    const bool inList = watched == m_results;
    switch (key) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(m_results->currentRow());
        return true;
    case Qt::Key_Down:
        if (inList || m_results->isHidden() || m_isPicked)
            return false;
        m_results->setFocus(Qt::OtherFocusReason);
        return true;
    case Qt::Key_Up:
        if (!inList || m_results->currentRow() > 0)
            return false;
        m_field->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        return false;
    }
}

bool SearchBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window()) {
        if (event->type() == QEvent::Resize)
            placeResults();
    } else if (event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<QKeyEvent *>(event);
        if (handleKey(watched, press->key()))
            return true;
        // Characters that are typed in the list go to the field.
        const bool types = !press->text().isEmpty() && press->text().at(0).isPrint();
        if (watched == m_results && (types || press->key() == Qt::Key_Backspace)) {
            m_field->setFocus(Qt::OtherFocusReason);
            QCoreApplication::sendEvent(m_field, event);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

// Handles keys that the bar's button does not use.
void SearchBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QFrame::keyPressEvent(event);
}

void SearchBar::moveEvent(QMoveEvent *event)
{
    QFrame::moveEvent(event);
    placeResults();
}

void SearchBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    placeResults();
}

} // namespace host
