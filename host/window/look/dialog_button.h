// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDeadlineTimer>
#include <QPushButton>

#include <chrono>

namespace host {

// A button of the dialog. The default button has the highlight color as its background, so that it is
// recognizable in every palette. If a button has the focus, it is the default button.
class DialogButton : public QPushButton
{
    Q_OBJECT
public:
    DialogButton(const QString &text, QWidget *parent);

    // Ignores the mouse for this time, so that a double click on the previous button at this place does not
    // press this one. Keys still work.
    void ignoreMouseFor(std::chrono::milliseconds time) { m_mouseIgnored.setRemainingTime(time); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override; // including double clicks

private:
    QDeadlineTimer m_mouseIgnored{0};
};

} // namespace host
