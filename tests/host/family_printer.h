// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/host/host_fixture.h"
#include "tests/support/paths.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

// A print system with a printer of the family, as for a real queue; its device is never queried.
class FamilyPrintSystem : public FakePrintSystem
{
public:
    FamilyPrintSystem() : FamilyPrintSystem(familyPpd(QStringLiteral("kelm880.ppd"))) {}
    explicit FamilyPrintSystem(const QByteArray &ppd)
    {
        host::Destination office = officePrinter();
        office.isDefault = true;
        office.makeAndModel = QStringLiteral("KELMAR OrbM880Series");
        office.location = QStringLiteral("Second floor, beside the kitchen");
        office.deviceUri = QStringLiteral("file:/dev/null");
        printers = {office};
        ppds.insert(QStringLiteral("office"), ppd);
    }
    static QByteArray familyPpd(const QString &name)
    {
        QFile file(buildPath("/ppds/") + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

// Installs the translations of a catalog for the lifetime of the owner; false if it cannot be read.
inline bool speakCatalog(const QString &file, QObject *owner)
{
    auto *translator = new QTranslator(owner);
    return translator->load(file) && QCoreApplication::installTranslator(translator);
}
