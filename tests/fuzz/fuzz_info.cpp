// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The Info.json of a bundle, in an otherwise empty folder.

#include "host/extensions/protection.h"
#include "platform/bundle.h"
#include "tests/fuzz/fuzz_support.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using platform::Bundle;
    static const QTemporaryDir holder(QDir::tempPath() + QStringLiteral("/kelmar-fuzz-XXXXXX"));
    QFile info(holder.filePath(QStringLiteral("Info.json")));
    requireThat(info.open(QIODevice::WriteOnly));
    info.write(bytesOf(data, size));
    info.close();

    QString error;
    const auto bundle = Bundle::open(holder.path(), QLocale::c(), &error);
    requireThat(bundle || error.contains(QLatin1String("Info.json")));
    if (!bundle)
        return 0;
    requireThat(!bundle->infoValueForKey(Bundle::executableKey).toString().contains(QLatin1Char('/')));
    bundle->servesModel(QStringLiteral("KELMAR OrbM880Series"));
    bundle->localizedStringForKey(QStringLiteral("Duplex"));
    requireThat(!bundle->principalObject(&error) && !error.isEmpty());
    const auto protection = host::Protection::from(*bundle);
    protection.protects(QStringLiteral("PrintMode"), QStringLiteral("Private"));
    protection.secretOf(QStringLiteral("departmentCode"));
    return 0;
}
