// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QThread>

namespace host {

// The thread on which confined processes are started and waited for. On a busy machine it is blocked for tens
// of milliseconds while namespaces are created, until the program is executed, and while a folder on which a
// file system was mounted is removed. It runs until the application object is destroyed, since the kernel
// ends the processes with it.
class ProcessThread
{
public:
    // Starts the thread on first use; never destroyed.
    static ProcessThread &instance();

    void take(QObject *process) { process->moveToThread(&m_thread); }
    // Takes ownership of a process. Call on this thread.
    void own(QObject *process) { process->setParent(&m_owner); }
    // Ends all processes, and waits until their folders are removed. Call on another thread before a signal
    // ends the program, when no object uses the processes.
    void endProcesses();

private:
    ProcessThread();

    QThread m_thread;
    QObject m_owner;
};

} // namespace host
