// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <QSet>
#include <QString>

struct ppd_file_s;

// The pairs of option choices that a PPD forbids, indexed by both sides. Built once from the PPD's constraint
// lines, which are interpreted literally: a missing choice is the empty string, and no choice name is
// special. Lines with a name that is not valid UTF-8 are left out. A null name conflicts with nothing.
class ConstraintTable
{
public:
    using Option = constraints::Option;
    using Choice = constraints::Choice;
    static constexpr Choice none = constraints::none;

    ConstraintTable() = default;
    // A null PPD results in an empty table.
    explicit ConstraintTable(const ppd_file_s *ppd);

    // Names are compared exactly, case included.
    bool conflicts(const QString &option1, const QString &choice1, const QString &option2,
                   const QString &choice2) const;
    // The options that have a choice that conflicts with this choice of this option.
    QSet<QString> conflictableOptions(const QString &option, const QString &choice) const;
    bool isEmpty() const { return m_engine.lineCount() == 0; }

    // For frequent callers: the numbers of an option and of its choices, and the result by number. `none` if
    // no line names it; `none` conflicts with nothing.
    Option optionNumber(const QString &option) const;
    Choice choiceNumber(Option option, const QString &choice) const;
    bool conflicts(Choice first, Choice second) const { return m_engine.isPair(first, second); }

private:
    Choice find(const QString &option, const QString &choice) const;

    constraints::Engine m_engine;
};
