// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <fcntl.h>

// The program as called by a script or the service.

inline const QString program = buildPath("/bin/kelmar-print");
inline const QString document = sourcePath("/demo/report.pdf");

struct Outcome
{
    int code = -1;
    QJsonObject json;
    QByteArray errors;
};

inline Outcome run(const QStringList &words, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, words + QStringList(QStringLiteral("--json")));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {};
    return {process.exitCode(), QJsonDocument::fromJson(process.readAllStandardOutput()).object(),
            process.readAllStandardError()};
}

// Writes a file in the server's folder, which is the home folder, and returns its path.
inline QString write(const PrivateCupsd &server, const QString &name, const QByteArray &contents)
{
    QFile file(server.folder() + u'/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qWarning() << file.errorString();
    return file.fileName();
}

// Sends a document to a printer like the service: the request, for the descriptor that the process inherits.
inline void startSubmission(QProcess *process, const QString &printer, int document)
{
    const QJsonObject job{{QStringLiteral("printer"), printer},
                          {QStringLiteral("options"),
                           QJsonArray{QJsonArray{QStringLiteral("PrintMode"), QStringLiteral("Private"), 0},
                                      QJsonArray{QStringLiteral("copies"), QStringLiteral("2"), 1}}}};
    process->setChildProcessModifier([document] { ::fcntl(document, F_SETFD, 0); });
    process->start(program, {QStringLiteral("--dialog-request")});
    process->write(QJsonDocument(QJsonObject{{QStringLiteral("kind"), QStringLiteral("submit")},
                                             {QStringLiteral("title"), QStringLiteral("Letter")},
                                             {QStringLiteral("document"), document},
                                             {QStringLiteral("job"), job}})
                       .toJson(QJsonDocument::Compact) +
                   '\n');
}
