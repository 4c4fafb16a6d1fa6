// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace host {

LinkLabel::LinkLabel(QWidget *parent) : QLabel(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setAccessibleDescription(tr("Go to this setting"));
    setWhatsThis(accessibleDescription());
}

bool LinkLabel::event(QEvent *event)
{
    const bool handled = QLabel::event(event);
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::FocusIn:
    case QEvent::FocusOut: {
        QFont font = this->font();
        font.setUnderline(hasFocus() || event->type() == QEvent::HoverEnter);
        setFont(font);
        break;
    }
    default:
        break;
    }
    return handled;
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        Q_EMIT followed();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT followed();
}

} // namespace host
