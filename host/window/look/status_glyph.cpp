// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/status_glyph.h"

#include <QPainter>
#include <QPainterPath>

namespace host {

namespace {

// In a coordinate system of 20 by 20.
QPainterPath strokesOf(StatusGlyph::Kind kind)
{
    QPainterPath path;
    switch (kind) {
    case StatusGlyph::Kind::Notice:
        path.moveTo(10, 9.5);
        path.lineTo(10, 14.5);
        break;
    case StatusGlyph::Kind::Question:
        path.moveTo(10, 5.5);
        path.lineTo(10, 10.5);
        break;
    case StatusGlyph::Kind::Error:
        path.moveTo(6.8, 6.8);
        path.lineTo(13.2, 13.2);
        path.moveTo(13.2, 6.8);
        path.lineTo(6.8, 13.2);
        break;
    case StatusGlyph::Kind::Success:
        path.moveTo(5.8, 10.4);
        path.lineTo(8.8, 13.4);
        path.lineTo(14.2, 7);
        break;
    }
    return path;
}

} // namespace

StatusGlyph::StatusGlyph(int size, QWidget *parent) : QWidget(parent)
{
    setFixedSize(size, size);
}

void StatusGlyph::setKind(Kind kind)
{
    m_kind = kind;
    update();
}

QColor StatusGlyph::colorOf(Kind kind, const QPalette &palette)
{
    switch (kind) {
    case Kind::Notice:
        return palette.color(QPalette::Active, QPalette::Highlight);
    case Kind::Question:
        return {0xd9, 0x8c, 0x0f};
    case Kind::Error:
        return {0xd0, 0x3b, 0x3b};
    case Kind::Success:
        break;
    }
    return {0x2e, 0x9e, 0x5b};
}

void StatusGlyph::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / 20.0, height() / 20.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colorOf(m_kind, palette()));
    painter.drawEllipse(QRectF(1, 1, 18, 18));
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(strokesOf(m_kind));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    if (m_kind == Kind::Notice)
        painter.drawEllipse(QPointF(10, 6.2), 1.2, 1.2);
    else if (m_kind == Kind::Question)
        painter.drawEllipse(QPointF(10, 14), 1.2, 1.2);
}

} // namespace host
