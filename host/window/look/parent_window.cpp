// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/parent_window.h"

#include "host/window/look/foreign_text.h"
#include "host/window/look/wayland_parent.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <cstdlib>
#include <xcb/xcb.h>

namespace host {

namespace {

// The number of an X window; 0 if the handle does not name one, or the desktop has no X windows.
xcb_window_t windowId(const QString &handle)
{
    const QString prefix = QStringLiteral("x11:");
    bool isNumber = false;
    const qulonglong id = handle.mid(prefix.size()).toULongLong(&isNumber, 16);
    if (!handle.startsWith(prefix) || !isNumber || id > 0xffffffffULL ||
        QGuiApplication::platformName() != QLatin1String("xcb"))
        return 0;
    return static_cast<xcb_window_t>(id);
}

struct FreeDeleter
{
    void operator()(void *reply) const { std::free(reply); }
};

xcb_atom_t atomOf(xcb_connection_t *connection, const QByteArray &name)
{
    const auto asked = xcb_intern_atom(connection, 1, static_cast<uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeDeleter> reply(
        xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Empty if the window does not exist or has no such text.
QString textOf(xcb_connection_t *connection, xcb_window_t window, const QByteArray &property)
{
    constexpr uint32_t longest = 256; // 32-bit units
    const auto asked = xcb_get_property(connection, 0, window, atomOf(connection, property),
                                        XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const std::unique_ptr<xcb_get_property_reply_t, FreeDeleter> reply(
        xcb_get_property_reply(connection, asked, nullptr));
    if (!reply || reply->format != 8)
        return {};
    const auto *text = static_cast<const char *>(xcb_get_property_value(reply.get()));
    return QString::fromUtf8(text, xcb_get_property_value_length(reply.get()));
}

} // namespace

QString titleOfWindow(const QString &handle)
{
    const xcb_window_t id = windowId(handle);
    auto *desktop = id ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!desktop)
        return {};
    QString title = textOf(desktop->connection(), id, QByteArrayLiteral("_NET_WM_NAME"));
    if (title.isEmpty())
        title = textOf(desktop->connection(), id, QByteArrayLiteral("WM_NAME"));
    return oneLine(title).simplified();
}

ParentWindow::ParentWindow(QWidget *dialog, const QString &handle, bool modal) : m_dialog(dialog)
{
    const QString platform = QGuiApplication::platformName();
    const QString kind = handle.section(QLatin1Char(':'), 0, 0);
    const QString name = handle.mid(kind.size() + 1);
    if (kind == QLatin1String("x11") && platform == QLatin1String("xcb")) {
        setX11Parent(windowId(handle), modal);
    } else if (kind == QLatin1String("wayland") && !name.isEmpty() &&
               platform.startsWith(QLatin1String("wayland"))) {
        dialog->winId(); // creates the native window
        m_exported = std::make_unique<WaylandParent>(dialog->windowHandle(), name.toUtf8());
    }
}

void ParentWindow::setX11Parent(quint32 id, bool modal)
{
    if (id == 0)
        return;
    m_foreign.reset(QWindow::fromWinId(static_cast<WId>(id)));
    if (!m_foreign)
        return;
    m_dialog->winId(); // creates the native window
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
