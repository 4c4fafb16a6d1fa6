// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/message_queue.h"

#include <QApplication>

#include <utility>

namespace host {

MessageQueue::MessageQueue(MessageBar *bar, std::function<bool()> canAnswer)
    : m_bar(bar), m_canAnswer(std::move(canAnswer))
{
    connect(bar, &MessageBar::answered, this, &MessageQueue::take);
}

void MessageQueue::ask(Subject subject, const Message &question, AnswerHandler onAnswer)
{
    put(subject, question, std::move(onAnswer));
}

void MessageQueue::tell(Subject subject, const Message &notice, const std::function<void()> &onClosed)
{
    put(subject, notice, [onClosed](int) {
        if (onClosed)
            onClosed();
    });
}

void MessageQueue::put(Subject subject, const Message &message, AnswerHandler onAnswer)
{
    m_entries[subject] = {message, std::move(onAnswer)};
    update();
}

void MessageQueue::withdraw(Subject subject)
{
    if (m_entries.erase(subject) > 0)
        update();
}

void MessageQueue::clearSession()
{
    for (const Subject subject : {Subject::Notices, Subject::Media, Subject::Conflict, Subject::Outcome,
                                  Subject::Code, Subject::GreyedChoice})
        m_entries.erase(subject);
    update();
}

void MessageQueue::setActive(bool active)
{
    if (std::exchange(m_isActive, active) != active)
        update();
}

void MessageQueue::update()
{
    if (!m_isActive || m_entries.empty())
        m_bar->hideMessage();
    else
        m_bar->showMessage(m_entries.rbegin()->second.message);
}

void MessageQueue::take(int answer)
{
    if (!m_canAnswer() || m_entries.empty())
        return;
    const AnswerHandler handler = std::move(m_entries.rbegin()->second.onAnswer);
    m_entries.erase(std::prev(m_entries.end()));
    update();
    handler(answer);
}

bool MessageQueue::dismiss()
{
    if (!m_bar->isShowing() || m_entries.empty())
        return false;
    const auto answers = static_cast<int>(m_entries.rbegin()->second.message.answers.size());
    if (answers == 0 && !m_bar->isAncestorOf(QApplication::focusWidget()))
        return false;
    take(answers - 1);
    return true;
}

} // namespace host
