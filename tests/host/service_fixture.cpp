// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/service_fixture.h"

#include "tests/support/paths.h"

#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

Answer answerOf(const QDBusMessage &reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return {reply.arguments().value(0).toInt(),
            qdbus_cast<QVariantMap>(reply.arguments().value(1).value<QDBusArgument>())};
}

void ServiceFixture::startBus()
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QString address = u"unix:path="_s + m_folder->filePath(u"bus"_s);
    QString error;
    m_daemon = startChildProcess(
        u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s, u"--address="_s + address},
        "unix:", &error);
    if (!m_daemon)
        QSKIP(qPrintable(error));
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    qputenv("STUB_LOG", m_folder->filePath(u"log"_s).toUtf8());
    m_bus = QDBusConnection::connectToBus(address, connectionName);
    QVERIFY(m_bus.isConnected());
}

void ServiceFixture::stopAll()
{
    QDBusConnection::disconnectFromBus(connectionName);
    m_bus = QDBusConnection(connectionName);
    m_service.reset();
    m_daemon.reset();
}

void ServiceFixture::startService(const QStringList &arguments)
{
    m_service.reset(new QProcess);
    m_service->setProcessChannelMode(QProcess::ForwardedChannels);
    m_service->start(buildPath("/bin/kelmar-print-service"),
                     QStringList{u"--dialog-program"_s, sourcePath("/tests/host/stub_dialog.sh")} +
                         arguments);
    const auto hasName = [this] {
        const auto reply = m_bus.call(QDBusMessage::createMethodCall(
            u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus"_s, u"ListNames"_s));
        return reply.arguments().value(0).toStringList().contains(u"org.kelmar.Print1"_s);
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasName(), patience);
}

QDBusMessage ServiceFixture::prepareCall(const QString &title, const QVariantMap &settings,
                                         const QString &appId, const QString &handle,
                                         const QVariantMap &options)
{
    auto message = QDBusMessage::createMethodCall(portalName, portalPath,
                                                  u"org.freedesktop.impl.portal.Print"_s, u"PreparePrint"_s);
    const QString path = handle.isEmpty() ? u"/request/r%1"_s.arg(++m_calls) : handle;
    message << QVariant::fromValue(QDBusObjectPath(path)) << appId << u"x11:zz"_s << title << settings
            << QVariantMap{{u"Width"_s, 210.0}, {u"Height"_s, 297.0}} << options;
    return message;
}

QDBusMessage ServiceFixture::printCall(uint token, const QString &appId, const QString &title)
{
    QTemporaryFile file;
    if (!file.open() || file.write("the document") < 0 || !file.flush())
        qFatal("no temporary file");
    auto message = QDBusMessage::createMethodCall(portalName, portalPath,
                                                  u"org.freedesktop.impl.portal.Print"_s, u"Print"_s);
    message << QVariant::fromValue(QDBusObjectPath(u"/request/r%1"_s.arg(++m_calls))) << appId << QString()
            << title << QVariant::fromValue(QDBusUnixFileDescriptor(file.handle()))
            << QVariantMap{{u"token"_s, token}};
    return message;
}

QDBusMessage ServiceFixture::openCall(const QByteArray &title)
{
    QTemporaryFile file;
    if (!file.open() || file.write("PDF") < 0 || !file.flush())
        qFatal("no temporary file");
    auto message = QDBusMessage::createMethodCall(u"org.kelmar.Print1"_s, u"/org/kelmar/Print1"_s,
                                                  u"org.kelmar.Print1"_s, u"OpenDocument"_s);
    message << QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())) << title << 3U
            << QByteArray("sides=one-sided \xff");
    return message;
}

Answer ServiceFixture::call(const QDBusMessage &message)
{
    return answerOf(m_bus.call(message, QDBus::BlockWithGui, patience));
}

QByteArray ServiceFixture::dialogProcesses() const
{
    const QString pid = QString::number(m_service->processId());
    QFile file(u"/proc/%1/task/%1/children"_s.arg(pid));
    return file.open(QIODevice::ReadOnly) ? file.readAll().simplified() : QByteArray("?");
}

QByteArray ServiceFixture::log(const QString &suffix) const
{
    QFile file(m_folder->filePath(u"log"_s) + suffix);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject ServiceFixture::lastRequest() const
{
    return QJsonDocument::fromJson(log().trimmed().split('\n').last()).object();
}
