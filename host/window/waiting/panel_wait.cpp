// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/panel_wait.h"

#include "host/window/look/startup_clock.h"
#include "host/window/waiting/dialog_waiter.h"
#include "host/window/waiting/wait_sign.h"

#include <QDialog>
#include <QEventLoop>
#include <QTimer>

#include <utility>

namespace host {

PanelWait::PanelWait(QDialog *dialog, const QList<QWidget *> &openParts)
    : m_dialog(dialog), m_sign(new WaitSign(dialog)), m_waiter(std::make_shared<DialogWaiter>(dialog)),
      m_scope(m_waiter)
{
    m_waiter->setOpenParts(QList<QWidget *>{m_sign} + openParts);
    connect(m_sign, &WaitSign::stopped, this, &PanelWait::giveUp);
    connect(m_waiter.get(), &DialogWaiter::waitingNoticed, m_sign, &WaitSign::offerStop);
    connect(m_waiter.get(), &DialogWaiter::waitingNoticed, this, [this] { Q_EMIT signShown(true); });
    connect(m_waiter.get(), &DialogWaiter::acceptWanted, this, &PanelWait::acceptWanted);
    connect(m_waiter.get(), &DialogWaiter::escaped, this, [this] { m_then = nullptr; });
}

PanelWait::~PanelWait() = default;

void PanelWait::begin(const QString &what)
{
    if (m_depth++ > 0)
        return;
    m_waiter->beginActivity();
    m_sign->begin(what);
    if (m_isDismissed)
        giveUp();
    else if (m_dialog->isVisible())
        m_dialog->repaint();
    else
        showPainted();
}

// Shows the dialog and returns when it has been painted, or after a time limit.
void PanelWait::showPainted()
{
    QEventLoop untilPainted;
    FirstPaint painted(m_dialog);
    connect(&painted, &FirstPaint::done, &untilPainted, &QEventLoop::quit);
    QTimer::singleShot(std::chrono::seconds(1), &untilPainted, &QEventLoop::quit);
    m_dialog->show();
    untilPainted.exec(QEventLoop::ExcludeUserInputEvents);
}

void PanelWait::end()
{
    if (--m_depth > 0)
        return;
    m_waiter->endActivity();
    m_sign->end();
    showActivity();
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (isUnderWay())
                return;
            Q_EMIT panelReturned();
            const auto then = std::exchange(m_then, nullptr);
            if (then && !m_isDismissed)
                then();
        },
        Qt::QueuedConnection);
}

void PanelWait::setActivity(const QString &what)
{
    m_activity = what;
    if (isUnderWay())
        return;
    m_sign->end();
    showActivity();
}

void PanelWait::showActivity()
{
    if (!m_activity.isNull()) {
        m_sign->begin(m_activity);
        m_sign->showMoving();
    }
    Q_EMIT signShown(!m_activity.isNull());
}

void PanelWait::runAfterwards(const QString &what, std::function<void()> then)
{
    if (!std::exchange(m_then, std::move(then)))
        m_sign->addNote(what);
}

void PanelWait::giveUp()
{
    m_waiter->giveUp();
}

} // namespace host
