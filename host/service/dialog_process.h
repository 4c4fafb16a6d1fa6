// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QJsonObject>
#include <QObject>
#include <QProcess>

namespace host {

// One dialog: a process of kelmar-print that gets one request on its standard input and writes what became of
// it, one JSON object a line, to its standard output. What goes wrong in it stays in it. Lives at least until
// ended().
class DialogProcess : public QObject
{
    Q_OBJECT
public:
    DialogProcess(const QString &program, QObject *parent);

    // The process inherits `document`, whose number is added to the request.
    void start(QJsonObject request, platform::UniqueFd document);
    // Asks the dialog to close. It does, unless the user has printed with it already or it has a document and
    // has been shown.
    void close() { m_process.closeWriteChannel(); }
    // The same for a dialog without a document whose application has left the bus: the user is told. A dialog
    // that does not react in time is killed.
    void closeAbandoned();

Q_SIGNALS:
    // The dialog can be seen.
    void shown();
    // Emitted once, whatever happens. "response" is 0 (done), 1 (cancelled) or 2 (anything else); "reason" of
    // the last is "display", "document", "ended" (the process, without an answer) or missing.
    void answered(const QJsonObject &answer);
    // The process is gone. Comes last.
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
