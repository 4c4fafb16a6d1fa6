// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLabel>

// Shows an integer with its sign, as a deviation from neutral: "+3", "0", "−2". Always as wide as its widest
// two-character text, so that a row of labels stays aligned.
class QVSignedValueLabel_M880 : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    explicit QVSignedValueLabel_M880(QWidget *parent = nullptr);

    int value() const { return m_value; }
    void setValue(int value);
    static QString textForValue(int value);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

private:
    int m_value = 0;
};
