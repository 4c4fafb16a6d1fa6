// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/stored_job.h"

#include <QJsonArray>

namespace host {

namespace {

const QString printerKey = QStringLiteral("printer");
const QString titleKey = QStringLiteral("title");
const QString dialogTitleKey = QStringLiteral("dialogTitle");
const QString windowTitleKey = QStringLiteral("windowTitle");
const QString optionsKey = QStringLiteral("options");

} // namespace

StoredJob StoredJob::fromJson(const QJsonObject &object)
{
    StoredJob job{object.value(printerKey).toString(),
                  object.value(titleKey).toString(),
                  {},
                  object.value(dialogTitleKey).toString(),
                  object.value(windowTitleKey).toString()};
    for (const QJsonValue &value : object.value(optionsKey).toArray()) {
        const QJsonArray parts = value.toArray();
        job.options.append({parts.at(0).toString(), parts.at(1).toString(),
                            static_cast<JobOption::Kind>(parts.at(2).toInt())});
    }
    return job;
}

QString StoredJob::titleFor(const QString &given) const
{
    if (!title.isEmpty())
        return title;
    const bool saysNothing = given.isEmpty() || given == dialogTitle;
    return saysNothing && !windowTitle.isEmpty() ? windowTitle : given;
}

QJsonObject StoredJob::toJson() const
{
    QJsonArray list;
    for (const JobOption &option : options)
        list.append(QJsonArray{option.name, option.value, static_cast<int>(option.kind)});
    return {{printerKey, printer},
            {titleKey, title},
            {dialogTitleKey, dialogTitle},
            {windowTitleKey, windowTitle},
            {optionsKey, list}};
}

} // namespace host
