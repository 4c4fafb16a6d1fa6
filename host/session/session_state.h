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

// All settings of a session at one moment; used to detect changes and to undo them. Contains codes; must not
// be logged or stored in files. A value, specific to one session.
struct SessionState
{
    QMap<QString, QString> marks; // by PPD option; if a panel holds another choice, that one
    QVariantMap panelValues;      // values of panels other than PPD options: "number of the panel/key path"
    QVariantMap printSettings;
    GeneralSettings general;
    ChosenSettings chosen;
    QSet<QString> savedKeywords;
    QString instance; // of the destination
    QMap<QString, QString> destinationOptions;

    // The keys with different values in another state, in a stable order: PPD options, keys of panels, and
    // the job option names of general settings.
    QStringList differencesTo(const SessionState &other) const;
    // Removes equal settings from two states.
    static void keepDifferences(SessionState *one, SessionState *other);
};

// Reads the state of a session and restores it, which requires setting values that front ends must not set.
// Created for few calls; the session is borrowed.
class StateRestorer
{
public:
    explicit StateRestorer(DialogSession *session) : m_session(session) {}

    // The current state, including changes that panels have not saved.
    static SessionState stateOf(const DialogSession &session);
    // Sets all differences between two states to their values in `to`, also on the panels, without notices.
    void restoreTo(const SessionState &from, const SessionState &to);

private:
    bool restoreMarks(const SessionState &from, const SessionState &to);
    bool restorePrintSettings(const SessionState &from, const SessionState &to);

    DialogSession *m_session;
};

// The settings with one of them, named by its job option, replaced by that of others.
GeneralSettings withGeneralValue(const GeneralSettings &general, const QString &name,
                                 const GeneralSettings &other);

} // namespace host
