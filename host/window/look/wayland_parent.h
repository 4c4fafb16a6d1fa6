// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>

class QWindow;

namespace host {

// Places a window in front of another program's window on Wayland, which that program has exported
// (xdg-foreign) under the name `handle`. Waits until the window is first exposed, since it has no surface
// before. Does nothing if the compositor lacks the protocol, the name is invalid, or the program was built
// without Wayland. The window is borrowed.
class WaylandParent : public QObject
{
public:
    WaylandParent(QWindow *window, const QByteArray &handle);
    ~WaylandParent() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Import;
    std::unique_ptr<Import> m_import;
    QWindow *m_window;
    QByteArray m_handle;
};

} // namespace host
