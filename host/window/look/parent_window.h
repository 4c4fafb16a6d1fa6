// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <memory>

class QWidget;
class QWindow;

namespace host {

class WaylandParent;

// The title that the window of this name shows, on one line; empty where it cannot be found out, as on
// Wayland. Asks the X server.
QString titleOfWindow(const QString &handle);

// Puts a dialog in front of another program's window, as the print portal names it: "x11:" and the window's
// number in hexadecimal, or "wayland:" and the name under which its program has exported it. Where the name
// is none, or the desktop has no such windows, nothing happens. The dialog is borrowed and not yet shown;
// this object outlives its showing.
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
