// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QJsonObject>
#include <QObject>

#include <optional>

class QSocketNotifier;

namespace host {

// How a process that opens one dialog for the service talks to it: a request comes on the standard input,
// answers go to the standard output, one JSON object a line. Takes both over for the life of the process:
// whatever else writes to the standard output writes to the standard error from then on.
class DialogChannel : public QObject
{
    Q_OBJECT
public:
    DialogChannel();

    // Waits for the request. Null when none comes, or it is none.
    std::optional<QJsonObject> readRequest();
    // Whether the caller has gone already. Before watch().
    bool isClosed() const;
    // The end of the input is looked for from now on.
    void watch();
    void write(const QJsonObject &answer);

Q_SIGNALS:
    // The caller does not want the dialog any more, or the service is gone. Comes after abandoned().
    void closed();
    // The application has left the bus.
    void abandoned();

private:
    void read(QSocketNotifier *notifier);

    QByteArray m_unread;
    platform::UniqueFd m_answers;
};

} // namespace host
