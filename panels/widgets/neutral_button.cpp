// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/neutral_button.h"

#include "platform/layout_loader.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {

const bool neutralButtonIsRegistered = [] {
    platform::registerLayoutWidget<QVNeutralButton_M880>(QStringLiteral("QVNeutralButton_M880"));
    return true;
}();

// Two arrows that meet at a centre line, in a square of 16 units. Differs from the arrow that undoes a
// change.
QPainterPath arrowsToMiddle()
{
    QPainterPath path(QPointF(8, 3));
    path.lineTo(8, 13);
    for (const qreal side : {-1, 1}) {
        path.moveTo(8 + side * 7, 8);
        path.lineTo(8 + side * 2.5, 8);
        path.moveTo(8 + side * 4.75, 5.75);
        path.lineTo(8 + side * 2.5, 8);
        path.lineTo(8 + side * 4.75, 10.25);
    }
    return path;
}

} // namespace

QVNeutralButton_M880::QVNeutralButton_M880(QWidget *parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setEnabled(false);
}

void QVNeutralButton_M880::setValue(int value)
{
    m_value = value;
    // A used button has no further effect, so the focus returns to the slider instead of the next control.
    if (m_value == 0 && hasFocus())
        focusPreviousChild();
    setEnabled(m_allowed && m_value != 0);
}

void QVNeutralButton_M880::setAllowed(bool allowed)
{
    m_allowed = allowed;
    setEnabled(m_allowed && m_value != 0);
}

QSize QVNeutralButton_M880::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + 8;
    return {side, side};
}

// Painted in the text colour, since not every icon theme has such arrows.
void QVNeutralButton_M880::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    QColor ink = palette().color(QPalette::Active, QPalette::ButtonText);
    ink.setAlphaF(isEnabled() ? 0.85F : 0.2F);
    const qreal scale = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) / 16.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(scale, scale);
    painter.translate(-8, -8);
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrowsToMiddle());
}
