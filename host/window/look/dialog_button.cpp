// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/dialog_button.h"

#include "host/window/look/contrast.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace host {

DialogButton::DialogButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setMinimumWidth(96);
}

// Includes space on both sides of the text, also for the focus frame, which is drawn inside.
QSize DialogButton::sizeHint() const
{
    return QPushButton::sizeHint().grownBy({8, 0, 8, 0});
}

// Without the additional space, which then compensates for a text that becomes wider with its access key.
QSize DialogButton::minimumSizeHint() const
{
    return QPushButton::sizeHint();
}

void DialogButton::mousePressEvent(QMouseEvent *event)
{
    if (m_mouseIgnored.hasExpired())
        QPushButton::mousePressEvent(event);
}

void DialogButton::paintEvent(QPaintEvent *event)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    if (!(option.features & QStyleOptionButton::DefaultButton) || !isEnabled()) {
        QPushButton::paintEvent(event);
        return;
    }
    const QColor ink = highlightInk(palette());
    QColor ground = palette().color(QPalette::Active, QPalette::Highlight);
    if (isDown())
        ground = ground.darker(125);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    // The frame around a focused button would not contrast with its background.
    if (hasFocus()) {
        painter.setPen(QPen(ink, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), 2, 2);
    }
    // Some styles draw a button's label in a color of their own.
    const bool isUnderlined = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    option.palette.setColor(QPalette::ButtonText, ink);
    painter.drawItemText(rect(),
                         Qt::AlignCenter | (isUnderlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                         option.palette, true, text(), QPalette::ButtonText);
}

} // namespace host
