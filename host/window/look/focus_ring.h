// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace host {

// A frame around the control of a window that has the focus. The marks of styles are faint, are missing on
// some controls, and do not appear before the Tab key is first pressed. List views have their own mark and no
// frame. A child of its window.
class FocusRing : public QObject
{
    Q_OBJECT
public:
    // Set to true on another widget that has its own mark.
    static constexpr const char *ownMarkProperty = "marksFocus";

    explicit FocusRing(QWidget *window);
    ~FocusRing() override;

private:
    void follow(QWidget *old, QWidget *now);

    QWidget *m_window;
    QPointer<QFocusFrame> m_frame; // destroyed with the page that it is on
};

} // namespace host
