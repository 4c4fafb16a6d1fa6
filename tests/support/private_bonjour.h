// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/child_process.h"
#include "tests/support/private_network.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

// An avahi-daemon and its message bus in a private network, for the machine orb-m880.local. They end with the
// object.
struct PrivateBonjour
{
    // Null on success, or why it is not possible here. `hosts` replaces /etc/hosts.
    QString start(const QString &hosts)
    {
        qputenv("PATH", qgetenv("PATH") + ":/usr/sbin");
        for (const char *program : {"dbus-daemon", "avahi-daemon"}) {
            if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
                return QLatin1String(program) + QStringLiteral(" is not installed");
        }
        const QString file = write("hosts", hosts);
        const QString whyNot = enterPrivateNetworkWithFiles({{file, QStringLiteral("/etc/hosts")}},
                                                            QStringLiteral("/run/avahi-daemon"));
        if (!whyNot.isNull())
            return whyNot;
        const QString address = QStringLiteral("unix:path=") + busPath();
        const QString busConf = write("dbus.conf", QStringLiteral(R"(<busconfig><type>system</type>
            <listen>%1</listen><auth>EXTERNAL</auth><policy context="default"><allow user="*"/><allow own="*"/>
            <allow send_type="method_call"/><allow send_type="signal"/><allow send_type="method_return"/>
            <allow send_type="error"/><allow receive_type="method_call"/><allow receive_type="signal"/>
            <allow receive_type="method_return"/><allow receive_type="error"/></policy></busconfig>)")
                                                       .arg(address));
        const QString avahiConf = write(
            "avahi.conf", QStringLiteral("[server]\nhost-name=orb-m880\nuse-ipv6=no\nallow-interfaces=lo\n"
                                         "[wide-area]\nenable-wide-area=no\n"
                                         "[publish]\npublish-workstation=no\npublish-hinfo=no\n"));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toLatin1());
        QString error;
        bus = startChildProcess(QStringLiteral("dbus-daemon"),
                                {QStringLiteral("--config-file=") + busConf, QStringLiteral("--nofork"),
                                 QStringLiteral("--nopidfile"), QStringLiteral("--print-address")},
                                "unix:", &error);
        if (!bus)
            return error;
        daemon = startChildProcess(QStringLiteral("avahi-daemon"),
                                   {QStringLiteral("-f"), avahiConf, QStringLiteral("--no-drop-root"),
                                    QStringLiteral("--no-chroot"), QStringLiteral("--no-rlimits")},
                                   "startup complete", &error);
        return daemon ? QString() : error;
    }
    QString busPath() const { return folder.filePath(QStringLiteral("bus")); }

    QTemporaryDir folder;
    ChildProcess bus, daemon; // stopped in reverse order

private:
    QString write(const char *name, const QString &text) const
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("%s", qPrintable(file.errorString()));
        return file.fileName();
    }
};
