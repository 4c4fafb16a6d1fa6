// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QToolButton>

// A flat button next to a slider that resets it to neutral. Enabled only if the value is not neutral and the
// slider may be used.
class QVNeutralButton_M880 : public QToolButton
{
    Q_OBJECT
    // The slider's value; 0 is neutral.
    Q_PROPERTY(int value READ value WRITE setValue)
    // Whether the slider may be used at all.
    Q_PROPERTY(bool allowed READ isAllowed WRITE setAllowed)
public:
    explicit QVNeutralButton_M880(QWidget *parent = nullptr);

    int value() const { return m_value; }
    void setValue(int value);
    bool isAllowed() const { return m_allowed; }
    void setAllowed(bool allowed);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_value = 0;
    bool m_allowed = true;
};
