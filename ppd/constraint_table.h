// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <QSet>
#include <QString>

struct ppd_file_s;

// Which pairs of option choices a PPD forbids, looked up from either side. Built once from the PPD's
// constraint lines, which are taken literally: a line without a choice has the empty string there, and no
// choice name is special. A line with a name that is not valid UTF-8 is left out. Null names nothing, and so
// conflicts with nothing.
class ConstraintTable
{
public:
    using Option = constraints::Option;
    using Choice = constraints::Choice;
    static constexpr Choice none = constraints::none;

    ConstraintTable() = default;
    // A null PPD gives an empty table.
    explicit ConstraintTable(const ppd_file_s *ppd);

    // Names are compared exactly, case included.
    bool conflicts(const QString &option1, const QString &choice1, const QString &option2,
                   const QString &choice2) const;
    // The options of which some choice conflicts with this choice of this option.
    QSet<QString> conflictableOptions(const QString &option, const QString &choice) const;
    bool isEmpty() const { return m_engine.lineCount() == 0; }

    // For callers that ask often: the number of an option and of one of its choices, and the answer by
    // numbers. `none` where no line names it; `none` conflicts with nothing.
    Option optionNumber(const QString &option) const;
    Choice choiceNumber(Option option, const QString &choice) const;
    bool conflicts(Choice first, Choice second) const { return m_engine.isPair(first, second); }

private:
    Choice find(const QString &option, const QString &choice) const;

    constraints::Engine m_engine;
};
