// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractButton>

namespace host {

// The mark of a changed setting: a button with an arrow that undoes the change. Does not take the focus;
// keyboard users find the same function in the context menu of the control.
class ChangeMark : public QAbstractButton
{
    Q_OBJECT
public:
    explicit ChangeMark(QWidget *parent);
    // Sets the text of the previous value; empty if there is none.
    void tell(const QString &earlier);
    QString backText() const { return m_backText; } // for a menu
    QSize sizeHint() const override { return {15, 18}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_backText; // not the button's text, which would get an access key
};

} // namespace host
