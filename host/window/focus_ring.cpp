// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/focus_ring.h"

#include "host/window/contrast.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

namespace host {

namespace {

class Frame : public QFocusFrame
{
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(focusInk(palette()), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
};

bool marksItself(const QWidget *widget)
{
    return qobject_cast<const QListView *>(widget);
}

} // namespace

FocusRing::FocusRing(QWidget *window) : QObject(window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

QWidget *FocusRing::target() const
{
    return m_frame && m_frame->isVisible() ? m_frame->widget() : nullptr;
}

void FocusRing::follow(QWidget *, QWidget *now)
{
    const bool ours = now && now != m_window && now->window() == m_window;
    if (!ours || marksItself(now)) {
        if (!now || now->window() == m_window || now->windowType() != Qt::Popup)
            delete m_frame;
        return;
    }
    if (!m_frame)
        m_frame = new Frame;
    m_frame->setWidget(now);
}

} // namespace host
