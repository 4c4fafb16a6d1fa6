// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "platform/awaited.h"

#include <QObject>
#include <QStringList>

namespace host {

// Looks on a worker thread whether documents can be printed, while the user makes settings for them. What can
// be read once only is left to the job. Belongs to its window.
class DocumentCheck : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    void start(const QStringList &paths);

Q_SIGNALS:
    // The first of them that cannot be printed.
    void failed(const host::PrintError &error);

private:
    platform::Awaited<PrintError> m_checking;
};

} // namespace host
