// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/session_messages.h"

#include "host/session/dialog_session.h"
#include "host/session/session_history.h"
#include "host/window/messages/message_bar.h"

#include <utility>

namespace host {

SessionMessages::SessionMessages(MessageBar *bar, bool settingsOnly, std::function<bool()> isHeldUp)
    : m_bar(bar), m_isHeldUp(std::move(isHeldUp)), m_question(bar, settingsOnly)
{
}

void SessionMessages::setSession(DialogSession *session, SessionHistory *history)
{
    m_session = session;
    m_history = history;
}

void SessionMessages::clear()
{
    setSession(nullptr, nullptr);
    m_question.drop();
    m_notices.clear();
    m_toldGap.clear();
}

void SessionMessages::showNotices()
{
    if (!m_session)
        return;
    const QStringList fresh = m_session->takeNotices();
    m_notices += fresh;
    const bool isKnown = fresh.isEmpty() && m_bar->isShowing();
    if (m_notices.isEmpty() || m_question.isAsked() || isKnown)
        return;
    m_bar->showMessage(MessageBar::Kind::Notice, tr("Please note"), m_notices);
}

bool SessionMessages::check(bool toPrint)
{
    if (!m_session)
        return false;
    const bool wasAsked = m_question.isAsked();
    if (m_question.ask(*m_session, toPrint))
        return true;
    if (wasAsked)
        showNotices();
    return tellGap();
}

// Tells each gap once; true when it has. Who prints is held up by it that once.
bool SessionMessages::tellGap()
{
    const QString gap = m_session->protectionGap();
    if (std::exchange(m_toldGap, gap) == gap || gap.isNull())
        return false;
    m_session->addNotice(gap);
    showNotices();
    return true;
}

void SessionMessages::showError(const PrintError &error)
{
    m_question.drop();
    m_bar->showMessage(MessageBar::Kind::Error, error.message, {});
}

void SessionMessages::showProblem(const PrintError &problem)
{
    if (m_question.isAsked())
        m_notices.append(problem.message);
    else
        showError(problem);
}

void SessionMessages::answer(int index)
{
    if (!m_session)
        return;
    const ConflictQuestion::Answer answer = m_question.take(index);
    if (m_bar->kind() == MessageBar::Kind::Notice)
        m_notices.clear();
    if (answer == ConflictQuestion::Answer::Apply)
        applySuggestion();
    showNotices();
    if (answer == ConflictQuestion::Answer::PrintAnyway && !tellGap())
        Q_EMIT printWanted();
}

void SessionMessages::applySuggestion()
{
    m_history->endGesture();
    m_session->apply(*m_question.suggestion());
    m_history->endGesture();
    check();
}

// What a panel has changed is marked when it is saved; until then nobody knows whether a conflict that the
// user is asked about has gone.
void SessionMessages::checkLater()
{
    if (!m_question.isAsked() || std::exchange(m_isCheckQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isCheckQueued = false;
            recheck();
        },
        Qt::QueuedConnection);
}

void SessionMessages::recheck()
{
    m_isCheckDue = m_isHeldUp(); // a panel that is only half restored must not be saved
    if (m_isCheckDue || !m_question.isAsked() || !m_session)
        return;
    m_session->save();
    Q_EMIT saved();
    check();
}

void SessionMessages::goOn()
{
    if (m_isCheckDue)
        recheck();
}

} // namespace host
