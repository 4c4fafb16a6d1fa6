// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/limited_process.h"

#include <QString>
#include <QStringList>

#include <functional>

class QEventLoop;

namespace host {

// The locations of the programs that convert and render pages: filters of the print system, Poppler and
// Ghostscript. A value.
struct PageTools
{
    QStringList folders; // in search order

    static PageTools installed();
    // The path of a program; empty if it is not installed.
    QString path(const QString &program) const;
};

// A file in memory with this content; null if there is not enough memory.
SharedFile inMemory(const QByteArray &content);
// Opens a file for reading; null with errno. For root, a file that only another user may read is copied to an
// unlinked file, since programs that read documents only have a user's permissions.
SharedFile openFile(const QString &path);

// Runs the loop, while programs run, until it is quit or soon after `stop` returns true. `stop` may be null.
void execUnless(QEventLoop *loop, const std::function<bool()> &stop);

} // namespace host
