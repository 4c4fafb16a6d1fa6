// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace host {

// Equal in type and value: "3" is something else than 3.
bool sameValue(const QVariant &a, const QVariant &b);

// One sentence for each group of options that ended at the same choice: "Cyan, Magenta were reset to 0."
// Followed by the reason where there is one.
struct UnaskedChange
{
    OptionChoice change;
    bool isDefault = false; // the choice is the printer's default
    OptionChoice cause;     // empty for an unknown one
};
QStringList changeNotices(const QList<UnaskedChange> &changes);

} // namespace host
