// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/desktop_notice.h"

#include "host/window/look/service_program.h"
#include "platform/background.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace host {

namespace {

constexpr int longest = 10'000; // milliseconds

// Texts are passed through a pipe, since all users can read the arguments of a process.
QByteArray noticeOf(const QString &title, const QString &text, bool isUrgent)
{
    const QJsonObject notice{{QStringLiteral("title"), title},
                             {QStringLiteral("text"), text},
                             {QStringLiteral("urgent"), isUrgent}};
    return QJsonDocument(notice).toJson(QJsonDocument::Compact);
}

// False if no notification was shown.
bool show(const QString &program, const QByteArray &notice)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, {QStringLiteral("--notify")});
    if (!process.waitForStarted(longest))
        return false;
    process.write(notice);
    process.closeWriteChannel();
    if (process.waitForFinished(longest))
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    process.kill();
    return false;
}

} // namespace

void notifyDesktop(const QString &title, const QString &text, bool isUrgent)
{
    platform::Background::start(
        [program = serviceProgram(), notice = noticeOf(title, text, isUrgent)] { show(program, notice); },
        nullptr, [] {});
}

bool notifyDesktopNow(const QString &title, const QString &text, bool isUrgent)
{
    return show(serviceProgram(), noticeOf(title, text, isUrgent));
}

} // namespace host
