// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/terminal_text.h"
#include "host/printing/job.h"
#include "host/printing/preset_store.h"
#include "host/session/dialog_session.h"

#include <QIODevice>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// The results of a batch run. A value, written once at the end.
struct BatchResult
{
    QString printer;
    QList<SummarySection> summary; // if requested
    bool hasSummary = false;
    QList<PpdOption> options; // if requested
    QList<std::pair<QString, QString>> panelKeys;
    bool hasSecretKeys = false; // among them
    bool hasOptions = false;
    std::optional<QList<Preset>> presets; // if requested; without codes
    QString savedPreset;
    QString deletedPreset;
    std::optional<Submission> submission; // if anything was to be printed
    QString queue;
    QStringList documents;        // of the job, by name
    QString output;               // the PDF file that was written
    QList<OptionChoice> resolved; // changes that resolved conflicts
    QStringList notices;
    PrintError error;
    QList<Conflict> conflicts; // that ended the run
    std::optional<Resolution> proposal;
};

// Writes a result as text (results to `out`, errors and notices to `err`) or as JSON (one object to `out`).
// The devices are borrowed.
class ResultWriter
{
public:
    ResultWriter(QIODevice *out, QIODevice *err) : m_out(out), m_err(err) {}
    // Writes the beginning of a JSON result. Like write(), returns false with an error message if `out`
    // cannot be written.
    bool begin();
    // The same for the part of a text result that is known before anything is printed.
    bool writeSettings(const BatchResult &result);
    bool write(const BatchResult &result, bool asJson);

private:
    void writeText(const BatchResult &result);
    void writeOptions(const BatchResult &result);
    void writePresets(const BatchResult &result);
    void writeJob(const BatchResult &result);
    void writeConflicts(const BatchResult &result);
    void print(const QString &line) { put(terminalLine(line)); }
    void put(const QByteArray &bytes) { m_isWritten &= m_out->write(bytes) == bytes.size(); }
    bool finish();
    void printError(const QString &line) { m_err->write("kelmar-print: " + terminalLine(line)); }

    QIODevice *m_out;
    QIODevice *m_err;
    bool m_hasBegun = false; // a JSON result, or the settings of a text result
    bool m_isWritten = true; // whether all writes to `out` have succeeded so far
};

QJsonObject toJson(const BatchResult &result);

} // namespace host
