// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <utility>
#include <vector>

struct ppd_file_s;

// Which pairs of option choices a PPD forbids, looked up from either side. Built once from the PPD's
// constraint lines, which are taken literally: a line without a choice has the empty string there, and no
// choice name is special. A line with a name that is not valid UTF-8 is left out.
class ConstraintTable
{
public:
    ConstraintTable() = default;
    // A null PPD gives an empty table.
    explicit ConstraintTable(const ppd_file_s *ppd);

    // Names are compared exactly, case included.
    bool conflicts(const QString &option1, const QString &choice1, const QString &option2,
                   const QString &choice2) const;
    // The options of which some choice conflicts with this choice of this option.
    QSet<QString> conflictableOptions(const QString &option, const QString &choice) const;
    bool isEmpty() const { return m_forbidden.empty(); }

private:
    // PPDs with tens of thousands of constraint lines name a few thousand choices, so names and choices are
    // numbered once and the lines kept as numbers: the table is built in a fraction of the time that parsing
    // the PPD takes.
    using Name = quint32;   // index into m_names
    using Choice = quint32; // a choice of an option: index into m_options, and of its row

    struct Reader;

    void fillRows(const std::vector<std::pair<Choice, Choice>> &lines);
    std::optional<Choice> find(const QString &option, const QString &choice) const;
    std::span<const Choice> row(Choice choice) const;

    QStringList m_names;
    QHash<QString, Name> m_nameNumbers;
    QHash<quint64, Choice> m_choiceNumbers; // key: option in the upper half, choice keyword in the lower
    std::vector<Name> m_options;            // the option that each choice belongs to
    std::vector<quint32> m_rowStarts; // row of choice c: [m_rowStarts[c], m_rowStarts[c + 1]) of m_forbidden
    std::vector<Choice> m_forbidden;  // what each choice forbids, sorted within its row; may repeat
};
