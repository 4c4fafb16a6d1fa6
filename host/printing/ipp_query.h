// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/cups_handles.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// Small pieces of IPP that libcups's convenience calls have no word for. All requests go over the thread's
// default connection, which libcups opens again when the server comes back.

// A request about one printer, with the user's name.
IppPointer printerRequest(ipp_op_t operation, const QByteArray &printerUri);
// Sends it; the answer's status is cupsLastError(). Null when there was no answer.
IppPointer ask(IppPointer request);

// The value of an attribute as text; a nil string when the answer lacks it.
QString attributeText(ipp_t *answer, const char *name);
QStringList attributeTexts(ipp_t *answer, const char *name);
int attributeInteger(ipp_t *answer, const char *name, int otherwise);

// What the server says about one of its queues.
struct QueueFacts
{
    bool accepting = true;
    bool stopped = false;
    QString stateMessage;
    QStringList stateReasons;        // keywords
    QStringList formats;             // MIME types it takes
    QMap<QString, QString> defaults; // job options it adds to every job by itself
};

// Nil when the server does not know the queue or does not answer; cupsLastError() tells which.
std::optional<QueueFacts> queryQueue(const QByteArray &printerUri);
// "ipp://localhost/printers/NAME" with the name escaped.
QByteArray printerUriOfQueue(const QString &queue);

} // namespace host
