// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractButton>

namespace host {

// The sign of a changed setting, an arrow that leads back: pressing it takes the change back. Takes no focus;
// the keyboard has the same in the context menu of the control.
class ChangeMark : public QAbstractButton
{
    Q_OBJECT
public:
    explicit ChangeMark(QWidget *parent);
    // What it leads back to; empty where there are no words for it.
    void tell(const QString &earlier);
    QString backText() const { return m_backText; } // for a menu
    QSize sizeHint() const override { return {15, 18}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_backText; // not its text, which would get an access key
};

} // namespace host
