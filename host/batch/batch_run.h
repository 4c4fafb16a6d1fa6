// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/arguments.h"
#include "host/batch/results.h"
#include "host/extensions/extensions.h"
#include "host/preview/page_counter.h"
#include "host/printing/held_signals.h"
#include "host/printing/print_system.h"

#include <memory>

namespace host {

// Applies the settings of the command line in order.
bool applyAssignments(const Arguments &arguments, DialogSession *session, PrintError *error);

// Runs the program without a window: applies the settings of the command line to a session, then prints, or
// lists options or presets. Needs a QApplication, since panels consist of widgets. The arguments, the print
// system and the extensions are borrowed and outlive it.
class BatchRun
{
public:
    BatchRun(const Arguments &arguments, PrintSystem &system, Extensions &extensions);
    ~BatchRun();

    // Sets the source of "-"; the standard input by default.
    void setInput(QIODevice *input) { m_input = input; }
    // Runs, writes the results to the writer, and returns the exit code. Call once. A signal that arrives
    // during the submission ends the program after the result was written; while documents are examined or
    // converted, it ends the program when the temporary folders have been removed.
    int run(ResultWriter *writer);

private:
    // Performs all steps that precede the submission.
    ExitCode prepare();
    bool openDocuments();
    bool openSession(PrintError *error);
    ExitCode settleConflicts();
    bool mayNotPrintWithProtectionGap() const;
    bool checkDocuments(PrintError *error);
    bool changePresets(PrintError *error);
    bool savePreset(const QString &name, PrintError *error);
    ExitCode submit();
    ExitCode writePdf();
    ExitCode fail(const PrintError &error);
    int writeResult(ResultWriter *writer, ExitCode code);

    const Arguments &m_arguments;
    PrintSystem &m_system;
    Extensions &m_extensions;
    QIODevice *m_input = nullptr;
    std::unique_ptr<DialogSession> m_session;
    DocumentList m_documents;
    PageVerdict m_pages; // of the documents as they are sent
    BatchResult m_result;
    std::optional<HeldSignals> m_signals; // from the submission until its outcome is reported
};

} // namespace host
