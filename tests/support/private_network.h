// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

// Moves the calling thread, and the threads and processes that it starts afterwards, into a private network
// with only a loopback interface: port 161 is free, and no name look-up or packet leaves it. Needs root, or a
// process with one thread if user namespaces are allowed. Null on success, or why it is not possible.
QString enterPrivateNetwork();
// The same with a mount namespace, for programs with fixed paths: each first file replaces the second, and
// the folder `emptied` is empty.
QString enterPrivateNetworkWithFiles(const QList<std::pair<QString, QString>> &files, const QString &emptied);
