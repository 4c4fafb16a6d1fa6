// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/session_messages.h"

#include "host/session/dialog_session.h"
#include "host/session/printed_pages.h"
#include "host/session/protection_checks.h"
#include "host/session/session_history.h"
#include "host/window/messages/greyed_choices.h"
#include "host/window/messages/message_queue.h"
#include "platform/key_value_object.h"

#include <utility>

namespace host {

namespace {

using Subject = MessageQueue::Subject;
using Purpose = ConflictQuestion::Purpose;

} // namespace

SessionMessages::SessionMessages(MessageQueue *messages, bool settingsOnly, std::function<bool()> isDeferred)
    : m_messages(messages), m_settingsOnly(settingsOnly), m_isDeferred(std::move(isDeferred))
{
    auto *greyed = new GreyedChoices(
        messages, [this] { return m_session; }, this);
    // Selecting a greyed choice and the changes that it requires are one undo step.
    connect(greyed, &GreyedChoices::aboutToChoose, this, [this] { m_history->endGesture(); });
    connect(greyed, &GreyedChoices::chosen, this, [this] {
        m_history->endGesture();
        Q_EMIT chosen();
    });
}

void SessionMessages::setSession(DialogSession *session, SessionHistory *history)
{
    m_session = session;
    m_history = history;
    for (int i = 0; session && i < session->panels().count(); ++i)
        connect(session->panels().panel(i)->keyValueObject(), &platform::KeyValueObject::valueDidChange, this,
                &SessionMessages::checkLater, Qt::UniqueConnection);
}

void SessionMessages::clear()
{
    setSession(nullptr, nullptr);
    m_messages->clearSession();
    m_purpose = Purpose::Review;
    m_notices.clear();
    m_loaded = {};
    m_closedMedia.clear();
    m_reportedGap.clear();
}

void SessionMessages::setLoaded(const QList<LoadedTray> &trays)
{
    if (!m_session || !m_session->ppd())
        return;
    m_loaded = LoadedMedia(m_session->ppd(), trays);
    tellMissingMedia();
}

void SessionMessages::tellMissingMedia()
{
    const QStringList missing = m_session->ppd() ? m_loaded.missing(*m_session->ppd()) : QStringList();
    if (missing != m_closedMedia)
        m_closedMedia.clear();
    if (missing.isEmpty())
        m_messages->withdraw(Subject::Media);
    else if (missing != m_closedMedia)
        m_messages->tell(Subject::Media,
                         {StatusGlyph::Kind::Notice, tr("Paper not loaded in the printer"), missing, {}},
                         [this, missing] { m_closedMedia = missing; });
}

void SessionMessages::showNotices()
{
    if (!m_session)
        return;
    m_notices += m_session->takeNotices();
    if (!m_notices.isEmpty())
        m_messages->tell(Subject::Notices, {StatusGlyph::Kind::Notice, tr("Please note"), m_notices, {}},
                         [this] { m_notices.clear(); });
}

bool SessionMessages::check()
{
    if (!m_session)
        return false;
    showNotices();
    tellMissingMedia();
    if (!missingCode(*m_session))
        m_messages->withdraw(Subject::Code);
    return askAboutConflicts(m_purpose) || reportGap();
}

bool SessionMessages::checkToPrint()
{
    if (const PrintError problem = scalingProblem(*m_session)) {
        m_messages->tell(Subject::Outcome, {StatusGlyph::Kind::Error, problem.message, {}, {}});
        return true;
    }
    if (askAboutConflicts(m_settingsOnly ? Purpose::Continue : Purpose::Print)) {
        m_messages->takeFocus();
        return true;
    }
    return askAboutProtection();
}

bool SessionMessages::askAboutConflicts(Purpose purpose)
{
    const auto question = conflictQuestion(*m_session, purpose);
    m_purpose = question ? purpose : Purpose::Review;
    if (!question) {
        m_messages->withdraw(Subject::Conflict);
        return false;
    }
    m_messages->ask(Subject::Conflict, question->message,
                    [this, question = *question](int answer) { answerConflicts(question, answer); });
    return true;
}

void SessionMessages::answerConflicts(const ConflictQuestion &question, int answer)
{
    m_purpose = Purpose::Review;
    switch (question.meaningOf(answer)) {
    case ConflictQuestion::Answer::Apply:
        m_history->endGesture();
        m_session->apply(*question.suggestion);
        m_history->endGesture();
        check();
        return;
    case ConflictQuestion::Answer::PrintAnyway:
        if (!askAboutProtection())
            Q_EMIT printWanted();
        return;
    case ConflictQuestion::Answer::Keep:
        return;
    }
}

// Asks for a missing code, else reports a gap in the protection. True if the user has to respond first.
bool SessionMessages::askAboutProtection()
{
    if (askForCode())
        return true;
    if (!reportGap())
        return false;
    m_messages->takeFocus();
    return true;
}

// A job that requires a code is not sent without it unless the user confirms that.
bool SessionMessages::askForCode()
{
    const Protection::Secret *secret = missingCode(*m_session);
    if (!secret)
        return false;
    const bool protects = m_session->protection().protects(secret->option, secret->choice);
    Message question;
    question.title = protects ? tr("Password missing") : tr("Code missing");
    question.lines = {missingCodeText(*m_session, *secret)};
    question.answers = {m_settingsOnly ? (protects ? tr("Use Without Pass&word") : tr("Use &Without Code"))
                        : protects     ? tr("Print Without Pass&word")
                                       : tr("Print &Without Code"),
                        tr("Keep and Re&view")};
    m_messages->ask(Subject::Code, question, [this](int answer) {
        if (answer == 0)
            Q_EMIT printWanted();
    });
    Q_EMIT codeWanted(secret->options.value(0, secret->key));
    return true;
}

// Reports each gap once; true if it was reported now.
bool SessionMessages::reportGap()
{
    const QString gap = protectionGap(*m_session);
    if (std::exchange(m_reportedGap, gap) == gap || gap.isNull())
        return false;
    m_session->addNotice(gap);
    showNotices();
    return true;
}

bool SessionMessages::isAsking() const
{
    return m_session && (m_messages->contains(Subject::Conflict) || m_messages->contains(Subject::Code));
}

// A panel has changed a setting: checks again whether an open question still applies. Panels must be saved
// for that, since they mark their changes only then.
void SessionMessages::checkLater()
{
    if (!isAsking() || std::exchange(m_isCheckQueued, true))
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
    m_isCheckDue = m_isDeferred(); // a panel that is being restored must not be saved
    if (m_isCheckDue || !isAsking())
        return;
    m_session->save();
    Q_EMIT saved();
    check();
}

void SessionMessages::resumeCheck()
{
    if (m_isCheckDue)
        recheck();
}

} // namespace host
