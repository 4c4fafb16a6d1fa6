// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <memory>
#include <sys/prctl.h>

// A server started by a test; it runs in the foreground and ends with the test in any case.
struct ChildProcessStopper
{
    void operator()(QProcess *process) const
    {
        process->terminate();
        if (!process->waitForFinished(5000))
            process->kill();
        process->waitForFinished(1000);
        delete process;
    }
};
using ChildProcess = std::unique_ptr<QProcess, ChildProcessStopper>;

// Starts a program and waits until it has written `readyText`. Null on failure, with its output in `error`.
inline ChildProcess startChildProcess(const QString &program, const QStringList &arguments,
                                      const QByteArray &readyText, QString *error, int milliseconds = 15000,
                                      QIODevice::OpenMode mode = QIODevice::ReadOnly)
{
    ChildProcess process(new QProcess);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process->start(program, arguments, mode);
    QByteArray output;
    QElapsedTimer clock;
    clock.start();
    while (!output.contains(readyText)) {
        const qint64 left = milliseconds - clock.elapsed();
        if (left <= 0 || !process->waitForReadyRead(static_cast<int>(left))) {
            *error = QStringLiteral("%1: %2 %3")
                         .arg(program, process->errorString(), QString::fromLocal8Bit(output));
            return nullptr;
        }
        output += process->readAll();
    }
    return process;
}
