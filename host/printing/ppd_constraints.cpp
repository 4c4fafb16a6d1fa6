// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_constraints.h"

#include <QSet>

#include <algorithm>

namespace host {

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

PpdConstraints::PpdConstraints(const PpdDocument *document)
    : m_document(document), m_rules(document->record())
{
    const constraints::Engine &engine = m_rules.engine();
    for (constraints::Option option = 0; option < engine.optionCount(); ++option)
        m_numbers.insert(text(engine.optionName(option)), option);
}

OptionChoice PpdConstraints::side(constraints::Choice term) const
{
    const constraints::Engine &engine = m_rules.engine();
    const QString keyword = text(engine.optionName(engine.optionOf(term)));
    const QString marked = m_document->markedChoice(keyword);
    return m_document->described(keyword, marked.isEmpty() ? text(engine.choiceName(term)) : marked);
}

const constraints::PpdRules &PpdConstraints::rules()
{
    m_rules.refresh();
    return m_rules;
}

// Most PPDs contain each constraint in both directions, and some forbid each pair of many choices; duplicates
// are removed.
QList<Conflict> PpdConstraints::conflicts()
{
    const auto broken = rules().brokenLines();
    if (broken.empty())
        return {};
    QHash<constraints::Choice, std::pair<qsizetype, OptionChoice>> sides;
    QSet<QList<qsizetype>> known;
    QList<Conflict> result;
    for (const constraints::Line line : broken) {
        QMap<qsizetype, OptionChoice> inOrder;
        for (const constraints::Choice term : m_rules.engine().terms(line)) {
            auto described = sides.find(term);
            if (described == sides.end()) {
                const OptionChoice subject = side(term);
                const qsizetype place = m_document->optionKeywords().indexOf(subject.option);
                described = sides.insert(term, {place, subject});
            }
            inOrder.insert(described->first, described->second);
        }
        if (const QList<qsizetype> key = inOrder.keys(); !known.contains(key)) {
            known.insert(key);
            result.append({inOrder.values()});
        }
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

QList<quint32> PpdConstraints::revisions(const QStringList &keywords)
{
    m_rules.refresh();
    QList<quint32> result;
    for (const QString &keyword : keywords)
        result.append(m_rules.revision(m_numbers.value(keyword, constraints::none)));
    return result;
}

} // namespace host
