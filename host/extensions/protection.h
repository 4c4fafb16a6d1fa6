// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace platform {
class Bundle;
}

namespace host {

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

} // namespace host
