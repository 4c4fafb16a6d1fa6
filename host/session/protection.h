// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace platform {
class Bundle;
}

namespace host {

class ChosenSettings;

// What a bundle says of the options that protect the user, and of the keys that hold codes. The host knows
// none of them by itself. A value; empty for a printer that no bundle serves.
struct Protection
{
    struct Secret
    {
        QString key;         // of a panel
        QStringList options; // PPD options that keep it
        QString option;      // what it is used with
        QString choice;
        bool operator==(const Secret &) const = default;
    };
    QMap<QString, QStringList> choices; // that protect, by option
    QList<Secret> secrets;

    bool protects(const QString &option, const QString &choice) const;
    // The secret that a key or an option belongs to; null for others. Points into this object.
    const Secret *secretOf(const QString &key) const;

    static Protection from(const platform::Bundle &bundle);
    void add(const Protection &other);
};

// A way out of the conflicts that gives up nothing that protects, with `keep` as it is where that is
// possible. Nil where there is none; where there are ways that do give up something, `givenUp` (may be null)
// says what.
std::optional<Resolution> protectingResolution(const PpdDocument &ppd, const Protection &protection,
                                               const QString &keep, QString *givenUp);

// The choices of conflicts that protect the user, in words: a printer may give up either side.
QStringList protectionAtRisk(const QList<Conflict> &conflicts, const Protection &protection);

// What is missing for the protection that has been chosen, in words: private printing without a code, or a
// code without private printing. Nil when nothing is.
QString protectionGap(const PpdDocument &ppd, const Protection &protection, const ChosenSettings &chosen);

} // namespace host
