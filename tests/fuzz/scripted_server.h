// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QList>

#include <mutex>
#include <thread>
#include <vector>

// A print server on a socket that answers each request with the next of the answers it was given, on a thread
// of its own, and closes the connection when there is none left. Lives as long as the process.
class ScriptedServer
{
public:
    // Listens at a path, which must be free.
    explicit ScriptedServer(const QByteArray &path);

    // Stands in an answer for the token of the job that was made last.
    static constexpr char anyToken[] = "urn:uuid:00000000-0000-0000-0000-000000000000";

    // The answers to the next requests, whichever connection they come on. In the body of an answer the
    // number of the request takes the place of what stands there; an answer that begins with "HTTP/" goes out
    // as it is.
    void setAnswers(const QList<QByteArray> &answers);

private:
    struct Connection
    {
        platform::UniqueFd socket;
        QByteArray unread;
        bool wasToldToGoOn = false;
    };
    void serve();
    bool readFrom(Connection *connection);
    bool answer(Connection *connection, const QByteArray &body);

    platform::UniqueFd m_listener;
    std::vector<Connection> m_connections;
    std::mutex m_mutex; // guards the answers
    QList<QByteArray> m_answers;
    QByteArray m_token;
    std::thread m_thread;
};
