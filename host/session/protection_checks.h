// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/printing/ppd_document.h"

#include <optional>

namespace host {

class DialogSession;

// A resolution of the conflicts that keeps all protecting choices, and the choice of `keep` if possible. Null
// if there is none; if other resolutions exist, `givenUp`, which may be null, is set to the protection that
// they would give up.
std::optional<Resolution> protectingResolution(const PpdDocument &ppd, const Protection &protection,
                                               const QString &keep, QString *givenUp);

// The protecting choices in conflicts, localised: a printer may ignore either side of a conflict.
QStringList protectionAtRisk(const QList<Conflict> &conflicts, const Protection &protection);

// The code that is missing for a choice: the password for private printing, or the department code if it is
// switched on. A code is complete if all its digits have been chosen or are in the settings of the
// destination. Null if none is missing; owned by the session.
const Protection::Secret *missingCode(const DialogSession &session);
// A sentence that says that it is missing; `missing` is one of the session's.
QString missingCodeText(const DialogSession &session, const Protection::Secret &missing);
// The protection in the initial settings, such as a preset with private printing, that the PPD does not
// support; empty if there is none.
QString lackingProtection(const DialogSession &session);
// A description of what is missing for the chosen protection: the protection as a whole, a code, or the
// choice that uses a code. Null if nothing is missing.
QString protectionGap(const DialogSession &session);

} // namespace host
