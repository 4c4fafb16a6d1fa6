// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fuzz/scripted_server.h"

#include "host/printing/job_lookup.h"
#include "tests/fuzz/fuzz_support.h"

#include <algorithm>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

constexpr int requestIdAt = 4; // in an IPP message
constexpr int requestIdSize = 4;

bool send(int socket, const QByteArray &bytes)
{
    return ::send(socket, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL) == bytes.size();
}

qint64 contentLength(const QByteArray &head)
{
    const qsizetype at = head.indexOf("\r\ncontent-length:");
    return at < 0 ? 0 : head.mid(at + 17, head.indexOf("\r\n", at + 2) - at - 17).trimmed().toLongLong();
}

// The body of a request that begins at `at`, and its length in bytes; -1 while it is incomplete.
qsizetype takeChunks(const QByteArray &bytes, qsizetype at, QByteArray *body)
{
    const qsizetype start = at;
    while (true) {
        const qsizetype end = bytes.indexOf("\r\n", at);
        if (end < 0)
            return -1;
        const qsizetype size = bytes.mid(at, end - at).toLongLong(nullptr, 16);
        at = end + 2 + size + 2;
        if (at > bytes.size())
            return -1;
        body->append(bytes.mid(end + 2, size));
        if (size == 0)
            return at - start;
    }
}

} // namespace

ScriptedServer::ScriptedServer(const QByteArray &path)
    : m_listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    requireThat(m_listener && path.size() < static_cast<qsizetype>(sizeof address.sun_path));
    std::copy(path.begin(), path.end(), address.sun_path);
    requireThat(::bind(m_listener.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
    requireThat(::listen(m_listener.get(), 16) == 0);
    m_thread = std::thread([this] { serve(); });
    m_thread.detach();
}

void ScriptedServer::setAnswers(const QList<QByteArray> &answers)
{
    const std::lock_guard lock(m_mutex);
    m_answers = answers;
}

void ScriptedServer::serve()
{
    while (true) {
        std::vector<pollfd> sockets{{m_listener.get(), POLLIN, 0}};
        for (const Connection &connection : m_connections)
            sockets.push_back({connection.socket.get(), POLLIN, 0});
        ::poll(sockets.data(), static_cast<nfds_t>(sockets.size()), -1);
        for (std::size_t i = sockets.size(); --i > 0;) {
            if (sockets[i].revents != 0 && !readFrom(&m_connections[i - 1]))
                m_connections.erase(m_connections.begin() + static_cast<std::ptrdiff_t>(i - 1));
        }
        if (sockets.front().revents != 0) {
            Connection connection;
            connection.socket =
                platform::UniqueFd(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
            if (connection.socket)
                m_connections.push_back(std::move(connection));
        }
    }
}

// False if the connection has been closed.
bool ScriptedServer::readFrom(Connection *connection)
{
    char block[65536];
    const ssize_t got = ::recv(connection->socket.get(), block, sizeof block, 0);
    if (got <= 0)
        return false;
    connection->unread.append(block, got);
    while (true) {
        const qsizetype headSize = connection->unread.indexOf("\r\n\r\n") + 4;
        if (headSize < 4)
            return true;
        const QByteArray head = connection->unread.left(headSize).toLower();
        const bool wantsToKnow = head.contains("\r\nexpect:");
        if (wantsToKnow && !std::exchange(connection->wasToldToGoOn, true))
            send(connection->socket.get(), "HTTP/1.1 100 Continue\r\n\r\n");
        QByteArray body;
        qsizetype taken = contentLength(head);
        if (head.contains("chunked"))
            taken = takeChunks(connection->unread, headSize, &body);
        else
            body = connection->unread.mid(headSize, taken);
        if (taken < 0 || connection->unread.size() < headSize + taken)
            return true;
        connection->unread.remove(0, headSize + taken);
        connection->wasToldToGoOn = false;
        if (!answer(connection, body))
            return false;
    }
}

bool ScriptedServer::answer(Connection *connection, const QByteArray &body)
{
    QByteArray next;
    {
        const std::lock_guard lock(m_mutex);
        if (m_answers.isEmpty())
            return false;
        next = m_answers.takeFirst();
    }
    if (next.startsWith("HTTP/")) {
        send(connection->socket.get(), next);
        return false;
    }
    const bool makesJob = body.size() > requestIdAt && body[requestIdAt - 1] == IPP_OP_CREATE_JOB;
    const qsizetype tokenAt = makesJob ? body.indexOf(host::tokenAttribute) : -1;
    if (tokenAt >= 0) // the name is followed by two bytes with the length
        m_token =
            body.mid(tokenAt + qsizetype(sizeof host::tokenAttribute) + 1, qsizetype(sizeof anyToken) - 1);
    next.replace(anyToken, m_token);
    if (next.size() >= requestIdAt + requestIdSize && body.size() >= requestIdAt + requestIdSize)
        next.replace(requestIdAt, requestIdSize, body.mid(requestIdAt, requestIdSize));
    return send(connection->socket.get(),
                "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                    QByteArray::number(next.size()) + "\r\n\r\n" + next);
}
