// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/message_bar.h"

#include "host/window/look/announced.h"
#include "host/window/look/contrast.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/foreign_text.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int iconSize = 20; // pixels
constexpr int buttonGap = 8; // pixels

} // namespace

// A plain text that can be selected. It is made selectable when the mouse reaches it, since Qt lays out a
// selectable text six times before it paints it. The height for a width is kept, since Qt lays out the text
// again for every measurement. For the same reason, the preferred width is the current one.
class MessageBar::Text : public QLabel
{
public:
    Text()
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
    void showText(const QString &text)
    {
        if (!underMouse())
            setTextInteractionFlags(Qt::NoTextInteraction);
        setText(text);
    }
    QSize sizeHint() const override { return {width(), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return {0, fontMetrics().height()}; }
    int heightForWidth(int width) const override
    {
        if (width != m_width || text() != m_text || font() != m_font) {
            m_width = width;
            m_text = text();
            m_font = font();
            m_height = QLabel::heightForWidth(width);
        }
        return m_height;
    }

protected:
    void enterEvent(QEnterEvent *event) override
    {
        makeSelectable();
        QLabel::enterEvent(event);
    }
    void mousePressEvent(QMouseEvent *event) override // also sent for a touch
    {
        makeSelectable();
        QLabel::mousePressEvent(event);
    }

private:
    void makeSelectable()
    {
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        setFocusPolicy(Qt::NoFocus);
    }

    mutable int m_width = -1, m_height = 0; // pixels, of m_text in m_font
    mutable QString m_text;
    mutable QFont m_font;
};

MessageBar::MessageBar(QWidget *parent) : QFrame(parent)
{
    hide();
    connect(qApp, &QApplication::focusChanged, this, &MessageBar::noteFocus);
}

// Created with the first message: the bold font of the title costs 200 kB at start-up.
void MessageBar::build()
{
    m_glyph = new StatusGlyph(iconSize, this);
    m_scroll = new QScrollArea(this);
    m_title = new Text;
    m_lines = new Text;
    m_row = new QBoxLayout(QBoxLayout::TopToBottom);
    m_buttonRows = new QVBoxLayout;
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_buttonRows->setSpacing(6);

    // A separate widget, since a screen reader repeats the name of the container when a button gets the
    // focus.
    m_sheet = new QWidget;
    makeAnnounced(m_sheet);
    auto *texts = new QVBoxLayout(m_sheet);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(1);
    texts->addWidget(m_title);
    texts->addWidget(m_lines);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidget(m_sheet);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_sheet->setAutoFillBackground(false);
    m_scroll->setMinimumWidth(100);
    m_row->setSpacing(6);
    m_row->addWidget(m_scroll, 1);
    m_row->addLayout(m_buttonRows);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(14, 6, 8, 6);
    row->setSpacing(12);
    row->addWidget(m_glyph, 0, Qt::AlignTop);
    row->addLayout(m_row, 1);
}

QString MessageBar::text() const
{
    if (!m_lines)
        return {};
    return m_lines->isHidden() ? m_title->text() : m_title->text() + QLatin1Char('\n') + m_lines->text();
}

void MessageBar::showMessage(const Message &message)
{
    if (isShowing() && message == m_message)
        return;
    if (!m_scroll)
        build();
    m_message = message;
    m_glyph->setKind(message.kind);
    const QString lines = message.lines.join(QLatin1Char('\n'));
    m_title->showText(wrappable(message.title));
    m_lines->showText(wrappable(lines));
    m_lines->setToolTip(tooltipOf(lines));
    m_lines->setVisible(!lines.isEmpty());
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    const QPointer<QWidget> before = m_before;
    removeButtons();
    // A single button is placed next to the text to keep the bar low.
    m_row->setDirection(message.answers.size() > 1 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    for (qsizetype i = 0; i < message.answers.size(); ++i)
        addButton(message.answers.at(i), static_cast<int>(i));
    if (message.answers.isEmpty())
        addButton(tr("C&lose"), -1);
    announce(m_sheet, text());
    fit();
    show();
    update();
    Q_EMIT buttonsChanged();
    if (!hadFocus)
        return;
    takeFocus();
    m_before = before;
}

void MessageBar::hideMessage()
{
    if (!isShowing())
        return;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus)
        giveFocusBack();
    Q_EMIT buttonsChanged();
}

void MessageBar::removeButtons()
{
    for (QPushButton *button : std::as_const(m_buttons)) { // called by one of them
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    clearRows();
}

void MessageBar::addButton(const QString &text, int index)
{
    auto *button = new DialogButton(text, this);
    button->setFocusPolicy(Qt::TabFocus); // a click does not move the focus
    connect(button, &QPushButton::clicked, this, [this, index] { Q_EMIT answered(index); });
    m_buttons.append(button);
}

void MessageBar::takeFocus()
{
    if (!m_buttons.isEmpty() && isShowing())
        m_buttons.first()->setFocus(Qt::OtherFocusReason);
}

void MessageBar::noteFocus(QWidget *old, QWidget *now)
{
    if (old && now && isAncestorOf(now) && !isAncestorOf(old))
        m_before = old;
}

void MessageBar::giveFocusBack()
{
    if (m_before && m_before->isVisible() && m_before->isEnabled())
        m_before->setFocus(Qt::OtherFocusReason);
}

void MessageBar::setTextLimit(int pixels)
{
    m_limit = pixels;
    if (m_scroll)
        fitTexts();
}

void MessageBar::clearRows()
{
    m_rowSizes.clear();
    while (QLayoutItem *row = m_buttonRows->takeAt(0)) {
        while (QLayoutItem *item = row->layout()->takeAt(0))
            delete item;
        delete row;
    }
}

// The width for texts and buttons.
int MessageBar::room() const
{
    const QMargins margins = layout()->contentsMargins();
    return width() - margins.left() - margins.right() - iconSize - layout()->spacing();
}

// Places as many buttons side by side as fit, since in a low window each row reduces the page.
void MessageBar::fitButtons()
{
    QList<int> sizes;
    int used = 0;
    for (const QPushButton *button : std::as_const(m_buttons)) {
        const int wanted = button->sizeHint().width() + buttonGap;
        if (sizes.isEmpty() || used + wanted - buttonGap > room()) {
            sizes.append(0);
            used = 0;
        }
        ++sizes.last();
        used += wanted;
    }
    if (sizes == m_rowSizes)
        return;
    clearRows();
    m_rowSizes = sizes;
    qsizetype next = 0;
    for (const int size : std::as_const(sizes)) {
        auto *row = new QHBoxLayout;
        row->setSpacing(buttonGap);
        m_buttonRows->addLayout(row);
        if (m_buttons.size() > 1 &&
            sizes.size() < m_buttons.size()) // in several rows they have the same width
            row->addStretch(1);
        for (int i = 0; i < size; ++i)
            row->addWidget(m_buttons.at(next++));
    }
}

void MessageBar::fitTexts()
{
    // Buttons next to the texts are not laid out before the bar is shown.
    const bool isNext = m_row->direction() == QBoxLayout::LeftToRight && !m_buttons.isEmpty();
    const int button = isNext ? m_buttons.first()->sizeHint().width() + m_row->spacing() : 0;
    const int width = qMax(m_scroll->minimumWidth(), room() - button);
    const int wanted = m_scroll->widget()->layout()->totalHeightForWidth(width);
    const int line = m_title->fontMetrics().height();
    // complete lines
    const int most = qMax(1, m_limit / line) * line + m_scroll->widget()->layout()->spacing();
    m_scroll->setFixedHeight(qBound(line, wanted, most));
    // Scrolling texts can also be reached with the keyboard. Without a scroll bar, the viewport has the width
    // that was measured.
    m_scroll->setFocusPolicy(wanted > most ? Qt::TabFocus : Qt::NoFocus);
    m_scroll->setVerticalScrollBarPolicy(wanted > most ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void MessageBar::fit()
{
    if (!m_scroll)
        return;
    fitButtons();
    fitTexts();
}

void MessageBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fit();
}

void MessageBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &MessageBar::fit,
                                  Qt::QueuedConnection); // the texts then have the font
}

void MessageBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor accent = StatusGlyph::colorOf(m_message.kind, palette());
    const QColor ground = palette().color(QPalette::Window);
    // A frame drawn with a pen takes five times as long.
    painter.setBrush(mixed(ground, accent, 0.55F));
    painter.drawRoundedRect(contentsRect(), 6.5, 6.5);
    painter.setBrush(mixed(ground, accent, 0.14F));
    painter.drawRoundedRect(contentsRect().adjusted(1, 1, -1, -1), 5.5, 5.5);
}

} // namespace host
