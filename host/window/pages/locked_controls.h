// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace host {

// Disables the controls on the page of a panel whose settings the administrator has fixed, and shows the
// reason in their tooltips, before the panel's own text. They stay disabled if the panel enables them. The
// controls are owned by the page, and may be destroyed first. A child of the widget that shows the page.
class LockedControls : public QObject
{
    Q_OBJECT
public:
    // `reason` is localised plain text.
    LockedControls(const QList<QWidget *> &controls, const QString &reason, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addReason(QWidget *control);

    QString m_reason;
    bool m_isSettingToolTip = false;
};

} // namespace host
