// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QWidget>

namespace host {

// A page whose settings belong to the host and not to a panel. Writes to the session of the dialog
// immediately; the session outlives the page.
class HostPage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    // Shows the current settings of the session.
    virtual void refresh() = 0;
    // Why the input is invalid; empty if all of it is valid.
    virtual QString problem() const { return {}; }
    // Places the cursor at the problem.
    virtual void showProblem() {}

Q_SIGNALS:
    // The user has changed a setting, given by its keyword or the name of its job option.
    void chosen(const QString &name);
};

} // namespace host
