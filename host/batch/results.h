// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/session/dialog_session.h"

#include <QIODevice>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// What a batch run has to tell. A value, written once at the end.
struct BatchResult
{
    QString printer;
    QList<SummarySection> summary; // when asked for
    bool hasSummary = false;
    QList<PpdOption> options; // when asked for
    QList<std::pair<QString, QString>> panelKeys;
    bool hasOptions = false;
    std::optional<SubmittedJob> job;
    QString queue;
    QStringList documents;        // of the job, by name
    QList<OptionChoice> resolved; // changes made to end conflicts
    QStringList notices;
    PrintError error;
    QList<Conflict> conflicts; // that stopped the run
    std::optional<Resolution> proposal;
};

// Writes a result for people (results on `out`, errors and notices on `err`) or for programs (one JSON object
// on `out`).
class ResultWriter
{
public:
    ResultWriter(QIODevice *out, QIODevice *err) : m_out(out), m_err(err) {}
    void write(const BatchResult &result, bool asJson);

private:
    void writeText(const BatchResult &result);
    void writeOptions(const BatchResult &result);
    void writeJob(const BatchResult &result);
    void writeConflicts(const BatchResult &result);
    void print(const QString &line) { m_out->write(line.toUtf8() + '\n'); }
    void complain(const QString &line) { m_err->write("kelmar-print: " + line.toUtf8() + '\n'); }

    QIODevice *m_out;
    QIODevice *m_err;
};

QJsonObject toJson(const BatchResult &result);

} // namespace host
