// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/policy/locks.h"

#include "host/printing/option_text.h"
#include "host/printing/ppd_document.h"

#include <QCoreApplication>

namespace host {

namespace {

struct PolicySystemText
{
    Q_DECLARE_TR_FUNCTIONS(PolicySystemText)
};

// Job options that do not affect any choice of a PPD.
bool isHarmless(const QString &name)
{
    static const QStringList names =
        QStringLiteral(
            "booklet collate columns copies cpi fit-to-page fitplot fill crop-to-fit job-account-id "
            "job-accounting-user-id job-billing job-cancel-after job-hold-until job-name "
            "job-password job-password-encryption job-priority job-sheets landscape lpi "
            "mirror multiple-document-handling natural-scaling number-up number-up-layout "
            "orientation-requested outputorder page-border page-bottom page-left "
            "page-ranges page-right page-set page-top position ppi prettyprint "
            "print-scaling scaling wrap")
            .split(QLatin1Char(' '));
    return names.contains(name.toLower());
}

// The PPD choices that a job option sets, by option. Empty if they cannot be determined.
QMap<QString, QString> choicesOf(PpdDocument *ppd, const QString &name, const QString &value)
{
    const auto isOn = [](bool on) { return on ? QStringLiteral("True") : QStringLiteral("False"); };
    if (name.compare(QLatin1String("multiple-document-handling"), Qt::CaseInsensitive) == 0)
        return {{QStringLiteral("Collate"), isOn(!value.contains(QLatin1String("uncollated")))}};
    if (name.compare(QLatin1String("mirror"), Qt::CaseInsensitive) == 0)
        return {{QStringLiteral("MirrorPrint"), isOn(switchValue(value).value_or(true))}};
    if (name.compare(QLatin1String("booklet"), Qt::CaseInsensitive) == 0 && switchValue(value).value_or(true))
        return ppd->standardChoices(QStringLiteral("sides"), QStringLiteral("two-sided-short-edge"));
    if (!ppd->hasOption(name))
        return ppd->standardChoices(name, value);
    const auto option = ppd->option(name);
    return {{option->keyword, option->spelled(value)}};
}

} // namespace

Locks::Locks(const Policy &policy, const QString &queue, const PpdDocument *ppd)
    : m_attribution(policy.attribution()), m_choices(policy.ruleFor(queue).lockedChoices(ppd))
{
}

PrintError Locks::refused(const QString &why) const
{
    return {PrintError::Kind::NotAuthorised, why + QLatin1Char(' ') + m_attribution};
}

void Locks::addFromPage(const QString &keyword, const QString &choice)
{
    m_hasPages = true;
    if (!m_choices.contains(keyword))
        m_choices.insert(keyword, choice);
}

PrintError Locks::mustBe(const PpdDocument &ppd, const QString &keyword) const
{
    const OptionChoice fixed = ppd.described(keyword, choice(keyword));
    return refused(PolicySystemText::tr("“%1” has to be “%2”.").arg(fixed.optionText, fixed.choiceText));
}

PrintError Locks::refusal(PpdDocument *ppd, const QString &name, const QString &value) const
{
    if (isEmpty())
        return {};
    const PrintError unclear = refused(
        PolicySystemText::tr("“%1” cannot be used, since settings of this printer are fixed.").arg(name));
    if (name.contains(QLatin1Char('.')))
        return m_hasPages ? unclear : PrintError();
    if (!ppd->takesOption(name) && !isHarmless(name))
        return unclear;
    const QMap<QString, QString> choices = choicesOf(ppd, name, value);
    for (auto it = m_choices.begin(); it != m_choices.end(); ++it) {
        const bool isMeant = choices.isEmpty() && PpdDocument::optionsOfStandardName(name).contains(it.key());
        if (isMeant || choices.value(it.key(), it.value()) != it.value())
            return mustBe(*ppd, it.key());
    }
    return {};
}

PrintError Locks::refusal(const PpdDocument &ppd) const
{
    for (auto it = m_choices.begin(); it != m_choices.end(); ++it) {
        if (ppd.markedChoice(it.key()) != it.value())
            return mustBe(ppd, it.key());
    }
    return {};
}

void Locks::mark(PpdDocument *ppd) const
{
    for (auto it = m_choices.begin(); it != m_choices.end(); ++it)
        ppd->mark(it.key(), it.value());
}

} // namespace host
