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

// Opens printers on a worker thread, one at a time: a later one takes the place of one that is still
// being opened. Belongs to its window. The print system is borrowed and outlives it.
class PrinterOpener : public QObject
{
    Q_OBJECT
public:
    using Receiver = std::function<void(PrinterOpening)>;

    // While `isHeldUp` is true, as while a panel waits, nothing is delivered and no delay is told.
    PrinterOpener(PrintSystem &system, std::function<bool()> isHeldUp, QObject *parent);

    // The receiver gets what is opened, unless it is dropped.
    void open(const PrinterWish &wish, Receiver receiver);
    // Reads the name of the printer used last on a worker thread, to be shown meanwhile.
    void askUsedLast();
    // Waits for a near server, 50 ms at most; what takes longer is told of at once.
    void deliverNear();
    // Delivers what came while it was held up.
    void deliverHeld();
    // Drops the printer that is being opened and the one that was picked.
    void drop();
    // Also while it is held up.
    bool isOpening() const { return m_opening.isPending() || m_whenIdle; }

    // The user picks this printer; wanted() comes at once, but once it rests where picks follow each other
    // fast.
    void pick(const QString &name);
    bool isPicking() const { return !m_picked.isEmpty(); }

Q_SIGNALS:
    // What is being opened takes longer than a person notices.
    void delayed();
    void usedLastKnown(const QString &name);
    // This picked printer is to be opened.
    void wanted(const QString &name);

private:
    void receive(PrinterOpening opening, const Receiver &receiver);
    void tellDelay();

    PrintSystem &m_system;
    std::function<bool()> m_isHeldUp;
    QString m_picked;                 // to be opened when the user has stopped stepping through printers
    std::function<void()> m_whenIdle; // takes the printer that was opened while it was held up
    platform::Awaited<PrinterOpening> m_opening;
    platform::Awaited<QString> m_usedLast; // the printer's name
    QTimer m_pickTimer;
    QTimer m_openingTimer;
};

} // namespace host
