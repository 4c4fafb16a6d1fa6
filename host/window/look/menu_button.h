// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPushButton>

namespace host {

// A button with a menu that is created on demand: requested once, when the button has been painted, or when
// it is pressed before that. This reduces the start-up time and memory of a window.
class MenuButton : public QPushButton
{
    Q_OBJECT
public:
    explicit MenuButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The receiver must call setMenu() before it returns.
    void menuWanted();

protected:
    void initStyleOption(QStyleOptionButton *option) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    void wantMenu();

    bool m_wasPainted = false;
};

} // namespace host
