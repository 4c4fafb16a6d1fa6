// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/constraint_table.h"

#include "ppd/utf8.h"

#include <QByteArrayView>

#include <cups/ppd.h>

#include <algorithm>
#include <numeric>

namespace {

quint64 choiceKey(quint32 option, quint32 choice)
{
    return quint64(option) << 32 | choice;
}

} // namespace

// Numbers the names and choices of a table while the PPD's constraint lines are read. Looks names up by their
// bytes, which it borrows from the PPD, and decodes each distinct one once.
struct ConstraintTable::Reader
{
    explicit Reader(ConstraintTable *target) : table(target) {}

    // Nil when the bytes are not valid UTF-8.
    std::optional<Name> name(const char *bytes)
    {
        const QByteArrayView view(bytes);
        if (const auto known = numbers.constFind(view); known != numbers.cend())
            return *known;
        const QString text = stringFromUtf8(view);
        std::optional<Name> number;
        if (!text.isNull()) {
            number = Name(table->m_names.size());
            table->m_names.append(text);
            table->m_nameNumbers.insert(text, *number);
        }
        numbers.insert(view, number);
        return number;
    }

    std::optional<Choice> choice(const char *option, const char *choice)
    {
        const auto optionName = name(option);
        const auto choiceName = name(choice);
        if (!optionName || !choiceName)
            return std::nullopt;
        const quint64 key = choiceKey(*optionName, *choiceName);
        if (const auto known = table->m_choiceNumbers.constFind(key); known != table->m_choiceNumbers.cend())
            return *known;
        const auto number = Choice(table->m_options.size());
        table->m_options.push_back(*optionName);
        table->m_choiceNumbers.insert(key, number);
        return number;
    }

    ConstraintTable *table;
    QHash<QByteArrayView, std::optional<Name>> numbers;
};

ConstraintTable::ConstraintTable(const ppd_file_s *ppd)
{
    if (!ppd || ppd->num_consts <= 0)
        return;
    Reader reader(this);
    std::vector<std::pair<Choice, Choice>> lines;
    lines.reserve(size_t(ppd->num_consts));
    for (const ppd_const_t &line : std::span(ppd->consts, size_t(ppd->num_consts))) {
        const auto first = reader.choice(line.option1, line.choice1);
        const auto second = reader.choice(line.option2, line.choice2);
        if (first && second)
            lines.emplace_back(*first, *second);
    }
    fillRows(lines);
}

void ConstraintTable::fillRows(const std::vector<std::pair<Choice, Choice>> &lines)
{
    // Count what goes into each row, turn the counts into row ends, then fill each row from its end
    // downwards.
    m_rowStarts.assign(m_options.size() + 1, 0);
    for (const auto &[first, second] : lines) {
        ++m_rowStarts[first];
        ++m_rowStarts[second];
    }
    std::partial_sum(m_rowStarts.begin(), m_rowStarts.end(), m_rowStarts.begin());
    m_forbidden.resize(m_rowStarts.back());
    for (const auto &[first, second] : lines) {
        m_forbidden[--m_rowStarts[first]] = second;
        m_forbidden[--m_rowStarts[second]] = first;
    }
    for (size_t choice = 0; choice < m_options.size(); ++choice)
        std::sort(m_forbidden.begin() + m_rowStarts[choice], m_forbidden.begin() + m_rowStarts[choice + 1]);
}

std::optional<ConstraintTable::Choice> ConstraintTable::find(const QString &option,
                                                             const QString &choice) const
{
    const auto optionName = m_nameNumbers.constFind(option);
    const auto choiceName = m_nameNumbers.constFind(choice);
    if (optionName == m_nameNumbers.cend() || choiceName == m_nameNumbers.cend())
        return std::nullopt;
    const auto found = m_choiceNumbers.constFind(choiceKey(*optionName, *choiceName));
    if (found == m_choiceNumbers.cend())
        return std::nullopt;
    return *found;
}

std::span<const ConstraintTable::Choice> ConstraintTable::row(Choice choice) const
{
    const quint32 start = m_rowStarts[choice];
    return std::span(m_forbidden).subspan(start, m_rowStarts[choice + 1] - start);
}

bool ConstraintTable::conflicts(const QString &option1, const QString &choice1, const QString &option2,
                                const QString &choice2) const
{
    const auto first = find(option1, choice1);
    const auto second = first ? find(option2, choice2) : std::nullopt;
    return second && std::ranges::binary_search(row(*first), *second);
}

QSet<QString> ConstraintTable::conflictableOptions(const QString &option, const QString &choice) const
{
    QSet<QString> options;
    if (const auto found = find(option, choice)) {
        for (const Choice forbidden : row(*found))
            options.insert(m_names[m_options[forbidden]]);
    }
    return options;
}
