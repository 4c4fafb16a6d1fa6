// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

class DialogSession;
class OptionForm;

// The options of the PPD that no other page shows, such as finishing, group by group. The session is borrowed
// and outlives the page.
class MorePage : public QWidget
{
    Q_OBJECT
public:
    explicit MorePage(DialogSession *session, QWidget *parent = nullptr);
    void refresh();
    // Nil string when everything typed here makes sense.
    QString problem() const;
    // Puts the cursor where the problem is.
    void showProblem();

Q_SIGNALS:
    void chosen(const QString &keyword);

private:
    QList<OptionForm *> m_forms;
};

} // namespace host
