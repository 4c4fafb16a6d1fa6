// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPushButton>

namespace host {

// A button whose menu is created when the button is pressed or gets the focus, or after the first paint if a
// screen reader is running. A window then starts faster.
class MenuButton : public QPushButton
{
    Q_OBJECT
public:
    explicit MenuButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // Emitted once. The receiver must call setMenu() before it returns.
    void menuWanted();

protected:
    void initStyleOption(QStyleOptionButton *option) const override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QSize textSizeHint() const;
    void wantMenu();

    bool m_wasPainted = false;
};

} // namespace host
