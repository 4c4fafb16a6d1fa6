// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/list_escape.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace host {

ListEscape::ListEscape(QWidget *dialog) : QObject(dialog)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ListEscape::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if ((!isOverride && event->type() != QEvent::KeyPress) || !watched->isWindowType() ||
        !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel))
        return false;
    const bool isOpen = QApplication::activePopupWidget() != nullptr;
    const bool hasClosed = !isOverride && m_listWasOpen && !isOpen;
    m_listWasOpen = isOverride && isOpen;
    return hasClosed;
}

} // namespace host
