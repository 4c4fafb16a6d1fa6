// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "platform/awaited.h"

#include <QObject>
#include <QStringList>

namespace host {

// Checks on a worker thread whether the documents can be opened, while the user chooses settings. Does not
// open streams, which can be read only once. Owned by its window.
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
