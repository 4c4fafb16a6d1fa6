// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/child_process.h"
#include "tests/support/paths.h"

#include <QFile>
#include <QTest>

// Runs stalling_proxy.py in front of a print server during the lifetime of the object. Commands and answers
// are processed in the event loop, so that a measurement continues.
class StallingProxy
{
public:
    StallingProxy(const QString &socketPath, const QString &serverPath, QString *error)
        : m_socketPath(socketPath)
    {
        QFile::remove(socketPath);
        m_process =
            startChildProcess(QStringLiteral("python3"),
                              {sourcePath("/tests/support/stalling_proxy.py"), socketPath, serverPath},
                              "ready", error, 15000, QIODevice::ReadWrite);
    }

    bool isRunning() const { return m_process != nullptr; }
    QString socketPath() const { return m_socketPath; }
    // False if it is not confirmed.
    bool command(const QByteArray &line)
    {
        m_said.clear();
        m_process->write(line + '\n');
        return QTest::qWaitFor([this] { return hasSaid("ok"); });
    }
    // Since the last command.
    bool hasStalled() { return hasSaid("stalled"); }

private:
    bool hasSaid(const char *word)
    {
        m_said += m_process->readAll();
        return m_said.split('\n').contains(word);
    }

    QString m_socketPath;
    ChildProcess m_process;
    QByteArray m_said;
};
