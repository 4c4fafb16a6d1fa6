// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/protection_checks.h"

#include "host/session/dialog_session.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct ProtectionText
{
    Q_DECLARE_TR_FUNCTIONS(ProtectionText)
};

// The protection that a resolution would give up; null if it gives up none.
QString givenUpBy(const Resolution &resolution, const PpdDocument &ppd, const Protection &protection)
{
    for (const OptionChoice &change : resolution) {
        const QString now = ppd.markedChoice(change.option);
        if (protection.protects(change.option, now) && !protection.protects(change.option, change.choice))
            return ppd.described(change.option, now).text();
    }
    return {};
}

// Whether a digit is set: by the user, or in the initial settings of the dialog.
bool isGiven(const DialogSession &session, const QString &option)
{
    return session.chosen().contains(option) ||
           session.ppd()->markedChoice(option) != session.ppd()->defaultChoice(option) ||
           session.destination().options.keys().contains(option, Qt::CaseInsensitive);
}

// Whether all digits are set, and not only to the value that means no code. An incomplete code does not
// count.
bool isCodeGiven(const DialogSession &session, const Protection::Secret &secret)
{
    const auto &options = secret.options;
    return session.chosen().contains(secret.key) ||
           (std::all_of(options.begin(), options.end(),
                        [&](const QString &option) { return isGiven(session, option); }) &&
            std::any_of(options.begin(), options.end(), [&](const QString &option) {
                return session.ppd()->markedChoice(option) != session.ppd()->defaultChoice(option);
            }));
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

const Protection::Secret *missingCode(const DialogSession &session)
{
    const PpdDocument *ppd = session.ppd();
    for (const Protection::Secret &secret : session.protection().secrets) {
        const bool isUsed =
            ppd && ppd->hasOption(secret.option) && ppd->markedChoice(secret.option) == secret.choice;
        if (isUsed && !isCodeGiven(session, secret))
            return &secret;
    }
    return nullptr;
}

QString missingCodeText(const DialogSession &session, const Protection::Secret &missing)
{
    const QString text =
        session.protection().protects(missing.option, missing.choice)
            ? ProtectionText::tr("“%1” has been chosen, but no password has been given for it.")
            : ProtectionText::tr("“%1” has been chosen, but no code has been given for it.");
    return text.arg(session.ppd()->described(missing.option, missing.choice).text());
}

QString lackingProtection(const DialogSession &session)
{
    const QMap<QString, QString> &options = session.destination().options;
    for (auto it = options.begin(); session.ppd() && it != options.end(); ++it) {
        const auto option = session.ppd()->option(it.key());
        if (session.protection().protects(it.key(), it.value()) &&
            !(option && option->hasChoice(it.value())) && !session.chosen().contains(it.key()))
            return session.ppd()->described(it.key(), it.value()).text();
    }
    return {};
}

QString protectionGap(const DialogSession &session)
{
    if (const QString lacking = lackingProtection(session); !lacking.isEmpty())
        return ProtectionText::tr("This printer does not have “%1”: the job will not be protected.")
            .arg(lacking);
    if (const Protection::Secret *missing = missingCode(session))
        return missingCodeText(session, *missing);
    const Protection &protection = session.protection();
    for (const Protection::Secret &secret :
         session.ppd() ? protection.secrets : QList<Protection::Secret>()) {
        const auto option = session.ppd()->option(secret.option);
        const bool isUsed = !option || option->markedChoice == secret.choice;
        if (!isUsed && protection.protects(secret.option, secret.choice) &&
            option->hasChoice(secret.choice) && isChosen(session.chosen(), secret))
            return ProtectionText::tr("A password has been given, but not “%1”: the job is not protected.")
                .arg(session.ppd()->described(secret.option, secret.choice).text());
    }
    return {};
}

} // namespace host
