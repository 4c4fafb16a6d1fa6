// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace host {

class PrintSystem;

// Searches the network for printers on a worker thread, and reports each soon after it was
// found. May go while it looks.
class NetworkSearch : public QObject
{
    Q_OBJECT
public:
    // The print system is borrowed, and outlives every search.
    explicit NetworkSearch(PrintSystem &system, QObject *parent = nullptr);
    ~NetworkSearch() override;

    // No effect while a search is under way.
    void begin();
    bool isUnderWay() const { return m_finds != nullptr; }

Q_SIGNALS:
    void found(const host::Destination &printer);
    void ended();

private:
    struct Finds;
    void tell();

    PrintSystem &m_system;
    std::shared_ptr<Finds> m_finds; // null unless a search is under way
    QTimer m_look;
};

} // namespace host
