// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace host {

// What a print server that wants to know who prints is told.
struct Login
{
    QString user;
    QString password;
    bool operator==(const Login &) const = default;
};

struct LoginQuestion
{
    QString server;
    QString user;           // proposed
    bool again = false;     // the last answer was not accepted
    bool isInClear = false; // the answer crosses the network without encryption
};

// Asks a person; null when they do not want to answer. Called on the thread that makes the request.
using LoginPrompt = std::function<std::optional<Login>(const LoginQuestion &)>;

// How long a server is waited for, in milliseconds.
struct ServerPatience
{
    int connectTime = 10'000;
    int idleTime = 30'000; // without a byte going either way
    // Until a job whose fate it does not tell is given up for not known: after it broke off, to come back;
    // after it was silent or the user gave up, for all that it is asked then.
    int recoveryTime = 6'000;
};

// The login prompt and its last answer, so that one answer does for every request of a program; and how
// long they wait. One thread at a time.
struct LoginKeeper
{
    ServerPatience patience;
    LoginPrompt prompt; // empty: the user is not asked, and what needs a login is refused
    std::optional<Login> given;
    // What was accepted, as the server's HTTP side wants it: sent along from the start on later connections,
    // since a refusal may cross with the request and end as a broken connection.
    QByteArray accepted;
};

} // namespace host
