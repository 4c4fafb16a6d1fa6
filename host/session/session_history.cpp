// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/session_history.h"

#include "host/session/dialog_session.h"

#include <QUndoCommand>

#include <utility>

namespace host {

namespace {

constexpr int mostSteps = 200;
constexpr qint64 oneGesture = 1000; // maximum milliseconds between changes of one step
constexpr int mergeable = 1;        // id() of all steps; mergeWith() decides whether two are merged

} // namespace

class SessionHistory::Step : public QUndoCommand
{
public:
    // `keys` are the differences of the two states.
    Step(SessionHistory *history, QStringList keys, SessionState before, SessionState after)
        : m_history(history), m_keys(std::move(keys)), m_before(std::move(before)), m_after(std::move(after))
    {
        SessionState::keepDifferences(&m_before, &m_after);
    }
    void setBases(const Base &before, const Base &after)
    {
        m_baseBefore = before;
        m_baseAfter = after;
        m_changesBase = true;
    }
    void changeBases(const QString &name, const std::function<void(Base *)> &change)
    {
        for (Base *base : {&m_baseBefore, &m_baseAfter}) {
            if (m_changesBase && base->name == name)
                change(base);
        }
    }
    void setChosen(const SessionState &now)
    {
        m_after.chosen = now.chosen;
        m_after.savedKeywords = now.savedKeywords;
    }
    int id() const override { return mergeable; }
    bool mergeWith(const QUndoCommand *command) override
    {
        const auto *next = static_cast<const Step *>(command);
        if (!next->m_follows || next->m_keys != m_keys || next->m_changesBase || m_changesBase)
            return false;
        m_after = next->m_after;
        setObsolete(m_before.differencesTo(m_after).isEmpty());
        return true;
    }
    void undo() override
    {
        m_history->go(m_after, m_before, m_changesBase ? m_baseBefore : m_history->m_base);
    }
    void redo() override
    {
        if (std::exchange(m_isMade, true))
            m_history->go(m_before, m_after, m_changesBase ? m_baseAfter : m_history->m_base);
    }
    void renameInstance(const QString &from, const QString &to)
    {
        for (SessionState *state : {&m_before, &m_after, &m_baseBefore.state, &m_baseAfter.state}) {
            if (state->instance == from)
                state->instance = to;
        }
    }
    void setFollows(bool follows) { m_follows = follows; }

private:
    SessionHistory *m_history;
    QStringList m_keys;
    SessionState m_before, m_after;
    Base m_baseBefore, m_baseAfter; // if the step changes the base
    bool m_changesBase = false;
    bool m_follows = false; // follows closely on the previous step
    bool m_isMade = false;  // already applied by the user; the undo stack applies it from then on
};

SessionHistory::SessionHistory(DialogSession *session)
    : m_session(session), m_now(session->state()), m_base{m_now, session->destination().instance},
      m_startingPanelValues(m_now.panelValues)
{
    m_steps.setUndoLimit(mostSteps);
}

void SessionHistory::note()
{
    if (m_isPaused)
        return;
    m_isQueued = false; // a queued call has nothing left to do
    SessionState now = m_session->state();
    const QStringList keys = m_now.differencesTo(now);
    if (keys.isEmpty()) {
        // No value differs, but a save of a panel may have recorded further choices.
        if (const auto *last = m_steps.command(m_steps.index() - 1))
            const_cast<Step *>(static_cast<const Step *>(last))->setChosen(now);
        m_now = std::move(now);
        if (m_nextBase)
            m_base = {m_now, *std::exchange(m_nextBase, std::nullopt)};
        return;
    }
    recordInitialValues(now);
    auto *step = new Step(this, keys, m_now, now);
    step->setFollows(m_sinceStep.isValid() && m_sinceStep.elapsed() < oneGesture);
    m_sinceStep.start();
    if (m_nextBase) {
        const Base base{now, *std::exchange(m_nextBase, std::nullopt)};
        step->setBases(m_base, base);
        m_base = base;
    }
    m_now = std::move(now);
    m_steps.push(step);
    Q_EMIT changed();
}

void SessionHistory::noteLater()
{
    if (std::exchange(m_isQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (std::exchange(m_isQueued, false))
                note();
        },
        Qt::QueuedConnection);
}

void SessionHistory::resync()
{
    if (!m_isPaused)
        recordState();
}

void SessionHistory::recordState()
{
    m_now = m_session->state();
    recordInitialValues(m_now);
}

// Values that a panel has read on opening are its initial values.
void SessionHistory::recordInitialValues(const SessionState &now)
{
    for (QVariantMap *known : {&m_base.state.panelValues, &m_startingPanelValues}) {
        for (auto it = now.panelValues.begin(); it != now.panelValues.end(); ++it) {
            if (!known->contains(it.key()))
                known->insert(it.key(), it.value());
        }
    }
}

void SessionHistory::changeBases(const QString &name, const std::function<void(Base *)> &change)
{
    for (int i = 0; i < m_steps.count(); ++i)
        const_cast<Step *>(static_cast<const Step *>(m_steps.command(i)))->changeBases(name, change);
    if (m_base.name == name)
        change(&m_base);
}

void SessionHistory::renameBase(const QString &from, const QString &to)
{
    changeBases(from, [&](Base *base) { base->name = to; });
}

void SessionHistory::replaceBase(const QString &name, const Base &base)
{
    changeBases(name, [&](Base *replaced) { *replaced = base; });
}

void SessionHistory::renameInstance(const QString &from, const QString &to)
{
    for (int i = 0; i < m_steps.count(); ++i)
        const_cast<Step *>(static_cast<const Step *>(m_steps.command(i)))->renameInstance(from, to);
    if (m_base.state.instance == from)
        m_base.state.instance = to;
    if (m_session->destination().instance != from)
        return;
    const auto paused = pause();
    const SessionState now = m_session->state();
    SessionState wanted = now;
    wanted.instance = to;
    m_session->restoreTo(now, wanted);
    recordState();
}

void SessionHistory::go(const SessionState &from, const SessionState &to, const Base &base)
{
    const auto paused = pause();
    m_session->restoreTo(from, to);
    m_base = base;
    recordState();
    m_sinceStep.invalidate();
    Q_EMIT changed();
}

} // namespace host
