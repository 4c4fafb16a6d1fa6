// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/dialog_waiter.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <chrono>

namespace host {

namespace {

// Shorter waits look immediate; a wait indicator would only flicker.
constexpr std::chrono::milliseconds noticeable(80);
// Posted to the waiter when the work may have ended.
const QEvent::Type wakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isTab(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

// Whether a widget, pop-up window or shortcut belongs to a part, which is one of its parents.
bool isWithin(const QObject *object, const QObject *part)
{
    while (object && object != part)
        object = object->parent();
    return object && part;
}

bool takesTab(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled();
}

// Wakes an event loop when a wake event arrives.
class WakeTarget : public QObject
{
public:
    explicit WakeTarget(QEventLoop *loop, std::function<bool()> done) : m_loop(loop), m_done(std::move(done))
    {
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == wakeEvent && m_done())
            m_loop->quit();
        return false;
    }

private:
    QEventLoop *m_loop;
    std::function<bool()> m_done;
};

} // namespace

DialogWaiter::DialogWaiter(QWidget *dialog) : m_dialog(dialog) {}

DialogWaiter::~DialogWaiter() = default;

void DialogWaiter::beginActivity()
{
    if (++m_activities > 1)
        return;
    m_givenUp = m_noticed = false;
    m_sinceBegin.start();
}

void DialogWaiter::endActivity()
{
    if (--m_activities > 0)
        return;
    m_givenUp = m_noticed = false;
    settleLater();
}

bool DialogWaiter::wait(const std::function<bool()> &ended)
{
    QEventLoop loop;
    WakeTarget target(&loop, [&] { return ended() || m_givenUp; });
    installEventFilter(&target);
    if (m_depth++ == 0)
        qApp->installEventFilter(this);
    QTimer notice;
    notice.setSingleShot(true);
    connect(&notice, &QTimer::timeout, this, [this] {
        if (!std::exchange(m_noticed, true))
            Q_EMIT waitingNoticed();
    });
    // Measured from the start of the activity, since the user perceives many short waits as a long one.
    const std::chrono::milliseconds passed(m_activities > 0 ? m_sinceBegin.elapsed() : 0);
    notice.start(std::max(noticeable - passed, std::chrono::milliseconds(0)));
    if (!ended() && !m_givenUp && loop.exec() != 0)
        m_givenUp = true; // exit() was called: the program ends
    if (--m_depth == 0) {
        qApp->removeEventFilter(this);
        settleLater();
    }
    return ended();
}

void DialogWaiter::wake()
{
    QCoreApplication::postEvent(this, new QEvent(wakeEvent));
}

void DialogWaiter::giveUp()
{
    if (m_depth == 0 && m_activities == 0)
        return;
    m_givenUp = true;
    wake();
}

bool DialogWaiter::isOpen(const QObject *object) const
{
    return std::any_of(m_openParts.begin(), m_openParts.end(),
                       [object](const QWidget *part) { return isWithin(object, part); });
}

// Moves the focus to the next open part.
void DialogWaiter::step(bool forward)
{
    QWidget *const start = m_dialog->focusWidget() ? m_dialog->focusWidget() : m_dialog.data();
    const auto next = [forward](const QWidget *widget) {
        return forward ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    QWidget *widget = next(start);
    while (widget != start && !(isOpen(widget) && takesTab(widget)))
        widget = next(widget);
    if (widget != start)
        widget->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

// Delivers the focus-out events when the waiting call has returned.
void DialogWaiter::settleLater()
{
    if (m_depth == 0 && m_activities == 0 && !m_left.isEmpty())
        QMetaObject::invokeMethod(this, &DialogWaiter::settleFocus, Qt::QueuedConnection);
}

void DialogWaiter::settleFocus()
{
    if (m_depth > 0 || m_activities > 0 || !m_dialog)
        return;
    const QList<Left> left = std::exchange(m_left, {});
    const QWidget *now = m_dialog->focusWidget();
    QWidget *first = left.isEmpty() ? nullptr : left.first().widget.data();
    if (first && first->isVisible() && first->isEnabled() && (!now || isOpen(now)))
        first->setFocus(Qt::OtherFocusReason);
    for (const Left &each : left) {
        if (!each.widget || each.widget->hasFocus())
            continue;
        QFocusEvent out(QEvent::FocusOut, each.reason);
        QCoreApplication::sendEvent(each.widget, &out);
    }
}

bool DialogWaiter::eventFilter(QObject *watched, QEvent *event)
{
    if (!isWithin(watched, m_dialog))
        return false;
    if (event->type() == QEvent::Close && watched == m_dialog) {
        giveUp();
        return false;
    }
    if (event->type() == QEvent::FocusOut && watched->isWidgetType() && !isOpen(watched)) {
        auto *widget = static_cast<QWidget *>(watched);
        if (widget->window() != m_dialog)
            return false;
        if (std::none_of(m_left.begin(), m_left.end(),
                         [&](const auto &left) { return left.widget == widget; }))
            m_left.append({widget, static_cast<QFocusEvent *>(event)->reason()});
        widget->update();
        return true;
    }
    if (!isInput(event->type()))
        return false;
    // A question that was opened meanwhile, such as a login prompt.
    const QWidget *question = QApplication::activeModalWidget();
    if (question && question != m_dialog && isWithin(watched, question))
        return false;
    const auto *key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event) : nullptr;
    if (key && key->key() == Qt::Key_Escape) {
        Q_EMIT escaped();
        giveUp();
        return true;
    }
    const bool isReturn = key && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    if (isReturn && !key->isAutoRepeat() && !isOpen(watched))
        Q_EMIT acceptWanted();
    if (key && isTab(*key)) {
        step(key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier));
        return true;
    }
    return !isOpen(watched);
}

} // namespace host
