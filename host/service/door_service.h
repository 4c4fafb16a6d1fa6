// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/document_door.h"
#include "host/service/print_portal.h"
#include "host/service/service_life.h"
#include "host/service/token_store.h"

#include <QDBusConnection>
#include <QObject>

namespace host {

// The service on a user's bus: its names, its two D-Bus objects, and its lifetime. Lives as long as the
// program.
class DoorService : public QObject
{
    Q_OBJECT
public:
    DoorService(const QDBusConnection &bus, const QString &dialogProgram, std::chrono::milliseconds idleTime);

    // False if there is no bus, or another service already owns the names.
    bool start();

private Q_SLOTS:
    void busHasGone();

private:
    bool takeNames();
    void leaveWhenIdle();

    QDBusConnection m_bus;
    TokenStore m_tokens;
    ServiceLife m_life;
    PrintPortal m_portal;
    DocumentDoor m_documents;
};

} // namespace host
