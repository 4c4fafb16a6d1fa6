// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/background.h"

#include <QObject>

#include <memory>

class QDialog;
class QWidget;

namespace host {

class DialogWaiter;
class WaitSign;

// What a dialog does while a panel of its session waits: it says for what, shows that it lives, and lets the
// user give up. Waits nest; the outermost counts. Belongs to the dialog, and to its thread, whose waits are
// the dialog's as long as this lives.
class PanelWait : public QObject
{
    Q_OBJECT
public:
    // Input reaches the sign and `wayOut` meanwhile, which is the dialog's.
    PanelWait(QDialog *dialog, QWidget *wayOut);
    ~PanelWait() override;

    // Belongs to the dialog, which finds a place for it.
    WaitSign *sign() const { return m_sign; }
    bool isUnderWay() const { return m_depth > 0; }
    // The user has left the dialog: nobody waits for anything any more, and nothing brings it back.
    void dismiss() { m_isDismissed = true; }
    bool isDismissed() const { return m_isDismissed; }

public Q_SLOTS:
    // Paints the dialog before it returns, or brings it up when it has not been seen yet.
    void begin(const QString &what);
    void end();
    void giveUp();

Q_SIGNALS:
    // It takes longer than a person notices.
    void noticed();
    // It is over.
    void ended();
    // The panel that waited has returned as well.
    void panelReturned();

private:
    void showPainted();

    QDialog *m_dialog;
    WaitSign *m_sign;
    std::shared_ptr<DialogWaiter> m_waiter;
    platform::Waiter::Scope m_scope;
    int m_depth = 0;
    bool m_isDismissed = false;
};

} // namespace host
