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

// Opens the session of the printer of a task, and of printers that the user selects. Printers are opened on a
// worker thread; the session is created on the dialog's thread. Owned by its window. The print system and the
// extensions are borrowed and outlive it.
class SessionOpener : public QObject
{
    Q_OBJECT
public:
    struct Result
    {
        std::unique_ptr<DialogSession> session; // null with an error
        PrintError error;
        bool isForTask = false; // the settings of the task must still be applied
    };
    using Receiver = std::function<void(Result)>;

    // Nothing is delivered while `isDeferred` returns true, for example while a panel waits.
    SessionOpener(PrintSystem &system, Extensions &extensions, const PrintTask &task,
                  std::function<bool()> isDeferred, Receiver receiver);
    ~SessionOpener() override;

    // Opens the printer of the task, also again after a failure.
    void openTask();
    // Call if the session that was opened for the task is discarded because the task is impossible with it.
    // The next session is then again one for the task.
    void refuseTask() { m_isForTask = true; }
    // Waits for a nearby server, 50 ms at most.
    void deliverNear() { m_printers.deliverNear(); }
    // Opens the printer that the user has selected, by destination name. It replaces the printer of the task
    // once it is open.
    void pick(const QString &name) { m_printers.pick(name); }
    // Delivers the results that were held up.
    void deliverHeld() { m_printers.deliverHeld(); }
    // Discards pending requests.
    void drop() { m_printers.drop(); }
    bool isBusy() const { return m_printers.isOpening() || m_printers.isPicking(); }

Q_SIGNALS:
    // Opening takes noticeably long.
    void delayed();
    // While there is no session: the destination name of the printer that is being opened.
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
