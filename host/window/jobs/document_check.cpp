// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/document_check.h"

#include "host/printing/documents.h"

namespace host {

void DocumentCheck::start(const QStringList &paths)
{
    m_checking.start(
        this,
        [paths] {
            PrintError error;
            for (const QString &path : paths) {
                if (path != QLatin1String("-") && !isStream(path) && !openDocument(path, &error))
                    break;
            }
            return error;
        },
        [this](const PrintError &error) {
            if (error)
                Q_EMIT failed(error);
        });
}

} // namespace host
