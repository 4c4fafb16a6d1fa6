// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/session_state.h"

#include <QElapsedTimer>
#include <QObject>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <functional>
#include <optional>

namespace host {

class DialogSession;

// What the user has changed in a session, step by step, to be undone and redone. A step is whatever differs
// between two looks at the session, so it takes along what panels did about it and settings that are not
// named here. Changes of the same settings that follow each other closely, as while typing, are one step. The
// session is borrowed and outlives the history.
class SessionHistory : public QObject
{
    Q_OBJECT
public:
    explicit SessionHistory(DialogSession *session);

    // The user may have changed something: what differs from the last look becomes a step.
    void note();
    // The same once control returns to the event loop, however often it is called until then.
    void noteLater();
    // What comes next is a step of its own, however soon it comes.
    void endGesture() { m_sinceStep.invalidate(); }
    // What differs from the last look was not asked for by the user, such as what a panel has read: no step.
    void absorb();
    // While the result lives, note() and absorb() do nothing: for a change that lets events be handled before
    // it is complete, as a panel does that asks its device. To be followed by one of them.
    [[nodiscard]] QScopedValueRollback<bool> pause() { return QScopedValueRollback<bool>(m_isPaused, true); }
    QUndoStack *steps() { return &m_steps; }

    // What changes are told by: how the session stood when it began, or when a preset was applied, and the
    // name of that.
    struct Base
    {
        SessionState state;
        QString name;
    };
    const Base &base() const { return m_base; }
    // Makes what stands at the next look the base, as part of the step that it makes.
    void takeBase(const QString &name) { m_nextBase = name; }
    // A base has another name now, wherever steps lead to it.
    void renameBase(const QString &from, const QString &to);
    // A base is no more: another takes its place, wherever steps lead to it.
    void replaceBase(const QString &name, const Base &base);
    // The preset that the session's destination may be has another name now, or none: nothing leads back to
    // the old.
    void renameInstance(const QString &from, const QString &to);
    // What panels held apart from options before anything was changed.
    const QVariantMap &startingPanelValues() const { return m_startingPanelValues; }
    // How it stood at the last look.
    const SessionState &now() const { return m_now; }

Q_SIGNALS:
    // A step has been made, undone or redone.
    void changed();

private:
    class Step;
    void lookAnew();
    void absorbNew(const SessionState &now);
    void changeBases(const QString &name, const std::function<void(Base *)> &change);
    void go(const SessionState &from, const SessionState &to, const Base &base);

    DialogSession *m_session;
    QUndoStack m_steps;
    SessionState m_now;
    Base m_base;
    QVariantMap m_startingPanelValues;
    QElapsedTimer m_sinceStep;
    std::optional<QString> m_nextBase;
    bool m_isQueued = false;
    bool m_isPaused = false;
};

} // namespace host
