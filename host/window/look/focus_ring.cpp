// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/focus_ring.h"

#include "host/window/look/contrast.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QListView>
#include <QPainter>

namespace host {

namespace {

constexpr int margin = 3; // pixels around the control

bool marksItself(const QWidget *widget)
{
    return qobject_cast<const QListView *>(widget) || widget->property(FocusRing::ownMarkProperty).toBool();
}

// The outermost parent that scrolls together with the control; a nearer parent would clip the frame.
QWidget *groundOf(const QWidget *control)
{
    QWidget *ground = control->parentWidget();
    while (!ground->isWindow() &&
           !qobject_cast<QAbstractScrollArea *>(ground->parentWidget()->parentWidget()))
        ground = ground->parentWidget();
    return ground;
}

// A child of the ground. Assistive technology ignores frames of this kind.
class Frame : public QFocusFrame
{
public:
    explicit Frame(QWidget *control) : QFocusFrame(groundOf(control)), m_control(control)
    {
        for (QWidget *moved = control; moved != parentWidget(); moved = moved->parentWidget())
            moved->installEventFilter(this);
        follow();
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ParentChange:
            follow();
            break;
        default:
            break;
        }
        return false;
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(focusInk(palette()), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }

private:
    void follow()
    {
        const bool shown = m_control && m_control->isVisible() && parentWidget()->isAncestorOf(m_control);
        if (shown) {
            const QRect place(m_control->mapTo(parentWidget(), QPoint()), m_control->size());
            setGeometry(place.adjusted(-margin, -margin, margin, margin));
            raise();
        }
        setVisible(shown);
    }

    QPointer<QWidget> m_control;
};

} // namespace

FocusRing::FocusRing(QWidget *window) : QObject(window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

void FocusRing::follow(QWidget *, QWidget *now)
{
    const bool ours = now && now != m_window && now->window() == m_window;
    if (!ours && now && now->window() != m_window && now->windowType() == Qt::Popup)
        return;
    delete m_frame;
    if (ours && !marksItself(now))
        m_frame = new Frame(now);
}

} // namespace host
