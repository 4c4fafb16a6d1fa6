// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/desktop_notice.h"

#include "platform/background.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace host {

namespace {

constexpr int longest = 10'000; // milliseconds

// The service beside the program, as in a build folder, else where it is installed.
QString serviceProgram()
{
    const QString here = QCoreApplication::applicationDirPath();
    const QString beside = here + QStringLiteral("/kelmar-print-service");
    return QFileInfo(beside).isExecutable()
               ? beside
               : QFileInfo(here + QStringLiteral("/../" KELMAR_LIBEXEC_DIR "/kelmar-print-service"))
                     .absoluteFilePath();
}

} // namespace

// Texts go through a pipe: everybody can read the arguments of a process.
void notifyDesktop(const QString &title, const QString &text, bool isUrgent)
{
    const QJsonObject notice{{QStringLiteral("title"), title},
                             {QStringLiteral("text"), text},
                             {QStringLiteral("urgent"), isUrgent}};
    platform::Background::start(
        [program = serviceProgram(), json = QJsonDocument(notice).toJson(QJsonDocument::Compact)] {
            QProcess process;
            process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            process.start(program, {QStringLiteral("--notify")});
            if (!process.waitForStarted(longest))
                return;
            process.write(json);
            process.closeWriteChannel();
            if (!process.waitForFinished(longest))
                process.kill();
        },
        nullptr, [] {});
}

} // namespace host
