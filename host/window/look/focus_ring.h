// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace host {

// A frame around whichever control of a window has the focus, since styles mark it faintly, some controls not
// at all, and nothing before the first press of the Tab key. A child of its window. Rows of the list of pages
// mark themselves.
class FocusRing : public QObject
{
    Q_OBJECT
public:
    explicit FocusRing(QWidget *window);
    ~FocusRing() override;

    // What it goes around now; null for nothing.
    QWidget *target() const;

private:
    void follow(QWidget *old, QWidget *now);

    QWidget *m_window;
    QPointer<QWidget> m_target;
    QPointer<QFocusFrame> m_frame; // goes with the page that it is on
};

} // namespace host
