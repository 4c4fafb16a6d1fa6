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

// The undo history of a session. It records the state of the session when note() or resync() is called. A
// step consists of all differences between two recorded states, so it includes the reactions of panels, and
// settings without a name. Changes of the same settings in quick succession, as while typing, are merged into
// one step. The session is borrowed and outlives the history.
class SessionHistory : public QObject
{
    Q_OBJECT
public:
    explicit SessionHistory(DialogSession *session);

    // Call when the user may have changed something: the differences from the last recorded state become a
    // step.
    void note();
    // Calls note() once when control returns to the event loop, however often this is called until then.
    void noteLater();
    // Prevents the next change from being merged with the last step.
    void endGesture() { m_sinceStep.invalidate(); }
    // Records the current state without a step. Call after changes that the user did not make, such as values
    // read by a panel.
    void resync();
    // Disables note() and resync() during the lifetime of the result: for a change during which events are
    // processed, such as that of a panel that queries its device. Call one of them afterwards.
    [[nodiscard]] QScopedValueRollback<bool> pause() { return QScopedValueRollback<bool>(m_isPaused, true); }
    QUndoStack *steps() { return &m_steps; }

    // The state with which the current one is compared to show changes: the state at the start or when a
    // preset was applied, and the name of the preset.
    struct Base
    {
        SessionState state;
        QString name;
    };
    const Base &base() const { return m_base; }
    // Makes the state that is recorded next the base, as part of its step.
    void takeBase(const QString &name) { m_nextBase = name; }
    // Updates the name of a base in all steps.
    void renameBase(const QString &from, const QString &to);
    // Replaces a base that no longer exists in all steps.
    void replaceBase(const QString &name, const Base &base);
    // Updates or removes the name of the preset that is the session's destination in all steps.
    void renameInstance(const QString &from, const QString &to);
    // The initial values of panels, other than PPD options.
    const QVariantMap &startingPanelValues() const { return m_startingPanelValues; }
    // The last recorded state.
    const SessionState &now() const { return m_now; }

Q_SIGNALS:
    // A step has been created, undone or redone.
    void changed();

private:
    class Step;
    void recordState();
    void recordInitialValues(const SessionState &now);
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
