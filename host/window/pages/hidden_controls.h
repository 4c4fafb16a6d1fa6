// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace host {

// Takes controls off the page of a panel whose options the administrator does not show: each with what
// belongs to it, which is its label, and the rest of its row where the page is a grid (the value next to a
// slider, the button that resets it). They stay away when the panel shows them. The widgets belong to the
// page, and may go first; the object is a child of what shows the page.
class HiddenControls : public QObject
{
    Q_OBJECT
public:
    HiddenControls(const QList<QWidget *> &controls, const QWidget *page, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(QWidget *widget);
};

} // namespace host
