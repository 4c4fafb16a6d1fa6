// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/change_mark.h"

#include "host/window/look/contrast.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/mnemonics.h"

#include <QPainter>
#include <QPainterPath>

namespace host {

ChangeMark::ChangeMark(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setObjectName(QStringLiteral("changeMark"));
    resize(sizeHint());
}

void ChangeMark::tell(const QString &earlier)
{
    const QString back = earlier.isEmpty() ? tr("Back to What It Was") : tr("Back to “%1”").arg(earlier);
    m_backText = Mnemonics::escaped(back);
    setToolTip(tooltipOf(tr("Changed. %1").arg(back)));
    setAccessibleName(earlier.isEmpty() ? tr("Changed") : tr("Changed; it was “%1”").arg(earlier));
}

void ChangeMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Window);
    const QColor ink = legible(palette().color(QPalette::Active, QPalette::Highlight), ground);
    if (underMouse() || isDown()) {
        QColor hover = ink;
        hover.setAlphaF(isDown() ? 0.3F : 0.16F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(hover);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    painter.translate(-1.5, 0);
    painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    QPainterPath arrow;
    arrow.moveTo(4, 6.5);
    arrow.lineTo(10.5, 6.5);
    arrow.arcTo(QRectF(7, 6.5, 7, 7), 90, -180);
    arrow.lineTo(7, 13.5);
    arrow.moveTo(6.8, 3.4);
    arrow.lineTo(3.8, 6.5);
    arrow.lineTo(6.8, 9.6);
    painter.drawPath(arrow);
}

} // namespace host
