// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

// Moves the calling thread, and the threads and processes it starts from now on, into a network of its own
// with nothing but a loopback interface: port 161 is free, and no name look-up or packet leaves. Needs root,
// or a process of one thread where user namespaces are allowed. Null, or why it cannot be done.
QString enterPrivateNetwork();
// The same and a mount namespace of its own, for programs with fixed paths: each first file takes the place
// of the second, and the folder `emptied` is an empty one.
QString enterPrivateNetworkWithFiles(const QList<std::pair<QString, QString>> &files, const QString &emptied);
