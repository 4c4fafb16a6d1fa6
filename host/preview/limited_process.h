// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/confined_process.h"
#include "platform/unique_fd.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <memory>

namespace host {

// A file that can be read by several readers at the same time. Files written by processes are unlinked and
// are freed with the last reader.
using SharedFile = std::shared_ptr<const platform::UniqueFd>;

// Maps the whole contents of a file; valid during the lifetime of this object.
class FileView
{
public:
    explicit FileView(const SharedFile &file);
    ~FileView();
    FileView(const FileView &) = delete;
    FileView &operator=(const FileView &) = delete;
    QByteArrayView bytes() const { return m_bytes; }

private:
    QByteArrayView m_bytes;
};

// Runs a program that reads an untrusted document, confined (Confinement), with limits on time, memory and
// output. It is killed if it exceeds them, or with this object. The document is /dev/stdin; the standard
// output is written to a file in memory, other output is discarded. Asynchronous; at most one run at a time.
// No operation waits for a process. Processes that still run are killed with the application object.
class LimitedProcess : public QObject
{
    Q_OBJECT
public:
    using Limits = ProcessLimits;
    struct Call
    {
        QString program; // a path
        QStringList arguments;
        SharedFile input;              // never null
        QList<SharedFile> others = {}; // available to the program under pathFor()
        QStringList environment = {};  // NAME=VALUE, in addition
    };

    explicit LimitedProcess(QObject *parent);
    ~LimitedProcess() override;

    void setLimits(const Limits &limits) { m_limits = limits; }
    // Kills the current run, without a signal, and starts a new one.
    void start(const Call &call);
    void stop();
    bool isRunning() const { return m_process != nullptr; }
    // Why it was killed; null if it exited. For messages.
    const QString &problem() const { return m_problem; }

    // The path under which a program can open one of the other files of its call. Also valid in this process
    // while the file is held.
    static QString pathFor(const SharedFile &file);

Q_SIGNALS:
    // The program has ended: with its output, or with null if it failed.
    void ended(const host::SharedFile &output);

private:
    void finish(bool isDone);
    void processEnded(ConfinedProcess::End end, int error);
    void killProcess();

    Limits m_limits;
    QPointer<ConfinedProcess> m_process;           // on the thread of all confined processes
    std::shared_ptr<std::atomic<bool>> m_isWanted; // false after the run was stopped
    SharedFile m_output;
    qint64 m_inputSize = 0; // bytes
    QTimer m_timer;
    QString m_problem;
};

} // namespace host
