// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QJsonObject>
#include <QObject>
#include <QProcess>

namespace host {

// One dialog: a kelmar-print process that reads one request from its standard input and writes its results to
// its standard output, one JSON object per line. A failure of the process affects no other request. Must live
// at least until ended().
class DialogProcess : public QObject
{
    Q_OBJECT
public:
    DialogProcess(const QString &program, QObject *parent);

    // Starts the process, which inherits `document`; its number is added to the request.
    void start(QJsonObject request, platform::UniqueFd document);
    // Asks the dialog to close. It stays open if the user has already printed with it, or if it has a
    // document and was visible.
    void close() { m_process.closeWriteChannel(); }
    // The same for a dialog without a document whose application has left the bus: the user is informed. A
    // dialog that does not close in time is killed.
    void closeAbandoned();

Q_SIGNALS:
    // The dialog is visible.
    void shown();
    // Emitted exactly once. "response" is 0 (done), 1 (cancelled) or 2 (other); in the last case "reason" is
    // "display", "document", "ended" (the process exited without an answer) or missing.
    void answered(const QJsonObject &answer);
    // The process has exited. The last signal.
    void ended();

private:
    void read();
    void readLine(const QByteArray &line);
    void answer(const QJsonObject &object);
    void finish();

    QProcess m_process;
    QByteArray m_unread;
    platform::UniqueFd m_document;
    bool m_answered = false;
    bool m_ended = false;
};

} // namespace host
