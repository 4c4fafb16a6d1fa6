// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/pages/host_page.h"

#include <QList>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace host {

class DialogSession;

// The page for private printing with a printer that has no panel for it: the password and the account of the
// job, as far as the queue accepts them. Writes to the session immediately, which is borrowed and outlives
// the page.
class PrintModePage : public HostPage
{
    Q_OBJECT
public:
    explicit PrintModePage(DialogSession *session, QWidget *parent = nullptr);

    void refresh() override;

private:
    void addField(const QString &name, const QString &label, QGridLayout *grid);
    void setProblem(const QString &text); // hides the label if the text is empty

    DialogSession *m_session;
    QList<QLineEdit *> m_fields; // their object names are those of the job options
    QLabel *m_problem;           // why the last change was refused
};

} // namespace host
