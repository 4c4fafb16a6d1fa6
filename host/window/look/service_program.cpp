// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/service_program.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace host {

QString serviceProgram()
{
    const QString here = QCoreApplication::applicationDirPath();
    const QString beside = here + QStringLiteral("/kelmar-print-service");
    return QFileInfo(beside).isExecutable()
               ? beside
               : QFileInfo(here + QStringLiteral("/../" KELMAR_LIBEXEC_DIR "/kelmar-print-service"))
                     .absoluteFilePath();
}

} // namespace host
