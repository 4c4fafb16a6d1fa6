// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/door_service.h"

#include "host/service/log.h"

#include <QCoreApplication>
#include <QDBusError>

#include <unistd.h>

Q_LOGGING_CATEGORY(lcService, "kelmar.service")

namespace host {

DoorService::DoorService(const QDBusConnection &bus, const QString &dialogProgram,
                         std::chrono::milliseconds idleTime)
    : m_bus(bus), m_life(dialogProgram, idleTime), m_portal(m_life, m_tokens), m_documents(m_life)
{
    connect(&m_life, &ServiceLife::idle, this, &DoorService::leaveWhenIdle);
    connect(&m_tokens, &TokenStore::emptied, &m_life, &ServiceLife::touch);
}

bool DoorService::start()
{
    if (!m_bus.isConnected()) {
        qCWarning(lcService).noquote() << "no session bus:" << m_bus.lastError().message();
        return false;
    }
    // QtDBus does not end a program when the bus disconnects.
    m_bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                  SLOT(busHasGone()));
    // Types of arguments that were not used in a call yet; introspection omits them otherwise.
    qRegisterMetaType<QDBusObjectPath>();
    qRegisterMetaType<QDBusUnixFileDescriptor>();
    const auto exported = QDBusConnection::ExportScriptableSlots;
    if (!m_bus.registerObject(PrintPortal::objectPath(), &m_portal, exported) ||
        !m_bus.registerObject(DocumentDoor::objectPath(), &m_documents, exported))
        return false;
    return takeNames();
}

// Always in this order, so that if two services start at the same time, the same one gets both names.
bool DoorService::takeNames()
{
    for (const QString &name : {PrintPortal::serviceName(), DocumentDoor::serviceName()}) {
        if (!m_bus.registerService(name)) {
            qCInfo(lcService).noquote() << name << "is served already";
            return false;
        }
    }
    return true;
}

// Releases the names first: later calls start a new service, and earlier calls have arrived here when the bus
// has answered.
void DoorService::leaveWhenIdle()
{
    if (!m_tokens.isEmpty())
        return; // touch() restarts the timer after the last request
    m_bus.unregisterService(DocumentDoor::serviceName());
    m_bus.unregisterService(PrintPortal::serviceName());
    QCoreApplication::processEvents();
    if (m_life.isUsed() || !m_tokens.isEmpty())
        takeNames();
    else
        QCoreApplication::quit();
}

// Exits at once without cleaning up: each open dialog handles this itself.
void DoorService::busHasGone()
{
    ::_exit(0);
}

} // namespace host
