// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/loaded_media.h"
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

// The messages of a session: conflicts, greyed choices, a missing code, paper that is not loaded, and
// notices, which stay until the user has closed them. Owned by its window; the queue is borrowed.
class SessionMessages : public QObject
{
    Q_OBJECT
public:
    // `settingsOnly` is set if an application prints. While `isDeferred` returns true, for example while a
    // panel waits, no panel is saved for a question.
    SessionMessages(MessageQueue *messages, bool settingsOnly, std::function<bool()> isDeferred);

    // Both are borrowed.
    void setSession(DialogSession *session, SessionHistory *history);
    // Detaches the session and withdraws its messages.
    void clear();

    // Shows the notices of the session.
    void showNotices();
    // Shows notices, asks about conflicts, and reports a gap in the protection once. True if the user has to
    // respond first.
    bool check();
    // The same before a job is sent; the user may print anyway, also without a code. The question gets the
    // focus.
    bool checkToPrint();
    // Sets what is loaded in the printer. Paper that is chosen but not loaded causes a message, which does
    // not prevent printing. If the user has closed it, it is shown again only for other paper.
    void setLoaded(const QList<LoadedTray> &trays);
    // Performs the check that was due while `isDeferred` returned true.
    void resumeCheck();

Q_SIGNALS:
    // The session's panels have been saved.
    void saved();
    // The user has selected a greyed choice, which was made with the changes that it requires.
    void chosen();
    // The user wants to print anyway.
    void printWanted();
    // A code is missing; `key` is one of the settings of its field, which should get the focus.
    void codeWanted(const QString &key);

private:
    bool askAboutConflicts(ConflictQuestion::Purpose purpose);
    void answerConflicts(const ConflictQuestion &question, int answer);
    bool askAboutProtection();
    bool askForCode();
    bool reportGap();
    void tellMissingMedia();
    void checkLater();
    void recheck();
    bool isAsking() const;

    MessageQueue *m_messages;
    bool m_settingsOnly;
    std::function<bool()> m_isDeferred;
    DialogSession *m_session = nullptr;
    SessionHistory *m_history = nullptr;
    // The purpose of the open question about conflicts: it offers printing until there are no conflicts.
    ConflictQuestion::Purpose m_purpose = ConflictQuestion::Purpose::Review;
    QStringList m_notices; // not closed by the user yet
    LoadedMedia m_loaded;
    QStringList m_closedMedia; // the last message about missing media that the user has closed
    QString m_reportedGap;     // the last gap that was reported
    bool m_isCheckQueued = false;
    bool m_isCheckDue = false; // to be performed by resumeCheck()
};

} // namespace host
