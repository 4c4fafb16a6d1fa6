// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"

#include <QString>
#include <QStringList>

namespace host {

class DialogSession;

// A choice that other settings stand in the way of, and what it takes to use it all the same. A value.
struct ForcedChoice
{
    OptionChoice wanted;
    OptionChoice obstacle;      // one of what is in the way; empty when nothing is
    Resolution changes;         // of other options; empty where there is no way
    QList<OptionChoice> before; // what these stand at now
    QStringList givenUp;        // what protects the user and would be lost, in words
    // What the administrator has fixed and every way would change; nothing can be done then.
    QList<OptionChoice> locks;

    bool isPossible() const { return locks.isEmpty() && (obstacle.option.isEmpty() || !changes.isEmpty()); }
    bool operator==(const ForcedChoice &) const = default;
};

// Looks for the changes; leaves the session as it is, but for panels that are saved first. A way that keeps
// what protects the user goes before one that does not; a way that changes what is locked is none.
ForcedChoice forcedChoice(DialogSession *session, const QString &keyword, const QString &choice);

// Makes the choice and the changes, as one step. Not to be called for one that is not possible.
void choose(DialogSession *session, const ForcedChoice &forced);

} // namespace host
