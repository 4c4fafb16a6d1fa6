// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDeadlineTimer>
#include <QPushButton>

#include <chrono>

namespace host {

// A button of the dialog itself. The one that the Return key presses stands on the highlight colour, which
// tells it from the others in every palette and whatever has the focus; a button with the focus is that one.
class DialogButton : public QPushButton
{
    Q_OBJECT
public:
    DialogButton(const QString &text, QWidget *parent);

    // The mouse presses nothing for as long, as where the button has just come under a pointer that pressed
    // another; keys do.
    void ignoreMouseFor(std::chrono::milliseconds time) { m_deaf.setRemainingTime(time); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override; // of a double click, too

private:
    QDeadlineTimer m_deaf{0};
};

} // namespace host
