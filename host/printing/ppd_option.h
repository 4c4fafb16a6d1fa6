// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_custom.h"

#include <QList>
#include <QString>

#include <optional>

// What a PPD says of its options, as values.
namespace host {

// An option set to one of its choices, with the words a user reads.
struct OptionChoice
{
    QString option;
    QString choice;
    QString optionText;
    QString choiceText;

    // "Two-Sided: Long Edge".
    QString text() const;
    bool operator==(const OptionChoice &) const = default;
};

struct PpdOption
{
    struct Choice
    {
        QString keyword;
        QString text;
    };
    QString keyword;
    QString text;
    QString groupText;
    QString defaultChoice;
    QString markedChoice;  // empty when nothing is marked
    QList<Choice> choices; // without the one that takes values of its own
    std::optional<CustomChoice> custom;

    // One of the choices, or a custom one with values that the option takes.
    bool hasChoice(const QString &choice) const;
    // A choice in the PPD's own spelling, whatever its case; other values as they are.
    QString spelled(const QString &choice) const;
};

// Choices that the PPD forbids together and that are marked all the same.
struct Conflict
{
    QList<OptionChoice> sides; // two or more, in PPD order of their options
    bool operator==(const Conflict &) const = default;
};

// What libcups proposes to end every conflict.
using Resolution = QList<OptionChoice>;

} // namespace host
