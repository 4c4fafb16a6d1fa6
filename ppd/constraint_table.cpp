// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/constraint_table.h"

#include "constraints/ppd_lines.h"
#include "ppd/utf8.h"

#include <algorithm>

namespace {

bool isUtf8(std::string_view name)
{
    return std::ranges::all_of(name, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }) ||
           !stringFromUtf8({name.data(), qsizetype(name.size())}).isNull();
}

} // namespace

ConstraintTable::ConstraintTable(const ppd_file_s *ppd) : m_engine(constraints::linesAsWritten(ppd, isUtf8))
{
}

ConstraintTable::Option ConstraintTable::optionNumber(const QString &option) const
{
    const QByteArray name = option.toUtf8();
    return option.isNull() ? none : m_engine.findOption({name.constData(), size_t(name.size())});
}

ConstraintTable::Choice ConstraintTable::choiceNumber(Option option, const QString &choice) const
{
    const QByteArray name = choice.toUtf8();
    return choice.isNull() ? none : m_engine.findChoice(option, {name.constData(), size_t(name.size())});
}

ConstraintTable::Choice ConstraintTable::find(const QString &option, const QString &choice) const
{
    return choiceNumber(optionNumber(option), choice);
}

bool ConstraintTable::conflicts(const QString &option1, const QString &choice1, const QString &option2,
                                const QString &choice2) const
{
    return conflicts(find(option1, choice1), find(option2, choice2));
}

QSet<QString> ConstraintTable::conflictableOptions(const QString &option, const QString &choice) const
{
    QSet<QString> options;
    const Choice own = find(option, choice);
    if (own == none)
        return options;
    for (const constraints::Line line : m_engine.linesOf(own)) {
        for (const Choice term : m_engine.terms(line)) {
            if (term == own && m_engine.terms(line).size() > 1)
                continue;
            const std::string_view name = m_engine.optionName(m_engine.optionOf(term));
            options.insert(QString::fromUtf8(name.data(), qsizetype(name.size())));
        }
    }
    return options;
}
