// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

class StatusGlyph;

// Shows a job that was accepted, or may have been: its number, its state, which is updated while the page is
// shown, and possible actions; or that the outcome is unknown.
class ResultPage : public QWidget
{
    Q_OBJECT
public:
    explicit ResultPage(QWidget *parent = nullptr);
    // `documents` contains their names for display; may be empty.
    void showSubmission(const QString &printer, const QString &documents, const Submission &submission);
    // Updates the status of the job.
    void showStatus(const JobStatus &status);
    // Shows the states of earlier jobs, as lines; call when the page shows a job.
    void showEarlier(const QStringList &lines);
    QString text() const;
    // Shows why the last action failed; empty if it succeeded. Hidden when the status changes.
    void showProblem(const QString &text);

Q_SIGNALS:
    void actionWanted(host::JobAction action);
    void printAgainWanted();
    // The button that had the focus is about to be hidden, since its action is no longer possible.
    void focusReleased();

private:
    void buildActions();
    void showActions(const JobStatus &status);
    void showTitle(const QString &title);
    void showUnknown(const Submission &submission);
    QString sentence(const JobStatus &status) const;

    StatusGlyph *m_glyph;
    QLabel *m_title;
    QLabel *m_documents;
    QLabel *m_state; // a new one for each state
    QLabel *m_notes;
    QLabel *m_earlier = nullptr;
    QLabel *m_problem = nullptr;
    QPushButton *m_cancelJob = nullptr;
    QPushButton *m_hold = nullptr;
    QPushButton *m_again = nullptr;
    bool m_holds = false; // whether m_hold holds the job; otherwise it releases it
    QString m_printer;
    int m_id = 0;
};

} // namespace host
