// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

class QWidget;

namespace host {

// Keeps the Escape key that closes an open list from closing the dialog as well. Qt closes a list when the
// key is announced as a possible shortcut. On Wayland, where the keyboard stays with the dialog's window
// while a list is open, the key press itself comes next and would reach the dialog. Owned by the dialog;
// watches the application.
class ListEscape : public QObject
{
public:
    explicit ListEscape(QWidget *dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_listWasOpen = false; // when the key was announced
};

} // namespace host
