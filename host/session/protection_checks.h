// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/printing/ppd_document.h"

#include <optional>

namespace host {

class ChosenSettings;

// A way out of the conflicts that gives up nothing that protects, with `keep` as it is where that is
// possible. Nil where there is none; where there are ways that do give up something, `givenUp` (may be null)
// says what.
std::optional<Resolution> protectingResolution(const PpdDocument &ppd, const Protection &protection,
                                               const QString &keep, QString *givenUp);

// The choices of conflicts that protect the user, in words: a printer may give up either side.
QStringList protectionAtRisk(const QList<Conflict> &conflicts, const Protection &protection);

// The first code that the job would be sent without although its use has been chosen: the password of private
// printing, or a department code that is switched on. Null when every code that is used has been given.
// Points into `protection`.
const Protection::Secret *missingCode(const PpdDocument &ppd, const Protection &protection,
                                      const ChosenSettings &chosen);

// What is missing for the protection that has been chosen, in words: private printing without a code, or a
// code without private printing. Nil when nothing is.
QString protectionGap(const PpdDocument &ppd, const Protection &protection, const ChosenSettings &chosen);

} // namespace host
