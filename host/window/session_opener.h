// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/window/print_task.h"
#include "host/window/printers/printer_opener.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace host {

class DialogSession;

// Opens the session of the printer that a task names, and of printers that the user picks. Printers are
// opened on a worker thread; the session is made on the dialog's thread. Belongs to its window. The print
// system and the extensions are borrowed and outlive it.
class SessionOpener : public QObject
{
    Q_OBJECT
public:
    struct Result
    {
        std::unique_ptr<DialogSession> session; // null with an error
        PrintError error;
        bool isForTask = false; // its settings are still to be made
    };
    using Receiver = std::function<void(Result)>;

    // While `isHeldUp` is true, as while a panel waits, nothing is delivered.
    SessionOpener(PrintSystem &system, Extensions &extensions, const PrintTask &task,
                  std::function<bool()> isHeldUp, Receiver receiver);
    ~SessionOpener() override;

    // Opens the printer that the task names, again where it could not be opened.
    void openTask();
    // Drops the session that was opened for the task: it cannot do what the task asks for, another one may.
    void refuseTask() { m_isForTask = true; }
    // Waits for a near server, 50 ms at most.
    void deliverNear() { m_printers.deliverNear(); }
    // The user picks a printer, by destination name. It takes the place of the task's until that one is open.
    void pick(const QString &name) { m_printers.pick(name); }
    // Delivers what was opened while it was held up.
    void deliverHeld() { m_printers.deliverHeld(); }
    // Drops what is being opened or was picked.
    void drop() { m_printers.drop(); }
    bool isBusy() const { return m_printers.isOpening() || m_printers.isPicking(); }

Q_SIGNALS:
    // Opening takes longer than a user notices.
    void delayed();
    // Before there is a session: the destination name of the printer that is being opened.
    void awaited(const QString &name);

private:
    void open(const PrinterWish &wish);
    void openPicked(const QString &name);
    void deliver(PrinterOpening opening);

    Extensions &m_extensions;
    PrintTask m_task;
    Receiver m_receiver;
    PrinterOpener m_printers;
    bool m_isForTask = true;
};

} // namespace host
