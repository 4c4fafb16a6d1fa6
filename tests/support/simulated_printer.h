// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/child_process.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QTemporaryDir>

// Runs simulator/snmpd.sh on port 161 of a loopback address during the lifetime of the object.
class SimulatedPrinter
{
public:
    // `device` is the contents of a device file, such as simulator/orbm880.device.
    SimulatedPrinter(const char *address, const QByteArray &device)
    {
        const QString path = m_folder.filePath(QStringLiteral("test.device"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(device) != device.size()) {
            m_error = file.errorString();
            return;
        }
        file.close();
        m_process =
            startChildProcess(sourcePath("/simulator/snmpd.sh"),
                              {QStringLiteral("run"), m_folder.path(), QString::fromLatin1(address), path},
                              "NET-SNMP version", &m_error);
    }

    bool isRunning() const { return m_process != nullptr; }
    const QString &error() const { return m_error; }

private:
    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/simulated printer XXXXXX")};
    QString m_error;
    ChildProcess m_process;
};
