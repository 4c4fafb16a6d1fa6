// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "platform/awaited.h"

#include <QObject>
#include <QStringList>

namespace host {

// Checks on a worker thread whether documents can be printed, while the user chooses settings. Streams are
// not read, since that is left to the job. Owned by its window.
class DocumentCheck : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    void start(const QStringList &paths);

Q_SIGNALS:
    // Reports the first document that cannot be printed.
    void failed(const host::PrintError &error);

private:
    platform::Awaited<PrintError> m_checking;
};

} // namespace host
