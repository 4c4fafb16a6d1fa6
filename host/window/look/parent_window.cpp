// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/parent_window.h"

#include "host/window/look/wayland_parent.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace host {

ParentWindow::ParentWindow(QWidget *dialog, const QString &handle, bool modal) : m_dialog(dialog)
{
    const QString platform = QGuiApplication::platformName();
    const QString kind = handle.section(QLatin1Char(':'), 0, 0);
    const QString name = handle.mid(kind.size() + 1);
    if (kind == QLatin1String("x11") && platform == QLatin1String("xcb")) {
        setX11Parent(name, modal);
    } else if (kind == QLatin1String("wayland") && !name.isEmpty() &&
               platform.startsWith(QLatin1String("wayland"))) {
        dialog->winId(); // makes the window
        m_exported = std::make_unique<WaylandParent>(dialog->windowHandle(), name.toUtf8());
    }
}

void ParentWindow::setX11Parent(const QString &number, bool modal)
{
    bool isNumber = false;
    const qulonglong id = number.toULongLong(&isNumber, 16);
    if (!isNumber || id == 0 || id > 0xffffffffULL)
        return;
    m_foreign.reset(QWindow::fromWinId(static_cast<WId>(id)));
    if (!m_foreign)
        return;
    m_dialog->winId(); // makes the window
    if (modal)
        m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->windowHandle()->setTransientParent(m_foreign.get());
}

ParentWindow::~ParentWindow()
{
    if (m_foreign && m_dialog->windowHandle())
        m_dialog->windowHandle()->setTransientParent(nullptr);
}

} // namespace host
