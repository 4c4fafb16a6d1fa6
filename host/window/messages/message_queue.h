// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/messages/message_bar.h"

#include <QObject>

#include <functional>
#include <map>

namespace host {

// Everything that the dialog has to say in its message bar, and the only class that writes there. Keeps one
// message for each subject and shows the most important one; when it has been answered or withdrawn, the next
// one appears. Belongs to the window, as the bar does.
class MessageQueue : public QObject
{
    Q_OBJECT
public:
    // What a message is about. Later subjects are more important.
    enum class Subject {
        Notices,  // what happened to the settings
        Document, // a document that cannot be printed
        File,     // the PDF file that was saved
        Conflict, // settings that cannot be used together
        Outcome,  // why something that the user asked for failed
        Code,     // a password or code is missing
        GreyedChoice,
    };
    // Called with the index of the answer that was chosen, or -1 when the message was closed. The message is
    // no longer in the queue then.
    using AnswerHandler = std::function<void(int answer)>;

    // Answers are accepted only while `canAnswer` is true; until then a message stays.
    MessageQueue(MessageBar *bar, std::function<bool()> canAnswer);
    MessageBar *bar() const { return m_bar; }

    // Asks a question until it is answered or withdrawn. The last answer leaves everything as it is; Escape
    // stands for it. Replaces the message on the same subject; an identical one stays without being announced
    // again.
    void ask(Subject subject, const Message &question, AnswerHandler onAnswer);
    // Shows a message without answers until the user closes it.
    void tell(Subject subject, const Message &notice, const std::function<void()> &onClosed = {});
    void withdraw(Subject subject);
    bool contains(Subject subject) const { return m_entries.count(subject) > 0; }
    // Withdraws everything that is about a session.
    void clearSession();
    // While other pages are shown in place of the settings, messages wait. At first they do.
    void setActive(bool active);
    // Gives the focus to the message that is shown.
    void takeFocus() { m_bar->takeFocus(); }
    // For Escape: leaves everything as it is where a question is shown, and closes a message that has the
    // focus. False where neither is so.
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
