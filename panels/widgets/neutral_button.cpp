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

const bool registered = [] {
    platform::registerLayoutWidget<QVNeutralButton_M880>(QStringLiteral("QVNeutralButton_M880"));
    return true;
}();

// An arrow that turns back to where a line begins, in a square of 16 units, for texts from left to right.
QPainterPath backArrow()
{
    QPainterPath path(QPointF(5.5, 2.5));
    path.lineTo(2.5, 5.5);
    path.lineTo(5.5, 8.5);
    path.moveTo(2.5, 5.5);
    path.lineTo(9.5, 5.5);
    path.arcTo(QRectF(5.5, 5.5, 8, 8), 90, -180);
    path.lineTo(6.5, 13.5);
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
    // Pressed, it has nothing left to do: the keyboard goes back to the slider rather than on to what
    // follows.
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

// Drawn here, since not every icon theme has such an arrow, in the colour that texts have.
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
    painter.scale(isRightToLeft() ? -scale : scale, scale);
    painter.translate(-8, -8);
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(backArrow());
}
