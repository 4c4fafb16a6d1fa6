// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <memory>

class QWidget;
class QWindow;

namespace host {

class WaylandParent;

// The title of the window with this handle, on one line; empty if it cannot be determined, as on Wayland.
// Queries the X server.
QString titleOfWindow(const QString &handle);

// Places a dialog in front of another program's window, given by the handle of the print portal: "x11:" and
// the window's number in hexadecimal, or "wayland:" and the name under which the program has exported the
// window. Does nothing if the handle is invalid, or the desktop has no such windows. The dialog is borrowed
// and not shown yet; this object must outlive its display.
class ParentWindow
{
public:
    ParentWindow(QWidget *dialog, const QString &handle, bool modal);
    ~ParentWindow();

private:
    void setX11Parent(quint32 id, bool modal);

    QWidget *m_dialog;
    std::unique_ptr<QWindow> m_foreign;
    std::unique_ptr<WaylandParent> m_exported;
};

} // namespace host
