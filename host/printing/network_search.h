// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace host {

class PrintSystem;

// Searches the network for printers on a worker thread, and reports each printer as it is found. May be
// destroyed during a search.
class NetworkSearch : public QObject
{
    Q_OBJECT
public:
    // The print system is borrowed and outlives all searches.
    explicit NetworkSearch(PrintSystem &system, QObject *parent = nullptr);
    ~NetworkSearch() override;

    // Has no effect during a search.
    void begin();
    bool isUnderWay() const { return m_finds != nullptr; }

Q_SIGNALS:
    void found(const host::Destination &printer);
    void ended();

private:
    struct Finds;
    void tell();

    PrintSystem &m_system;
    std::shared_ptr<Finds> m_finds; // null unless a search is running
    QTimer m_look;
};

} // namespace host
