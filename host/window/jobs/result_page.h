// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

class StatusGlyph;

// What became of a job that was accepted, or may have been: its number and its state, which keeps up with the
// print server for as long as it is shown, and what can be done to it; or that it is not known.
class ResultPage : public QWidget
{
    Q_OBJECT
public:
    explicit ResultPage(QWidget *parent = nullptr);
    // `documents` are their names, for the user; may be empty.
    void showSubmission(const QString &printer, const QString &documents, const Submission &submission);
    // News of the job.
    void showStatus(const JobStatus &status);
    // What has become of the jobs before it, in lines; for a page that shows one.
    void showEarlier(const QStringList &lines);
    QString text() const;
    // Why the last action failed; empty when it did not. Goes with the next news of the job.
    void showProblem(const QString &text);

Q_SIGNALS:
    void actionWanted(host::JobAction action);
    void printAgainWanted();

private:
    void buildActions();
    void showActions(const JobStatus &status);
    void showTitle(const QString &title);
    void showState(const QString &state);
    void showUnknown(const Submission &submission);
    QString sentence(const JobStatus &status) const;

    StatusGlyph *m_glyph;
    QLabel *m_title;
    QLabel *m_documents;
    QLabel *m_state;
    QLabel *m_notes;
    QLabel *m_earlier = nullptr;
    QLabel *m_problem = nullptr;
    QPushButton *m_cancelJob = nullptr;
    QPushButton *m_hold = nullptr;
    QPushButton *m_again = nullptr;
    bool m_holds = false; // what m_hold does; else it releases
    QString m_printer;
    int m_id = 0;
};

} // namespace host
