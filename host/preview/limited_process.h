// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/confined_process.h"
#include "platform/unique_fd.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace host {

// A file that several may read at once. Those that processes write have no name and go with the last reader.
using SharedFile = std::shared_ptr<const platform::UniqueFd>;

// All that a file holds, mapped: valid for as long as this lives.
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

// A program that reads an untrusted document, confined (Confinement), with limits to its time, its memory and
// what it writes; it is killed otherwise, or with this object. It finds its document as /dev/stdin; what it
// writes to its standard output ends up in a file in memory. Its other output is dropped. Asynchronous; at
// most one run at a time.
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
        QList<SharedFile> others = {}; // it finds them under pathFor()
        QStringList environment = {};  // NAME=VALUE, in addition
    };

    explicit LimitedProcess(QObject *parent);
    ~LimitedProcess() override;

    void setLimits(const Limits &limits) { m_limits = limits; }
    // Ends what runs, without a signal, and begins this.
    void start(const Call &call);
    void stop();
    bool isRunning() const { return m_process != nullptr; }
    // What it was ended for; null when it ended by itself. For messages.
    const QString &problem() const { return m_problem; }

    // What a program calls one of the others of its call.
    static QString pathFor(const SharedFile &file);

Q_SIGNALS:
    // It has ended: with what it wrote, or with null when it failed.
    void ended(const host::SharedFile &output);

private:
    void finish(bool isDone);
    void processEnded(ConfinedProcess::End end);
    void letGo();

    Limits m_limits;
    std::unique_ptr<ConfinedProcess> m_process;
    SharedFile m_output;
    qint64 m_inputSize = 0; // bytes
    QTimer m_timer;
    QString m_problem;
};

} // namespace host
