// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/destination.h"

#include <QSettings>

namespace host {

namespace {

const QString lastPrinterKey = QStringLiteral("lastPrinter");

}

QString Destination::displayName() const
{
    const QString printer = info.isEmpty() ? queue : info;
    return instance.isEmpty() ? printer : QStringLiteral("%1 – %2").arg(printer, instance);
}

std::pair<QString, QString> splitDestinationName(const QString &name)
{
    const qsizetype slash = name.indexOf(QLatin1Char('/'));
    if (slash < 0)
        return {name, QString()};
    return {name.left(slash), name.mid(slash + 1)};
}

QString RememberedPrinter::name() const
{
    return QSettings().value(lastPrinterKey).toString();
}

void RememberedPrinter::setName(const QString &name)
{
    QSettings settings;
    if (settings.value(lastPrinterKey).toString() != name)
        settings.setValue(lastPrinterKey, name);
}

} // namespace host
