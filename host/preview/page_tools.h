// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/limited_process.h"

#include <QString>
#include <QStringList>

namespace host {

// Where the programs are that make and show pages: filters of the print system, Poppler's and Ghostscript's.
// A value.
struct PageTools
{
    QStringList folders; // in the order they are searched

    static PageTools installed();
    // The path of a program; empty when it is not installed.
    QString path(const QString &program) const;
};

// A file in memory with this content; null when there is no memory for it.
SharedFile inMemory(const QByteArray &content);
// Opens a file for reading; null with errno. Root gets a copy without a name of what only another user may
// read, since programs that read documents have no rights but a user's.
SharedFile openFile(const QString &path);

} // namespace host
