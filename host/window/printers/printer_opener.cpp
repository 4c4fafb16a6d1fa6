// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_opener.h"

#include "host/printing/print_system.h"

namespace host {

namespace {

// The thread waits this long for a print server, which the user does not notice. The response of a nearby
// server is then shown at once.
constexpr std::chrono::milliseconds nearServer(50);
// If the user steps through printers faster than this, the printers in between are not opened.
constexpr std::chrono::milliseconds betweenPicks(200);

PrinterOpening openAny(PrintSystem &system, const PrinterWish &wish)
{
    PrinterOpening opening;
    if (!wish.isForAnyone()) {
        opening.printer = openPrinter(system, wish, &opening.error);
        const bool isGone = opening.error.kind == PrintError::Kind::NoSuchPrinter ||
                            opening.error.kind == PrintError::Kind::NoSuchPreset;
        if (!wish.mayBeGone || !isGone)
            return opening;
        opening.error = {};
    }
    opening.printer = openFirstPrinter(system, RememberedPrinter().name(), &opening.error);
    return opening;
}

} // namespace

PrinterOpener::PrinterOpener(PrintSystem &system, std::function<bool()> isDeferred, QObject *parent)
    : QObject(parent), m_system(system), m_isDeferred(std::move(isDeferred))
{
    m_pickTimer.setSingleShot(true);
    m_pickTimer.setInterval(betweenPicks);
    connect(&m_pickTimer, &QTimer::timeout, this, [this] {
        if (!m_picked.isEmpty())
            Q_EMIT wanted(std::exchange(m_picked, QString()));
    });
    m_openingTimer.setSingleShot(true);
    connect(&m_openingTimer, &QTimer::timeout, this, &PrinterOpener::tellDelay);
}

void PrinterOpener::open(const PrinterWish &wish, Receiver receiver)
{
    m_whenIdle = nullptr;
    m_usedLast.drop(); // of the previous request
    m_opening.start(
        this, [&system = m_system, wish] { return openAny(system, wish); },
        [this, receiver = std::move(receiver)](PrinterOpening opening) {
            receive(std::move(opening), receiver);
        });
    m_openingTimer.start(nearServer);
}

// On a worker thread, since reading the settings file may be as slow as the print server.
void PrinterOpener::askUsedLast()
{
    m_usedLast.start(
        this, [] { return RememberedPrinter().name(); },
        [this](const QString &name) {
            if (isOpening() && !name.isEmpty())
                Q_EMIT usedLastKnown(name);
        });
}

void PrinterOpener::deliverNear()
{
    if (m_opening.deliverWithin(nearServer))
        return;
    m_usedLast.deliverWithin(std::chrono::milliseconds(0));
    tellDelay();
}

// Holds the result up while a panel waits: the receiver would destroy the session, whose panel is still on
// the call stack.
void PrinterOpener::receive(PrinterOpening opening, const Receiver &receiver)
{
    m_openingTimer.stop();
    if (!m_isDeferred()) {
        receiver(std::move(opening));
        return;
    }
    auto held = std::make_shared<PrinterOpening>(std::move(opening));
    m_whenIdle = [receiver, held] { receiver(std::move(*held)); };
}

void PrinterOpener::deliverHeld()
{
    if (const auto take = std::exchange(m_whenIdle, nullptr))
        take();
}

void PrinterOpener::drop()
{
    m_pickTimer.stop();
    m_openingTimer.stop();
    m_picked.clear();
    m_opening.drop();
    m_whenIdle = nullptr;
}

void PrinterOpener::pick(const QString &name)
{
    if (m_pickTimer.isActive()) {
        drop();
        m_picked = name;
    } else {
        Q_EMIT wanted(name);
    }
    m_pickTimer.start();
}

void PrinterOpener::tellDelay()
{
    if (!m_opening.isPending())
        return;
    if (m_isDeferred())
        m_openingTimer.start(nearServer);
    else
        Q_EMIT delayed();
}

} // namespace host
