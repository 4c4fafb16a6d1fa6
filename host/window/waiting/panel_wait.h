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

// What a dialog does while a panel of its session waits: it says for what, shows that it lives, and lets the
// user give up. Waits nest; the outermost counts. Also says what else the dialog is doing. Belongs to the
// dialog, and to its thread, whose waits are the dialog's as long as this lives.
class PanelWait : public QObject
{
    Q_OBJECT
public:
    // Input reaches the sign and `openParts` meanwhile, which are the dialog's.
    PanelWait(QDialog *dialog, const QList<QWidget *> &openParts);
    ~PanelWait() override;

    // Belongs to the dialog, which finds a place for it.
    WaitSign *sign() const { return m_sign; }
    // Says in the sign what is made while the dialog can be used; null when it has been made. What a panel
    // waits for takes its place meanwhile.
    void setActivity(const QString &what);
    // While a panel waits: says in the sign what is done once it has returned, and does it then. Escape takes
    // it back; the button not to wait does not.
    void promise(const QString &what, std::function<void()> then);
    bool isUnderWay() const { return m_depth > 0; }
    // The user has left the dialog: all waiting ends, and the dialog does not come back.
    void dismiss() { m_isDismissed = true; }
    bool isDismissed() const { return m_isDismissed; }

public Q_SLOTS:
    // Paints the dialog before it returns, or brings it up when it has not been seen yet.
    void begin(const QString &what);
    void end();
    void giveUp();

Q_SIGNALS:
    // The sign has something to show that the user notices, or nothing any more.
    void signShown(bool shown);
    // The user presses Return or Enter where input does not reach the dialog.
    void acceptWanted();
    // No panel waits any more, and the one that did has returned.
    void panelReturned();

private:
    void showPainted();
    void showActivity();

    QDialog *m_dialog;
    WaitSign *m_sign;
    QString m_activity;           // null for none
    std::function<void()> m_then; // what has been promised
    std::shared_ptr<DialogWaiter> m_waiter;
    platform::Waiter::Scope m_scope;
    int m_depth = 0;
    bool m_isDismissed = false;
};

} // namespace host
