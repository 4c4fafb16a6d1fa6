// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>
#include <QList>
#include <QPair>
#include <QPointer>
#include <QWidget>

#include <algorithm>

// Records what the program tells assistive technology while it lives. One at a time.
class AccessibleEvents
{
public:
    AccessibleEvents()
    {
        current() = this;
        QAccessible::setActive(true);
        m_before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            current()->m_events.append({event->type(), event->object()});
        });
    }
    ~AccessibleEvents()
    {
        QAccessible::installUpdateHandler(m_before);
        QAccessible::setActive(false);
    }
    AccessibleEvents(const AccessibleEvents &) = delete;
    AccessibleEvents &operator=(const AccessibleEvents &) = delete;

    // How often an event of this type was sent for an object.
    qsizetype count(QAccessible::Event type, const QObject *object) const
    {
        return std::count_if(m_events.begin(), m_events.end(), [&](const auto &event) {
            return event.first == type && event.second == object;
        });
    }

private:
    static AccessibleEvents *&current()
    {
        static AccessibleEvents *events = nullptr;
        return events;
    }

    QAccessible::UpdateHandler m_before;
    QList<QPair<QAccessible::Event, QPointer<QObject>>> m_events;
};
