// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace host {

// The credentials for a print server that requires authentication.
struct Login
{
    QString user;
    QString password;
    bool operator==(const Login &) const = default;
};

struct LoginQuestion
{
    QString server;
    QString user;           // proposed user name
    bool again = false;     // the previous answer was not accepted
    bool isInClear = false; // the answer is sent over the network without encryption
};

// Prompts the user; null if the user declines. Called on the requesting thread.
using LoginPrompt = std::function<std::optional<Login>(const LoginQuestion &)>;

// Time limits for a server, in milliseconds.
struct ServerPatience
{
    int connectTime = 10'000;
    int idleTime = 30'000; // without any data being transferred
    // For finding out the outcome of a job: the time in which a server that has disconnected must come back,
    // and the total time for queries after a time-out or after the user has stopped waiting.
    int recoveryTime = 6'000;
};

// The login prompt and its last answer, so that one answer serves all requests of a program; and the time
// limits. Used by one thread at a time.
struct LoginKeeper
{
    ServerPatience patience;
    LoginPrompt prompt; // if empty, the user is not prompted, and requests that require a login are refused
    std::optional<Login> given;
    // The accepted credentials in the form of an HTTP header. Later connections send them from the start,
    // since a refusal in the middle of a request may break the connection.
    QByteArray accepted;
};

} // namespace host
