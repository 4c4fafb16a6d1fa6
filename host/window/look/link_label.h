// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLabel>

namespace host {

// A plain-text link: underlined while the mouse is over it or it has the focus, activated by a click, Return
// or the space bar.
class LinkLabel : public QLabel
{
    Q_OBJECT
public:
    explicit LinkLabel(QWidget *parent = nullptr);

Q_SIGNALS:
    void followed();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

} // namespace host
