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
class SessionHistory;

// What the message bar tells of a session: conflicts, what the protection of the job lacks, what went wrong,
// and notices, which come back until the user has closed them. Belongs to its window; the bar is borrowed.
class SessionMessages : public QObject
{
    Q_OBJECT
public:
    // While `isHeldUp` is true, as while a panel waits, nothing is saved for the sake of a question.
    SessionMessages(MessageBar *bar, bool settingsOnly, std::function<bool()> isHeldUp);

    // Both are borrowed.
    void setSession(DialogSession *session, SessionHistory *history);
    // Lets go of both, and of everything that was told.
    void clear();

    // Shows what the session has to tell, unless something else is being asked.
    void showNotices();
    // Asks about conflicts, or tells once of a gap in the protection. True when something holds printing up.
    // `toPrint` when the user wants to print now, and may all the same.
    bool check(bool toPrint = false);
    void showError(const PrintError &error);
    // The same, but does not take the place of a question.
    void showProblem(const PrintError &problem);
    // The answer that the bar was given.
    void answer(int index);
    // The question may have gone: looks once nothing holds it up.
    void checkWhenIdle() { m_isCheckDue = m_question.isAsked(); }
    void goOn();

public Q_SLOTS:
    // A panel has changed something.
    void checkLater();

Q_SIGNALS:
    // The session's panels have been saved.
    void saved();
    // The user prints all the same, and nothing else holds it up.
    void printWanted();

private:
    bool tellGap();
    void recheck();
    void applySuggestion();

    MessageBar *m_bar;
    std::function<bool()> m_isHeldUp;
    DialogSession *m_session = nullptr;
    SessionHistory *m_history = nullptr;
    ConflictQuestion m_question;
    QStringList m_notices; // not yet closed by the user
    QString m_toldGap;     // in the protection of the job
    bool m_isCheckQueued = false;
    bool m_isCheckDue = false; // once nothing holds it up
};

} // namespace host
