// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_custom.h"

#include <QList>
#include <QString>

#include <optional>

// Values that describe the options of a PPD.
namespace host {

// An option with one of its choices, and their localised texts.
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
    QString markedChoice;  // empty if nothing is marked
    QList<Choice> choices; // without the custom choice
    std::optional<CustomChoice> custom;

    // Whether this is one of the choices, or a custom choice with valid values.
    bool hasChoice(const QString &choice) const;
    // A choice in the PPD's spelling, ignoring letter case; other values are returned unchanged.
    QString spelled(const QString &choice) const;
};

// Marked choices that the PPD does not allow together.
struct Conflict
{
    QList<OptionChoice> sides; // two or more, in PPD order of their options
    bool operator==(const Conflict &) const = default;
};

// The changes proposed by libcups to resolve all conflicts.
using Resolution = QList<OptionChoice>;

} // namespace host
