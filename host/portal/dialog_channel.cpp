// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/dialog_channel.h"

#include "platform/descriptor_io.h"

#include <QJsonDocument>
#include <QSocketNotifier>

#include <csignal>
#include <poll.h>

namespace host {

namespace {

constexpr qsizetype longestRequest = 16 * 1024 * 1024; // bytes

}

DialogChannel::DialogChannel() : m_answers(platform::UniqueFd::duplicate(STDOUT_FILENO))
{
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    std::signal(SIGPIPE, SIG_IGN); // the service may exit first
}

std::optional<QJsonObject> DialogChannel::readRequest()
{
    QByteArray line;
    char block[4096];
    while (!line.endsWith('\n') && line.size() < longestRequest) {
        const ssize_t got = platform::readSome(STDIN_FILENO, block, sizeof block);
        if (got <= 0)
            return std::nullopt;
        line.append(block, got);
    }
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

// After the request, the input only signals that the caller has gone.
bool DialogChannel::isClosed() const
{
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 0) > 0;
}

void DialogChannel::watch()
{
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] { read(notifier); });
}

void DialogChannel::read(QSocketNotifier *notifier)
{
    char block[256];
    const ssize_t got = platform::readSome(STDIN_FILENO, block, sizeof block);
    if (got <= 0) {
        notifier->setEnabled(false);
        Q_EMIT closed();
        return;
    }
    m_unread.append(block, got);
    for (qsizetype end = m_unread.indexOf('\n'); end >= 0; end = m_unread.indexOf('\n')) {
        const QJsonObject line = QJsonDocument::fromJson(m_unread.left(end)).object();
        m_unread.remove(0, end + 1);
        if (line.value(QLatin1String("event")) == QLatin1String("abandoned"))
            Q_EMIT abandoned();
    }
    m_unread.truncate(longestRequest);
}

void DialogChannel::write(const QJsonObject &answer)
{
    const QByteArray line = QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
    // The service may have exited.
    (void)platform::writeAll(m_answers.get(), {line.constData(), static_cast<size_t>(line.size())});
}

} // namespace host
