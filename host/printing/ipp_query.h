// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/server_connection.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// Small pieces of IPP that libcups's convenience calls have no word for.

// A request about one printer, with the user's name.
IppPointer printerRequest(ipp_op_t operation, const QByteArray &printerUri);
// Where requests about a printer are posted: its own place at the server, which may want a login.
QByteArray resourceOf(const QByteArray &printerUri);

// The value of an attribute as text; a null string when the answer lacks it.
QString attributeText(ipp_t *answer, const char *name);
QString valueText(ipp_attribute_t *attribute);
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
    // What the PPD would have under a name of `defaults` that the administrator has set otherwise.
    QMap<QString, QString> overruledDefaults;
};

// How much is asked: the state alone is a small answer.
enum class QueueQuestion { Everything, State };
// Null with an error when the server does not know the queue, which people call `name`, or does not answer.
std::optional<QueueFacts> queryQueue(ServerConnection *server, const QByteArray &printerUri,
                                     const QString &name, PrintError *error,
                                     QueueQuestion question = QueueQuestion::Everything);
// The server's own queues, as they are now, in its order: without the user's settings, and without printers
// that it has found in the network. Null with an error when the server does not answer.
std::optional<QList<Destination>> queryQueues(ServerConnection *server, PrintError *error);
// "ipp://localhost/printers/NAME" with the name escaped.
QByteArray printerUriOfQueue(const QString &queue);

} // namespace host
