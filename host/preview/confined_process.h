// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/private_folder.h"
#include "platform/unique_fd.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <chrono>
#include <optional>
#include <vector>

class QSocketNotifier;

namespace host {

struct ProcessLimits
{
    std::chrono::milliseconds time{20'000};
    qint64 memory = qint64(1) << 30;   // bytes of address space
    qint64 output = qint64(256) << 20; // bytes, of each file
};

// Runs a program that reads a document, confined by Confinement, with a private folder for its temporary
// files. Its child processes end with it, and all of them end with this object, which briefly waits for that.
// Must live on a thread with an event loop that outlives the process, since the kernel ends the process with
// that thread.
class ConfinedProcess : public QObject
{
    Q_OBJECT
public:
    struct Call
    {
        QByteArray program;            // an absolute path
        QList<QByteArray> arguments;   // without the program's name
        QList<QByteArray> environment; // NAME=VALUE, in addition to the minimal environment
        int input = -1, output = -1;   // descriptors: its standard input and output
        std::vector<int> others = {};  // inherited under the same numbers
    };
    enum class End { NotStarted, Crashed, Failed, Done };

    using QObject::QObject;
    ~ConfinedProcess() override;

    // Starts the program, once. False, with errno, if there is no process; a program that cannot be executed
    // ends with NotStarted.
    bool start(const Call &call, const ProcessLimits &limits);
    bool isRunning() const { return bool(m_handle); }
    // Kills all processes; ended() follows.
    void kill();

Q_SIGNALS:
    // The process and its child processes have ended, and the folder has been removed. With errno if it was
    // not started, else 0.
    void ended(host::ConfinedProcess::End end, int error);

private:
    void reap();

    std::optional<PrivateFolder> m_folder;
    platform::UniqueFd m_handle; // of the process; none after it has been waited for
    platform::UniqueFd m_report; // messages before the program is executed
    pid_t m_process = -1;
    QSocketNotifier *m_notifier = nullptr;
};

} // namespace host
