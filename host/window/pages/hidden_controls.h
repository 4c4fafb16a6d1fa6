// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace host {

// Hides controls on the page of a panel whose options are hidden by the administrator, together with their
// labels and, if the page is a grid, the rest of their rows (the value next to a slider, the button that
// resets it). They stay hidden when the panel shows them. The widgets are owned by the page, and may be
// destroyed first. A child of the widget that shows the page.
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
