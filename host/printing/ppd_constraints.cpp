// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_constraints.h"

#include <algorithm>

namespace host {

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// Most PPDs write a constraint once in each direction.
void sortSides(QList<OptionChoice> *sides, const QStringList &order)
{
    std::sort(sides->begin(), sides->end(), [&](const OptionChoice &a, const OptionChoice &b) {
        return order.indexOf(a.option) < order.indexOf(b.option);
    });
}

} // namespace

PpdConstraints::PpdConstraints(const PpdDocument *document)
    : m_document(document), m_rules(document->record())
{
}

OptionChoice PpdConstraints::side(constraints::Choice term) const
{
    const constraints::Engine &engine = m_rules.engine();
    const QString keyword = text(engine.optionName(engine.optionOf(term)));
    const QString marked = m_document->markedChoice(keyword);
    return m_document->described(keyword, marked.isEmpty() ? text(engine.choiceName(term)) : marked);
}

QList<Conflict> PpdConstraints::conflicts()
{
    m_rules.refresh();
    const auto broken = m_rules.brokenLines();
    if (broken.empty())
        return {};
    const QStringList order = m_document->optionKeywords();
    QList<Conflict> result;
    for (const constraints::Line line : broken) {
        Conflict conflict;
        for (const constraints::Choice term : m_rules.engine().terms(line))
            conflict.sides.append(side(term));
        sortSides(&conflict.sides, order);
        if (!result.contains(conflict))
            result.append(conflict);
    }
    return result;
}

constraints::Choice PpdConstraints::otherTerm(constraints::Line line, constraints::Option option) const
{
    const constraints::Engine &engine = m_rules.engine();
    const auto terms = engine.terms(line);
    return *std::ranges::find_if(terms, [&](auto term) { return engine.optionOf(term) != option; });
}

QMap<QString, OptionChoice> PpdConstraints::forbiddenChoices(const QString &keyword)
{
    m_rules.refresh();
    QMap<QString, OptionChoice> result;
    const std::string name = keyword.toStdString();
    const constraints::Option option = m_rules.engine().findOption(name);
    for (const auto &forbidden : m_rules.forbiddenChoices(name))
        result.insert(text(forbidden.choice), side(otherTerm(forbidden.line, option)));
    return result;
}

quint32 PpdConstraints::revision(const QString &keyword)
{
    m_rules.refresh();
    return m_rules.revision(keyword.toStdString());
}

} // namespace host
