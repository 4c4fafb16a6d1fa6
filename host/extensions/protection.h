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

// The options that protect the user and the keys that contain codes, as declared by a bundle; the host has no
// such knowledge. A value; empty for a printer without a bundle.
struct Protection
{
    struct Secret
    {
        QString key;         // of a panel
        QStringList options; // PPD options that store the code
        QString option;      // the option and choice with which the code is used
        QString choice;
        bool operator==(const Secret &) const = default;
    };
    QMap<QString, QStringList> choices; // protecting choices, by option
    QList<Secret> secrets;

    bool protects(const QString &option, const QString &choice) const;
    // The secret to which a key or an option belongs; null for others. Points into this object.
    const Secret *secretOf(const QString &key) const;

    static Protection from(const platform::Bundle &bundle);
    void add(const Protection &other);
};

} // namespace host
