// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/opened_printer.h"
#include "platform/awaited.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace host {

// Opens printers on a worker thread, one at a time: a later request replaces one that is still running. Part
// of a SessionOpener. The print system is borrowed and outlives it.
class PrinterOpener : public QObject
{
    Q_OBJECT
public:
    using Receiver = std::function<void(PrinterOpening)>;

    // While `isDeferred` returns true, for example while a panel waits, neither results nor delays are
    // reported.
    PrinterOpener(PrintSystem &system, std::function<bool()> isDeferred, QObject *parent);

    // Calls the receiver with the result, unless it is dropped.
    void open(const PrinterWish &wish, Receiver receiver);
    // Reads the name of the printer used last on a worker thread, to show it until a printer is open.
    void askUsedLast();
    // Waits for a nearby server, 50 ms at most. If the printer is not open then, emits delayed() before it
    // returns.
    void deliverNear();
    // Delivers a result that was held up.
    void deliverHeld();
    // Discards the running request and the selected printer.
    void drop();
    // Whether a printer is being opened, or a result is held up.
    bool isOpening() const { return m_opening.isPending() || m_whenIdle; }

    // The user has selected this printer; wanted() is emitted immediately, or after a pause if selections
    // follow each other quickly.
    void pick(const QString &name);
    bool isPicking() const { return !m_picked.isEmpty(); }

Q_SIGNALS:
    // Opening takes noticeably long.
    void delayed();
    void usedLastKnown(const QString &name);
    // The selected printer has to be opened.
    void wanted(const QString &name);

private:
    void receive(PrinterOpening opening, const Receiver &receiver);
    void tellDelay();

    PrintSystem &m_system;
    std::function<bool()> m_isDeferred;
    QString m_picked;                 // to be opened when the user stops stepping through printers
    std::function<void()> m_whenIdle; // delivers the result that is held up
    platform::Awaited<PrinterOpening> m_opening;
    platform::Awaited<QString> m_usedLast; // name of the printer
    QTimer m_pickTimer;
    QTimer m_openingTimer;
};

} // namespace host
