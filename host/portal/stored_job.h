// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QJsonObject>
#include <QList>
#include <QString>

namespace host {

// A confirmed job whose document arrives later. Contains codes: it is stored by the service and returned from
// there, and never sent to the application. A value.
struct StoredJob
{
    QString printer; // destination name
    QString title;   // chosen title; empty for the document's own
    QList<JobOption> options;
    QString dialogTitle = {}; // title of the dialog, which some applications also use for each document
    QString windowTitle = {}; // of the application's window; may be empty

    // The title of a job whose document the application calls `given`. Empty if there is none.
    QString titleFor(const QString &given) const;

    static StoredJob fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

} // namespace host
