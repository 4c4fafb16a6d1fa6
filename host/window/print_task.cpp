// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_task.h"

#include "host/printing/file_name.h"
#include "host/window/look/foreign_text.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace host {

namespace {

struct TaskText
{
    Q_DECLARE_TR_FUNCTIONS(TaskText)
};

} // namespace

QString PrintTask::namesOf(const QStringList &paths) const
{
    if (!files.isEmpty() && !documentName.isEmpty())
        return TaskText::tr("“%1”").arg(oneLine(documentName));
    QStringList names;
    for (const QString &path : paths) {
        if (path != QLatin1String("-"))
            names.append(TaskText::tr("“%1”").arg(oneLine(readableFileName(QFileInfo(path).fileName()))));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace host
