// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"

#include <QString>
#include <QStringList>

namespace host {

class DialogSession;

// A choice that conflicts with other settings, and the changes required to select it. A value.
struct ForcedChoice
{
    OptionChoice wanted;
    OptionChoice obstacle;      // one of the conflicting choices; empty if there is none
    Resolution changes;         // of other options; empty if there is no solution
    QList<OptionChoice> before; // their current choices
    QStringList givenUp;        // the protection that would be lost, localised
    // Locked options that every solution would change; the choice is not possible then.
    QList<OptionChoice> locks;

    bool isPossible() const { return locks.isEmpty() && (obstacle.option.isEmpty() || !changes.isEmpty()); }
    bool operator==(const ForcedChoice &) const = default;
};

// Determines the changes. The session is not changed, except that panels are saved first. Solutions that keep
// protecting choices are preferred; solutions that change locked options are excluded.
ForcedChoice forcedChoice(DialogSession *session, const QString &keyword, const QString &choice);

// Applies the choice and the changes as one step. Must not be called if the choice is not possible.
void choose(DialogSession *session, const ForcedChoice &forced);

} // namespace host
