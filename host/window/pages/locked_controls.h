// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace host {

// Greys controls on the page of a panel that the administrator has fixed, and says so in their tool tips,
// before what the panel says there. So it stays, whatever the panel does to them. The controls belong to the
// page, and may go first; the object is a child of what shows the page.
class LockedControls : public QObject
{
    Q_OBJECT
public:
    // `reason` is plain text in the user's language.
    LockedControls(const QList<QWidget *> &controls, const QString &reason, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tell(QWidget *control);

    QString m_reason;
    bool m_isTelling = false;
};

} // namespace host
