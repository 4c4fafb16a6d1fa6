// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QJsonObject>
#include <QObject>

#include <optional>

class QSocketNotifier;

namespace host {

// The connection between the service and a process that opens one dialog: the request arrives on the standard
// input, answers are written to the standard output, one JSON object per line. Takes over both streams for
// the lifetime of the process; other output to the standard output is redirected to the standard error.
class DialogChannel : public QObject
{
    Q_OBJECT
public:
    DialogChannel();

    // Waits for the request. Null if there is none, or it is malformed.
    std::optional<QJsonObject> readRequest();
    // Whether the caller has already gone. Call before watch().
    bool isClosed() const;
    // Starts watching for the end of the input.
    void watch();
    void write(const QJsonObject &answer);

Q_SIGNALS:
    // The caller no longer wants the dialog, or the service has exited. Follows abandoned().
    void closed();
    // The application has left the bus.
    void abandoned();

private:
    void read(QSocketNotifier *notifier);

    QByteArray m_unread;
    platform::UniqueFd m_answers;
};

} // namespace host
