// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/parent_window.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace host {

ParentWindow::ParentWindow(QWidget *dialog, const QString &handle, bool modal) : m_dialog(dialog)
{
    const QString prefix = QStringLiteral("x11:");
    bool isNumber = false;
    const qulonglong id = handle.mid(prefix.size()).toULongLong(&isNumber, 16);
    if (!handle.startsWith(prefix) || !isNumber || id == 0 || id > 0xffffffffULL ||
        QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    m_foreign.reset(QWindow::fromWinId(static_cast<WId>(id)));
    if (!m_foreign)
        return;
    dialog->winId(); // makes the window
    if (modal)
        dialog->setWindowModality(Qt::WindowModal);
    dialog->windowHandle()->setTransientParent(m_foreign.get());
}

ParentWindow::~ParentWindow()
{
    if (m_foreign && m_dialog->windowHandle())
        m_dialog->windowHandle()->setTransientParent(nullptr);
}

} // namespace host
