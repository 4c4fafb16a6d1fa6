// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QJsonObject>
#include <QList>
#include <QString>

namespace host {

// What the user has decided about a document that comes later. Holds codes: it goes to the service and comes
// back from there, and not to the application. A value.
struct StoredJob
{
    QString printer; // destination name
    QString title;   // that was decided; empty for the document's own
    QList<JobOption> options;
    QString dialogTitle = {}; // of the dialog; some applications call each document so, too
    QString windowTitle = {}; // of the application's window; may be empty

    // What the job is called whose document the application calls `given`. Empty when there is no name.
    QString titleFor(const QString &given) const;

    static StoredJob fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

} // namespace host
