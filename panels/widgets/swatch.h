// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QWidget>

// A small disc in a colour; drawn as a ring while it is disabled. Its size is set by its layout.
class QVSwatch_M880 : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor)
public:
    explicit QVSwatch_M880(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};
