// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/chosen_settings.h"
#include "host/session/general_settings.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace host {

class DialogSession;

// Everything of a session that its user can set, as it stands at one moment: what a change is told by, and
// what undoing it goes back to. Holds codes as well; not for logs or files. A value, of one session.
struct SessionState
{
    QMap<QString, QString> marks; // by PPD option; where a panel holds another choice, that one
    QVariantMap panelValues;      // what panels hold apart from PPD options: "number of the panel/key path"
    QVariantMap printSettings;
    GeneralSettings general;
    ChosenSettings chosen;
    QSet<QString> savedKeywords;
    QString instance; // of the destination
    QMap<QString, QString> destinationOptions;

    // The keys that have other values in another state, in a stable order: PPD options, keys of panels, and
    // the names of general settings as a job has them.
    QStringList differencesTo(const SessionState &other) const;
    // Leaves out, of two states, what both have alike.
    static void keepDifferences(SessionState *one, SessionState *other);
};

// Tells how a session stands and brings it back to how it stood, which takes setting what no front end may.
// Made for a call or two; the session is borrowed.
class StateKeeper
{
public:
    explicit StateKeeper(DialogSession *session) : m_session(session) {}

    // Everything that can be set, as it stands, what panels have not saved yet included.
    static SessionState stateOf(const DialogSession &session);
    // Of what differs between two states, sets all to what `to` has, on the panels too, without a notice.
    void bring(const SessionState &from, const SessionState &to);

private:
    bool bringMarks(const SessionState &from, const SessionState &to);
    bool bringPrintSettings(const SessionState &from, const SessionState &to);

    DialogSession *m_session;
};

// The settings with one of them, by its name in a job, as others have it.
GeneralSettings withGeneralValue(const GeneralSettings &general, const QString &name,
                                 const GeneralSettings &other);

} // namespace host
