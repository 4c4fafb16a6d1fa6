// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/destination.h"

#include <QSettings>

#include <algorithm>

namespace host {

namespace {

const QString lastPrinterKey = QStringLiteral("lastPrinter");
const QString recentPrintersKey = QStringLiteral("recentPrinters");
constexpr qsizetype mostRecent = 5;

} // namespace

// The name that a printer announces: in "ipps://Office%20Printer._ipps._tcp.local/", the part before the
// service.
static QString announcedName(const QString &deviceUri)
{
    const QString host = deviceUri.section(QStringLiteral("://"), 1).section(QLatin1Char('/'), 0, 0);
    const qsizetype service = host.indexOf(QLatin1String("._"));
    return service < 0 ? QString() : host.left(service);
}

Destination Destination::withoutState() const
{
    Destination unknown = *this;
    unknown.isStateKnown = false;
    unknown.accepting = true;
    unknown.stopped = false;
    unknown.problem.clear();
    unknown.supplies.clear();
    unknown.report = {};
    return unknown;
}

bool Destination::isSameDevice(const Destination &other) const
{
    const QString announced = announcedName(deviceUri);
    return !announced.isEmpty() && announced == announcedName(other.deviceUri);
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

QStringList RememberedPrinter::recent() const
{
    QStringList names = QSettings().value(recentPrintersKey).toStringList();
    if (names.isEmpty() && !name().isEmpty())
        names.append(name());
    return names;
}

void RememberedPrinter::setName(const QString &name)
{
    QStringList names = recent();
    if (!names.isEmpty() && names.first() == name && this->name() == name)
        return;
    names.removeAll(name);
    names.prepend(name);
    QSettings settings;
    settings.setValue(lastPrinterKey, name);
    settings.setValue(recentPrintersKey, QStringList(names.first(std::min(names.size(), mostRecent))));
}

} // namespace host
