// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/elided_label.h"

#include "host/window/look/foreign_text.h"

#include <QPainter>
#include <QStyle>

namespace host {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::showText(const QString &text)
{
    setText(oneLine(text, 400));
    setToolTip(tooltipOf(text));
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect place = contentsRect().adjusted(indent(), 0, 0, 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    const auto direction = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, place, static_cast<int>(direction), palette(), isEnabled(), shown,
                          foregroundRole());
}

} // namespace host
