// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPushButton>

namespace host {

// A button that opens a menu, and looks like it before it has one. Asks for the menu once: when it has been
// painted, or is pressed before that. A window is seen sooner without it, and smaller.
class MenuButton : public QPushButton
{
    Q_OBJECT
public:
    explicit MenuButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The receiver calls setMenu() before it returns.
    void menuWanted();

protected:
    void initStyleOption(QStyleOptionButton *option) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    void wantMenu();

    bool m_wasPainted = false;
};

} // namespace host
