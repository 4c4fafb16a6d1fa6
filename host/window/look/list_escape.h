// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

class QWidget;

namespace host {

// Prevents the Escape key that closes an open list from also closing the dialog. Qt closes a list when the
// key is announced as a possible shortcut. On Wayland the focus stays with the dialog's window while a list
// is open, so the key press that follows would reach the dialog. Owned by the dialog; filters events of the
// application.
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
