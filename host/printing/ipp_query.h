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

// IPP requests for which libcups has no convenience function.

// A request about one printer, with the user's name.
IppPointer printerRequest(ipp_op_t operation, const QByteArray &printerUri);
// The resource path for requests about a printer: the printer's own path, which may require a login.
QByteArray resourceOf(const QByteArray &printerUri);

// The value of an attribute as text; a null string if the response lacks it.
QString attributeText(ipp_t *answer, const char *name);
QString valueText(ipp_attribute_t *attribute);
QStringList attributeTexts(ipp_t *answer, const char *name);
int attributeInteger(ipp_t *answer, const char *name, int otherwise);
// The supplies that a response reports with "marker-names" and related attributes.
QList<Supply> suppliesOf(ipp_t *answer);

// The attributes of a queue as reported by the server.
struct QueueFacts
{
    bool accepting = true;
    bool stopped = false;
    QString stateMessage;
    QStringList stateReasons; // keywords
    QList<Supply> supplies;
    QStringList coverSheets; // values of "job-sheets"
    int passwordLength = 0;  // as in Destination, like the next fields
    QStringList passwordEncryptions;
    bool takesAccountId = false;
    bool takesAccountUser = false;
    QStringList formats;             // accepted MIME types
    QMap<QString, QString> defaults; // job options that the server adds to each job
    // The PPD's defaults for the names in `defaults` that the administrator has set differently.
    QMap<QString, QString> overruledDefaults;
};

// What to request. A response with only the state is small.
enum class QueueQuestion { Everything, State };
// Null with an error if the server does not have the queue, which the user knows as `name`, or does not
// respond.
std::optional<QueueFacts> queryQueue(ServerConnection *server, const QByteArray &printerUri,
                                     const QString &name, PrintError *error,
                                     QueueQuestion question = QueueQuestion::Everything);
// The server's current queues in its order, without the user's settings, and without printers that it has
// discovered on the network. Null with an error if the server does not respond.
std::optional<QList<Destination>> queryQueues(ServerConnection *server, PrintError *error);
// "ipp://localhost/printers/NAME" with the name escaped.
QByteArray printerUriOfQueue(const QString &queue);

} // namespace host
