// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

class QWidget;

namespace host {

// Prevents the Escape key that closes an open list from also closing the dialog. Qt closes a list on the
// ShortcutOverride event that precedes the key press. On Wayland the dialog's window keeps the focus while a
// list is open, so the key press would reach the dialog. Owned by the dialog; filters events of the
// application.
class ListEscape : public QObject
{
public:
    explicit ListEscape(QWidget *dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_listWasOpen = false; // at the last ShortcutOverride event
};

} // namespace host
