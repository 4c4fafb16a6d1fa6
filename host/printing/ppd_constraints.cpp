// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_document.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <algorithm>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

// What a PPD forbids together.
namespace host {

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

bool isOffChoice(const QString &choice)
{
    return choice.compare(QLatin1String("None"), Qt::CaseInsensitive) == 0 ||
           choice.compare(QLatin1String("Off"), Qt::CaseInsensitive) == 0 ||
           choice.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0;
}

const ppd_choice_t *marked(ppd_file_t *ppd, const QString &keyword)
{
    return ppdFindMarkedChoice(ppd, keyword.toUtf8().constData());
}

// "*Duplex DuplexNoTumble *MediaType Thick" as pairs; a bare option has an empty choice.
QList<std::pair<QString, QString>> constraintTerms(const QString &value)
{
    QList<std::pair<QString, QString>> terms;
    for (const QString &word : value.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('*')))
            terms.append({word.mid(1), QString()});
        else if (!terms.isEmpty())
            terms.last().second = word;
    }
    return terms;
}

} // namespace

const QList<PpdDocument::Constraint> &PpdDocument::constraints() const
{
    if (!m_constraints)
        m_constraints = readConstraints();
    return *m_constraints;
}

QList<PpdDocument::Constraint> PpdDocument::readConstraints() const
{
    QList<Constraint> result;
    // libcups takes the longer form alone where a PPD has it.
    ppd_attr_t *attribute = ppdFindAttr(m_ppd, "cupsUIConstraints", nullptr);
    for (; attribute; attribute = ppdFindNextAttr(m_ppd, "cupsUIConstraints", nullptr)) {
        const Constraint terms = constraintTerms(text(attribute->value));
        if (terms.size() >= 2)
            result.append(terms);
    }
    if (!result.isEmpty())
        return result;
    for (int i = 0; i < m_ppd->num_consts; ++i) {
        const ppd_const_t &record = m_ppd->consts[i];
        result.append(
            {{text(record.option1), text(record.choice1)}, {text(record.option2), text(record.choice2)}});
    }
    return result;
}

// Whether a term of a constraint holds among the marks.
bool PpdDocument::isMet(const QString &keyword, const QString &choice) const
{
    const ppd_choice_t *now = marked(m_ppd, keyword);
    if (!now)
        return false;
    return choice.isEmpty() ? !isOffChoice(text(now->choice)) : choice == text(now->choice);
}

std::optional<Conflict> PpdDocument::activeConflict(const Constraint &constraint) const
{
    Conflict conflict;
    for (const auto &[keyword, choice] : constraint) {
        const ppd_choice_t *now = marked(m_ppd, keyword);
        if (!now || !now->option->conflicted || !isMet(keyword, choice))
            return std::nullopt;
        const QString option = text(now->option->keyword);
        conflict.sides.append(described(option, markedChoice(option)));
    }
    return conflict;
}

QMap<QString, OptionChoice> PpdDocument::forbiddenChoices(const QString &keyword) const
{
    QMap<QString, OptionChoice> forbidden;
    const auto subject = option(keyword);
    if (!subject)
        return forbidden;
    for (const Constraint &constraint : constraints()) {
        const auto own = std::find_if(constraint.begin(), constraint.end(),
                                      [&](const auto &term) { return term.first == subject->keyword; });
        const auto other = std::find_if(constraint.begin(), constraint.end(),
                                        [&](const auto &term) { return term.first != subject->keyword; });
        if (own == constraint.end() || other == constraint.end())
            continue;
        const bool othersHold = std::all_of(constraint.begin(), constraint.end(), [&](const auto &term) {
            return term.first == subject->keyword || isMet(term.first, term.second);
        });
        if (!othersHold)
            continue;
        for (const PpdOption::Choice &choice : subject->choices) {
            if (own->second.isEmpty() ? !isOffChoice(choice.keyword) : own->second == choice.keyword)
                forbidden.insert(choice.keyword, described(other->first, markedChoice(other->first)));
        }
    }
    return forbidden;
}

QList<Conflict> PpdDocument::conflicts() const
{
    if (ppdConflicts(m_ppd) == 0)
        return {};
    const QStringList order = optionKeywords();
    QList<Conflict> result;
    for (const Constraint &constraint : constraints()) {
        auto conflict = activeConflict(constraint);
        if (!conflict)
            continue;
        // Most PPDs write a constraint once in each direction.
        std::sort(conflict->sides.begin(), conflict->sides.end(),
                  [&](const OptionChoice &a, const OptionChoice &b) {
                      return order.indexOf(a.option) < order.indexOf(b.option);
                  });
        if (!result.contains(*conflict))
            result.append(*conflict);
    }
    return result;
}

std::optional<Resolution> PpdDocument::resolution(const QString &keep) const
{
    if (ppdConflicts(m_ppd) == 0)
        return std::nullopt;
    const QByteArray kept = keep.toUtf8();
    // By libcups's own keyword, which is "Custom" for every choice with values.
    const auto keywordOf = [this](const ppd_choice_t *choice) {
        return choice ? text(choice->choice) : QString();
    };
    const QByteArray choice = keywordOf(marked(m_ppd, keep)).toUtf8();
    const bool hasKept = !kept.isEmpty() && !choice.isEmpty();
    int count = 0;
    cups_option_t *options = nullptr;
    const int resolved = cupsResolveConflicts(m_ppd, hasKept ? kept.constData() : nullptr,
                                              hasKept ? choice.constData() : nullptr, &count, &options);
    Resolution changes;
    for (int i = 0; i < count; ++i) {
        const QString option = text(options[i].name);
        const QString value = text(options[i].value);
        if (hasOption(option) && keywordOf(marked(m_ppd, option)) != value)
            changes.append(described(option, value));
    }
    cupsFreeOptions(count, options);
    if (!resolved || changes.isEmpty())
        return keep.isEmpty() ? std::nullopt : resolution();
    return changes;
}

} // namespace host
