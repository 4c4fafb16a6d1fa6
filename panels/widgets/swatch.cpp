// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/swatch.h"

#include "platform/layout_loader.h"

#include <QPainter>

namespace {

const bool swatchIsRegistered = [] {
    platform::registerLayoutWidget<QVSwatch_M880>(QStringLiteral("QVSwatch_M880"));
    return true;
}();

constexpr QColor ringColor(128, 128, 128);

} // namespace

QVSwatch_M880::QVSwatch_M880(QWidget *parent) : QWidget(parent) {}

void QVSwatch_M880::setColor(const QColor &color)
{
    m_color = color;
    update();
}

// Painted directly: the first style sheet of a process costs 300 kB and a millisecond.
void QVSwatch_M880::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color);
        painter.drawEllipse(rect());
    }
    painter.setPen(ringColor);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}
