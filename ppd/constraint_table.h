// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QSet>
#include <QString>

struct ppd_file_s;

// Which pairs of option choices a PPD forbids, looked up from either side. Built once from the PPD's constraint
// lines, which are taken literally: a line without a choice has the empty string there, and no choice name is special.
class ConstraintTable
{
public:
    ConstraintTable() = default;
    // A null PPD gives an empty table.
    explicit ConstraintTable(const ppd_file_s *ppd);

    bool conflicts(const QString &option1, const QString &choice1, const QString &option2,
                   const QString &choice2) const;
    // The options of which some choice conflicts with this choice of this option.
    QSet<QString> conflictableOptions(const QString &option, const QString &choice) const;
    bool isEmpty() const { return m_table.isEmpty(); }

private:
    using Choices = QSet<QString>;
    using ByOption = QHash<QString, Choices>;
    using ByChoice = QHash<QString, ByOption>;
    QHash<QString, ByChoice> m_table; // option A, choice a, option B: the choices of B that a forbids
};
