// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "host/window/messages/conflict_question.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace host {

class DialogSession;
class MessageQueue;
class SessionHistory;

// What a session has to say: conflicts, a code that is missing, and notices, which come back until the user
// has closed them. Belongs to its window; the queue is borrowed.
class SessionMessages : public QObject
{
    Q_OBJECT
public:
    // `settingsOnly` where an application prints. While `isHeldUp` is true, as while a panel waits, no panel
    // is saved for the sake of a question.
    SessionMessages(MessageQueue *messages, bool settingsOnly, std::function<bool()> isHeldUp);

    // Both are borrowed.
    void setSession(DialogSession *session, SessionHistory *history);
    // Detaches the session, and withdraws what was said of it.
    void clear();

    // Shows what the session has to tell.
    void showNotices();
    // Shows notices, asks about conflicts, and tells of a gap in the protection once. True when one of them
    // is to be seen to first.
    bool check();
    // The same before a job is sent; the user may print all the same, also without a code. What is asked has
    // the focus then.
    bool checkToPrint();
    // Checks what could not be checked while it was held up.
    void goOn();

public Q_SLOTS:
    // A panel has changed something.
    void checkLater();

Q_SIGNALS:
    // The session's panels have been saved.
    void saved();
    // The user prints all the same.
    void printWanted();
    // A code is missing; `key` is one of the settings that its field sets. The field is to get the focus.
    void codeWanted(const QString &key);

private:
    bool askAboutConflicts(ConflictQuestion::Purpose purpose);
    void answerConflicts(const ConflictQuestion &question, int answer);
    bool isCodeToBeSeenTo();
    bool askForCode();
    bool tellGap();
    void recheck();
    bool isAsking() const;

    MessageQueue *m_messages;
    bool m_settingsOnly;
    std::function<bool()> m_isHeldUp;
    DialogSession *m_session = nullptr;
    SessionHistory *m_history = nullptr;
    // What the open question about conflicts offers: printing stays on offer until there are no conflicts.
    ConflictQuestion::Purpose m_purpose = ConflictQuestion::Purpose::Review;
    QStringList m_notices; // not yet closed by the user
    QString m_toldGap;     // in the protection of the job
    bool m_isCheckQueued = false;
    bool m_isCheckDue = false; // once nothing holds it up
};

} // namespace host
