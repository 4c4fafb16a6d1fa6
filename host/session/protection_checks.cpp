// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/protection_checks.h"

#include "host/session/chosen_settings.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct ProtectionText
{
    Q_DECLARE_TR_FUNCTIONS(ProtectionText)
};

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

const Protection::Secret *missingCode(const PpdDocument &ppd, const Protection &protection,
                                      const ChosenSettings &chosen)
{
    for (const Protection::Secret &secret : protection.secrets) {
        if (ppd.hasOption(secret.option) && ppd.markedChoice(secret.option) == secret.choice &&
            !isChosen(chosen, secret) && !isStored(ppd, secret.options))
            return &secret;
    }
    return nullptr;
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
