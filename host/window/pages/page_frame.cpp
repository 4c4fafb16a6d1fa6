// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_frame.h"

#include "host/window/look/explanations.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace host {

namespace {

constexpr int fieldWidth = 240; // pixels, as in the panels

class PageScroll : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize minimumSizeHint() const override { return {160, 40}; }
    QSize sizeHint() const override
    {
        const QSize inner = widget() ? widget()->sizeHint() : QSize();
        return {inner.width() + verticalScrollBar()->sizeHint().width(), inner.height()};
    }
};

QLabel *noteLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setContentsMargins(24, 8, 24, 0);
    label->setWordWrap(true);
    return label;
}

} // namespace

QGridLayout *contentGrid(QWidget *page)
{
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(2, 1);
    return grid;
}

void addField(QGridLayout *grid, const QString &setting, const QString &label, QWidget *field)
{
    field->setMinimumWidth(fieldWidth);
    field->setObjectName(setting);
    field->setAccessibleName(label.chopped(1).trimmed());
    field->setWhatsThis(explanationOf(setting));
    auto *text = new QLabel(label, grid->parentWidget());
    text->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    text->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(text, row, 0);
    grid->addWidget(field, row, 1);
}

PageFrame::PageFrame(const QString &title, const QString &note, QWidget *content, QWidget *parent)
    : QWidget(parent), m_scroll(new PageScroll(this)), m_content(content)
{
    auto *heading = new QLabel(title, this);
    heading->setTextFormat(Qt::PlainText);
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    heading->setFont(large);
    heading->setContentsMargins(24, 12, 24, 0);
    heading->setWordWrap(true);

    // The heading scrolls with the page, to save space in a low window.
    auto *sheet = new QWidget;
    auto *lines = new QVBoxLayout(sheet);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    lines->addWidget(heading);
    if (!note.isNull())
        lines->addWidget(noteLabel(note, this));
    lines->addWidget(content, 1);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(sheet);
    m_scroll->viewport()->setAutoFillBackground(false);
    sheet->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->show();
    sheet->installEventFilter(this);
    // These widgets paint nothing themselves; PageBook does the same for its own.
    for (QWidget *part : QList<QWidget *>{this, m_scroll, m_scroll->viewport()})
        part->setAttribute(Qt::WA_StaticContents);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scroll, 1);
}

PageFrame::~PageFrame() = default;

int PageFrame::wantedWidth() const
{
    const int inner = m_scroll->widget()->minimumSizeHint().width();
    return inner + m_scroll->verticalScrollBar()->sizeHint().width();
}

int PageFrame::wantedHeight() const
{
    return m_scroll->widget()->sizeHint().height();
}

// Reports that the content was laid out again: a row was added, or a text has become longer, possibly while
// the page was hidden.
bool PageFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        Q_EMIT laidOut();
    return QWidget::eventFilter(watched, event);
}

void PageFrame::scrollToTop()
{
    m_scroll->verticalScrollBar()->setValue(0);
    m_scroll->horizontalScrollBar()->setValue(0);
}

void PageFrame::setWaiting(const QString &text)
{
    if (!m_waiting && !text.isNull()) {
        m_waiting = noteLabel(text, this);
        static_cast<QVBoxLayout *>(m_scroll->widget()->layout())->insertWidget(1, m_waiting);
        m_waiting->show(); // laid out immediately, since the window is painted before events are processed
        m_scroll->widget()->layout()->activate();
        m_wasEnabled = m_content->isEnabled();
        m_content->setEnabled(false);
    } else if (m_waiting && text.isNull()) {
        delete std::exchange(m_waiting, nullptr);
        m_content->setEnabled(m_wasEnabled);
    }
}

void PageFrame::reveal(QWidget *control)
{
    if (!m_content || !m_content->isAncestorOf(control))
        return;
    // Lay out new rows first; otherwise the control's position is not final.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (m_content->layout())
        m_content->layout()->activate();
    m_scroll->ensureWidgetVisible(control, 12, 12);
}

void PageFrame::releaseContent()
{
    if (m_content && isAncestorOf(m_content)) {
        m_content->hide();
        m_content->setParent(nullptr);
    }
}

} // namespace host
