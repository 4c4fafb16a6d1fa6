// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/batch_run.h"
#include "tests/support/private_cupsd.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

// Starts a print server for a user with a private home folder, and its client. Call before anything else uses
// libcups, which looks up both only once. False with the server's problem.
inline bool startPrivately(PrivateCupsd &server, std::optional<host::CupsPrintSystem> *system)
{
    server.provideHome();
    system->emplace();
    return server.start();
}

// A batch run within this process: its exit code, -1 for an invalid command line, and its output.
inline int callBatch(const QStringList &words, host::PrintSystem &system, host::Extensions &extensions,
                     QJsonObject *written)
{
    QString problem;
    const auto arguments = host::parseArguments(
        QStringList({QStringLiteral("kelmar-print"), QStringLiteral("--json")}) + words, &problem);
    if (!arguments)
        return -1;
    QBuffer out, err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    host::ResultWriter writer(&out, &err);
    const int code = host::BatchRun(*arguments, system, extensions).run(&writer);
    *written = QJsonDocument::fromJson(out.data()).object();
    return code;
}
