// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QList>

#include <mutex>
#include <thread>
#include <vector>

// A print server on a socket that answers each request with the next of the given responses, on its own
// thread, and closes the connection when there are none left. Lives as long as the process.
class ScriptedServer
{
public:
    // Listens at a path, which must not exist.
    explicit ScriptedServer(const QByteArray &path);

    // Placeholder in a response for the token of the most recently created job.
    static constexpr char anyToken[] = "urn:uuid:00000000-0000-0000-0000-000000000000";

    // Sets the responses to the next requests on any connection. The request ID in the body of a response is
    // replaced by that of the request; a response that begins with "HTTP/" is sent unchanged.
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
    std::mutex m_mutex; // guards the responses
    QList<QByteArray> m_answers;
    QByteArray m_token;
    std::thread m_thread;
};
