// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/printing/ppd_document.h"

#include <optional>

namespace host {

class ChosenSettings;
struct Destination;

// A way out of the conflicts that gives up nothing that protects, with `keep` as it is where that is
// possible. Null where there is none; where there are ways that do give up something, `givenUp` (may be null)
// says what.
std::optional<Resolution> protectingResolution(const PpdDocument &ppd, const Protection &protection,
                                               const QString &keep, QString *givenUp);

// The choices of conflicts that protect the user, in words: a printer may give up either side.
QStringList protectionAtRisk(const QList<Conflict> &conflicts, const Protection &protection);

// The code that is missing for a choice that has been made: the password of private printing, or the
// department code that is switched on. A code is there when all its digits have been chosen or stand in the
// settings of `destination`. Null when none is missing; points into `protection`.
const Protection::Secret *missingCode(const PpdDocument &ppd, const Protection &protection,
                                      const ChosenSettings &chosen, const Destination &destination);
// What protects in the settings of `destination`, such as a preset with private printing, and is not there in
// the PPD; empty when nothing is.
QString lackingProtection(const PpdDocument &ppd, const Protection &protection, const ChosenSettings &chosen,
                          const Destination &destination);
// What is missing for the protection that has been chosen, in words: all of it, a code, or the choice that
// uses a code.
// Null when nothing is.
QString protectionGap(const PpdDocument &ppd, const Protection &protection, const ChosenSettings &chosen,
                      const Destination &destination);

} // namespace host
