// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace host {

// Whether type and value are equal: the text "3" differs from the number 3.
bool sameValue(const QVariant &a, const QVariant &b);

// Describes changes that the user did not request. Options with the same new choice share a sentence: "Cyan,
// Magenta were reset to 0.", followed by the reason if it is known.
struct UnrequestedChange
{
    OptionChoice change;
    bool isDefault = false; // the new choice is the printer's default
    OptionChoice cause;     // empty if unknown
};
QStringList changeNotices(const QList<UnrequestedChange> &changes);

} // namespace host
