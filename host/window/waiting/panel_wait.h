// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/background.h"

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QDialog;
class QWidget;

namespace host {

class DialogWaiter;
class WaitSign;

// Keeps a dialog usable while a panel of its session waits: shows the reason and an activity indicator, and
// lets the user stop waiting. Waits nest; only the outermost is shown. Also shows other activities of the
// dialog. Owned by the dialog and used on its thread. During the lifetime of this object it handles all waits
// of that thread.
class PanelWait : public QObject
{
    Q_OBJECT
public:
    // During a wait, input reaches the sign and `openParts`, which belong to the dialog.
    PanelWait(QDialog *dialog, const QList<QWidget *> &openParts);
    ~PanelWait() override;

    // Owned by the dialog, which places it in its layout.
    WaitSign *sign() const { return m_sign; }
    // Shows an activity in the sign while the dialog can be used; null when it has ended. The reason of a
    // panel's wait takes precedence.
    void setActivity(const QString &what);
    // While a panel waits: shows `what` in the sign, and calls `then` when the panel has returned. Escape
    // revokes this; "Do Not Wait" does not.
    void runAfterwards(const QString &what, std::function<void()> then);
    bool isUnderWay() const { return m_depth > 0; }
    // The user has closed the dialog: all waits end, and the dialog is not shown again.
    void dismiss() { m_isDismissed = true; }
    bool isDismissed() const { return m_isDismissed; }

public Q_SLOTS:
    // Call when a panel begins to wait. Paints the dialog before it returns, and shows it first if necessary.
    void begin(const QString &what);
    void end();
    void giveUp();

Q_SIGNALS:
    // The sign has something to show, or nothing any more.
    void signShown(bool shown);
    // The user has pressed Return or Enter outside of the open parts.
    void acceptWanted();
    // No panel waits any more, and the panel has returned.
    void panelReturned();

private:
    void showPainted();
    void showActivity();

    QDialog *m_dialog;
    WaitSign *m_sign;
    QString m_activity;           // null if there is none
    std::function<void()> m_then; // the promised action
    std::shared_ptr<DialogWaiter> m_waiter;
    platform::Waiter::Scope m_scope;
    int m_depth = 0;
    bool m_isDismissed = false;
};

} // namespace host
