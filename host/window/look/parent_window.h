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

// Makes another program's window the parent of a dialog, which is then shown in front of it. The handle is
// that of the print portal: "x11:" and the window's ID in hexadecimal, or "wayland:" and the name under which
// the program has exported the window. Does nothing if the handle is invalid, or the desktop has no such
// windows. The dialog is borrowed, and must not be visible yet; this object must exist while the dialog is
// shown.
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
