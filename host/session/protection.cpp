// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/protection.h"

#include "host/session/chosen_settings.h"
#include "platform/bundle.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>

namespace host {

namespace {

struct ProtectionText
{
    Q_DECLARE_TR_FUNCTIONS(ProtectionText)
};

Protection::Secret secretFrom(const QVariantMap &info)
{
    const QVariantMap usedWith = info.value(QStringLiteral("UsedWith")).toMap();
    return {info.value(QStringLiteral("Key")).toString(),
            info.value(QStringLiteral("Options")).toStringList(), usedWith.firstKey(),
            usedWith.first().toString()};
}

// The protection that a way out would give up; nil when it gives up none.
QString givenUpBy(const Resolution &resolution, const PpdDocument &ppd, const Protection &protection)
{
    for (const OptionChoice &change : resolution) {
        const QString now = ppd.markedChoice(change.option);
        if (protection.protects(change.option, now) && !protection.protects(change.option, change.choice))
            return ppd.described(change.option, now).text();
    }
    return {};
}

// Whether one of the options has another choice than the printer's default.
bool isStored(const PpdDocument &ppd, const QStringList &options)
{
    return std::any_of(options.begin(), options.end(), [&](const QString &option) {
        return ppd.markedChoice(option) != ppd.defaultChoice(option);
    });
}

bool isChosen(const ChosenSettings &chosen, const Protection::Secret &secret)
{
    return chosen.contains(secret.key) ||
           std::any_of(secret.options.begin(), secret.options.end(),
                       [&](const QString &option) { return chosen.contains(option); });
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

std::optional<Resolution> protectingResolution(const PpdDocument &ppd, const Protection &protection,
                                               const QString &keep, QString *givenUp)
{
    const auto first = ppd.resolution(keep);
    const QString loss = first ? givenUpBy(*first, ppd, protection) : QString();
    if (loss.isNull())
        return first;
    for (auto it = protection.choices.begin(); it != protection.choices.end(); ++it) {
        const auto other = ppd.resolution(it.key());
        if (other && givenUpBy(*other, ppd, protection).isNull())
            return other;
    }
    if (givenUp)
        *givenUp = loss;
    return std::nullopt;
}

QStringList protectionAtRisk(const QList<Conflict> &conflicts, const Protection &protection)
{
    QStringList atRisk;
    for (const Conflict &conflict : conflicts) {
        for (const OptionChoice &side : conflict.sides) {
            if (protection.protects(side.option, side.choice) && !atRisk.contains(side.text()))
                atRisk.append(side.text());
        }
    }
    return atRisk;
}

QString protectionGap(const PpdDocument &ppd, const Protection &protection, const ChosenSettings &chosen)
{
    for (const Protection::Secret &secret : protection.secrets) {
        const auto option = ppd.option(secret.option);
        if (!protection.protects(secret.option, secret.choice) || !option ||
            !option->hasChoice(secret.choice))
            continue;
        const bool isUsed = ppd.markedChoice(secret.option) == secret.choice;
        const QString use = ppd.described(secret.option, secret.choice).text();
        if (isUsed && !isChosen(chosen, secret) && !isStored(ppd, secret.options))
            return ProtectionText::tr("“%1” has been chosen, but no code has been given for it.").arg(use);
        if (!isUsed && isChosen(chosen, secret))
            return ProtectionText::tr("A code has been given, but not “%1”: the job is not protected.")
                .arg(use);
    }
    return {};
}

} // namespace host
