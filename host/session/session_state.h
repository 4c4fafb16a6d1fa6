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

// All settings of a session at one moment, from DialogSession::state(); used to detect changes and to undo
// them. Contains codes; must not be logged or stored in files. A value, specific to one session.
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

} // namespace host
