// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace host {

// Announced changes of PPD options and print settings, from the first announcement of each keyword to the
// moment when all calls have returned and one can see what became of it.
class ChangeLedger
{
public:
    struct Entry
    {
        QString keyword;
        QVariant before;
        bool byUser = true; // false when no save of the user's panel asked for it
        OptionChoice cause; // what was chosen elsewhere just before; empty when nothing was
    };

    // Later announcements of the same keyword keep the first value.
    void announce(const QString &keyword, const QVariant &before, bool byUser,
                  const OptionChoice &cause = {});
    // Empties the ledger.
    QList<Entry> take();

private:
    QList<Entry> m_entries;
};

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
