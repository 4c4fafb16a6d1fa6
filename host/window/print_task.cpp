// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_task.h"

#include "host/printing/file_name.h"
#include "host/window/look/foreign_text.h"
#include "host/window/print_window.h"

#include <QFileInfo>

namespace host {

QString PrintTask::namesOf(const QStringList &paths) const
{
    if (!files.isEmpty() && !documentName.isEmpty())
        return PrintWindow::tr("“%1”").arg(oneLine(documentName));
    QStringList names;
    for (const QString &path : paths) {
        if (path != QLatin1String("-"))
            names.append(PrintWindow::tr("“%1”").arg(oneLine(readableFileName(QFileInfo(path).fileName()))));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace host
