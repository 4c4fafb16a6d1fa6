// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/dialog_process.h"

#include "host/service/log.h"

#include <QJsonDocument>
#include <QTimer>

namespace host {

namespace {

constexpr std::chrono::seconds closingTime(20);
constexpr qsizetype mostUnread = 4 * 1024 * 1024; // bytes; an answer has a few kilobytes

QJsonObject failure()
{
    return {{QStringLiteral("response"), 2}, {QStringLiteral("reason"), QStringLiteral("ended")}};
}

} // namespace

DialogProcess::DialogProcess(const QString &program, QObject *parent) : QObject(parent)
{
    m_process.setProgram(program);
    m_process.setArguments({QStringLiteral("--dialog-request")});
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel); // appears in the journal
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &DialogProcess::read);
    connect(&m_process, &QProcess::finished, this, &DialogProcess::finish);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        qCWarning(lcService).noquote() << m_process.program() << m_process.errorString();
        if (error == QProcess::FailedToStart)
            QMetaObject::invokeMethod(this, &DialogProcess::finish, Qt::QueuedConnection);
    });
}

void DialogProcess::start(QJsonObject request, platform::UniqueFd document)
{
    m_document = std::move(document);
    if (m_document) {
        const int fd = m_document.get();
        request.insert(QStringLiteral("document"), fd);
        m_process.setChildProcessModifier([fd] { ::fcntl(fd, F_SETFD, 0); });
    }
    m_process.start();
    m_process.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
}

void DialogProcess::closeAbandoned()
{
    m_process.write("{\"event\":\"abandoned\"}\n");
    close();
    QTimer::singleShot(closingTime, &m_process, &QProcess::kill);
}

void DialogProcess::read()
{
    m_document.reset(); // the process has its own descriptor now
    m_unread += m_process.readAllStandardOutput();
    for (qsizetype end = m_unread.indexOf('\n'); end >= 0; end = m_unread.indexOf('\n')) {
        const QByteArray line = m_unread.left(end);
        m_unread.remove(0, end + 1);
        readLine(line);
    }
    if (m_unread.size() > mostUnread) {
        qCWarning(lcService) << "a dialog writes without end; it is stopped";
        m_unread.clear();
        m_process.kill();
    }
}

void DialogProcess::readLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (object.value(QLatin1String("event")) == QLatin1String("shown"))
        Q_EMIT shown();
    else if (object.contains(QLatin1String("response")))
        answer(object);
}

void DialogProcess::answer(const QJsonObject &object)
{
    if (!std::exchange(m_answered, true))
        Q_EMIT answered(object);
}

void DialogProcess::finish()
{
    if (std::exchange(m_ended, true))
        return;
    m_document.reset();
    answer(failure());
    Q_EMIT ended();
}

} // namespace host
