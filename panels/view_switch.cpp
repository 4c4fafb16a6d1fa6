// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/view_switch.h"

#include <QEasingCurve>
#include <QGraphicsOpacityEffect>
#include <QWidget>

namespace {

QRect atY(const QRect &frame, int y)
{
    return {QPoint(frame.x(), y), frame.size()};
}

// Moves without resizing, since the superview may resize its views meanwhile.
void place(QWidget *view, const ViewMove &move, qreal progress, qreal opacity)
{
    const qreal y = move.startFrame.y() + (move.endFrame.y() - move.startFrame.y()) * progress;
    view->move(move.endFrame.x(), qRound(y));
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect());
    if (!effect) {
        effect = new QGraphicsOpacityEffect(view);
        view->setGraphicsEffect(effect);
    }
    effect->setOpacity(opacity);
}

} // namespace

ViewSwitchFrames framesForSwitch(const QRect &outgoing, const QRect &incoming, SwitchDirection direction)
{
    const int sign = direction == SwitchDirection::ToAdvanced ? 1 : -1;
    return {{atY(outgoing, 0), atY(outgoing, sign * outgoing.height())},
            {atY(incoming, -sign * incoming.height()), atY(incoming, 0)}};
}

ViewSwitch *ViewSwitch::start(QWidget *outgoing, QWidget *incoming, SwitchDirection direction)
{
    const auto frames = framesForSwitch(outgoing->geometry(), incoming->geometry(), direction);
    cancelIn(outgoing->parentWidget()); // both move the same two views
    return new ViewSwitch(outgoing, incoming, frames);
}

void ViewSwitch::cancelIn(QWidget *superview)
{
    delete runningIn(superview);
}

ViewSwitch *ViewSwitch::runningIn(const QWidget *superview)
{
    return superview->findChild<ViewSwitch *>(QString(), Qt::FindDirectChildrenOnly);
}

ViewSwitch::ViewSwitch(QWidget *outgoing, QWidget *incoming, const ViewSwitchFrames &frames)
    : QObject(outgoing->parentWidget()), m_outgoing(outgoing), m_incoming(incoming), m_frames(frames)
{
    m_clock.setEasingCurve(QEasingCurve::InOutCubic);
    m_clock.setStartValue(0.0);
    m_clock.setEndValue(1.0);
    m_clock.setDuration(int(duration.count()));
    connect(&m_clock, &QVariantAnimation::valueChanged, this, &ViewSwitch::showProgress);
    connect(&m_clock, &QAbstractAnimation::finished, this, &ViewSwitch::finish);
    showProgress();
    m_outgoing->show();
    m_incoming->show();
    m_incoming->raise();
    m_clock.start();
}

ViewSwitch::~ViewSwitch()
{
    m_clock.disconnect(this);
    releaseViews();
}

qreal ViewSwitch::progress() const
{
    return m_clock.currentValue().toReal();
}

void ViewSwitch::showProgress()
{
    if (m_outgoing)
        place(m_outgoing, m_frames.outgoing, progress(), 1 - progress());
    if (m_incoming)
        place(m_incoming, m_frames.incoming, progress(), progress());
}

void ViewSwitch::finish()
{
    if (m_outgoing)
        m_outgoing->hide();
    if (m_incoming)
        m_incoming->setGeometry(QRect(m_frames.incoming.endFrame.topLeft(), m_incoming->size()));
    releaseViews();
    // Hides this object from a switch that starts before the event loop deletes it.
    setParent(nullptr);
    deleteLater();
}

void ViewSwitch::releaseViews()
{
    for (QWidget *view : {m_outgoing.data(), m_incoming.data()}) {
        if (view)
            view->setGraphicsEffect(nullptr);
    }
    m_outgoing.clear();
    m_incoming.clear();
}
