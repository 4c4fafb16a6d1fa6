// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/extensions/protection.h"

#include "platform/bundle.h"

#include <QVariantMap>

#include <algorithm>

namespace host {

namespace {

Protection::Secret secretFrom(const QVariantMap &info)
{
    const QVariantMap usedWith = info.value(QStringLiteral("UsedWith")).toMap();
    return {info.value(QStringLiteral("Key")).toString(),
            info.value(QStringLiteral("Options")).toStringList(), usedWith.firstKey(),
            usedWith.first().toString()};
}

} // namespace

bool Protection::protects(const QString &option, const QString &choice) const
{
    return choices.value(option).contains(choice);
}

const Protection::Secret *Protection::secretOf(const QString &key) const
{
    const auto secret = std::find_if(secrets.begin(), secrets.end(), [&](const Secret &s) {
        return s.key == key || s.options.contains(key);
    });
    return secret == secrets.end() ? nullptr : &*secret;
}

Protection Protection::from(const platform::Bundle &bundle)
{
    Protection protection;
    const QVariantMap options = bundle.infoValueForKey(platform::Bundle::protectingOptionsKey).toMap();
    for (auto it = options.begin(); it != options.end(); ++it)
        protection.choices.insert(it.key(), it.value().toStringList());
    for (const QVariant &secret : bundle.infoValueForKey(platform::Bundle::secretKeysKey).toList())
        protection.secrets.append(secretFrom(secret.toMap()));
    return protection;
}

void Protection::add(const Protection &other)
{
    for (auto it = other.choices.begin(); it != other.choices.end(); ++it)
        choices[it.key()] += it.value();
    secrets += other.secrets;
}

} // namespace host
