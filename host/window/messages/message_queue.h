// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/messages/message_bar.h"

#include <QObject>

#include <functional>
#include <map>

namespace host {

// Controls the message bar of the dialog; no other class shows messages there. Holds one message for each
// subject and shows the most important one. When it has been answered or withdrawn, the next one appears.
// Owned by the window, as is the bar.
class MessageQueue : public QObject
{
    Q_OBJECT
public:
    // The subject of a message. Later subjects are more important.
    enum class Subject {
        Notices,  // changed settings
        Media,    // paper that is not loaded in the printer
        Document, // a document that cannot be printed
        File,     // the PDF file that was saved
        Conflict, // settings that cannot be used together
        Outcome,  // why a user's action failed
        Code,     // a password or code is missing
        GreyedChoice,
    };
    // Called with the index of the chosen answer, or -1 if the message was closed. The message has then been
    // removed from the queue.
    using AnswerHandler = std::function<void(int answer)>;

    // Answers are accepted only while `canAnswer` returns true; otherwise a message stays.
    MessageQueue(MessageBar *bar, std::function<bool()> canAnswer);
    MessageBar *bar() const { return m_bar; }

    // Asks a question until it is answered or withdrawn. The last answer must leave everything unchanged;
    // Escape chooses it. Replaces the message on the same subject, unless it is identical, in which case it
    // is not announced again.
    void ask(Subject subject, const Message &question, AnswerHandler onAnswer);
    // Shows a message without answers until the user closes it.
    void tell(Subject subject, const Message &notice, const std::function<void()> &onClosed = {});
    void withdraw(Subject subject);
    bool contains(Subject subject) const { return m_entries.count(subject) > 0; }
    // Withdraws all messages about a session.
    void clearSession();
    // Messages wait while other pages are shown instead of the settings. Initially inactive.
    void setActive(bool active);
    // Moves the focus to the message that is shown.
    void takeFocus() { m_bar->takeFocus(); }
    // Handles Escape: if a question is shown, leaves everything unchanged; closes a message that has the
    // focus. False if neither applies.
    bool dismiss();

private:
    struct Entry
    {
        Message message;
        AnswerHandler onAnswer;
    };
    void put(Subject subject, const Message &message, AnswerHandler onAnswer);
    void take(int answer);
    void update();

    MessageBar *m_bar;
    std::function<bool()> m_canAnswer;
    std::map<Subject, Entry> m_entries;
    bool m_isActive = false;
};

} // namespace host
