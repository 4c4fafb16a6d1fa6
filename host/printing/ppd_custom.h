// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct ppd_file_s;
struct ppd_option_s;

namespace host {

// One parameter of a custom choice, as declared in the PPD. A value.
struct CustomParameter
{
    enum class Type { Whole, Number, Length, Text, Digits, Password };

    QString keyword;
    QString text; // localised
    Type type = Type::Text;
    double minimum = 0; // of a length in points, of texts in characters
    double maximum = 0;
    QString value; // as stored in the PPD's record: numbers with a decimal point, lengths in points

    bool isNumeric() const { return type <= Type::Length; }
    bool isSecret() const { return type == Type::Digits || type == Type::Password; }
    // The type for programs, such as "integer". Never localised.
    QString typeName() const;
    // A localised description, such as "a whole number from 1 to 9".
    QString inWords() const;
    // Parses a value into its plain form, lengths in points; null if it is not valid for this parameter.
    std::optional<QString> read(const QString &text) const;
};

// The custom choice of an option, in the notation of the print system: "Custom.300x400", "Custom.100x200mm",
// "Custom.1.5", "{First=1 Second=two\ words}". A value.
struct CustomChoice
{
    QString text;        // "Custom"
    bool isSize = false; // of paper: two lengths, width and height
    QList<CustomParameter> parameters;

    bool isSecret() const;
    // The parameters' values in their plain form, in order. Null with a localised description of valid values
    // if the choice is not valid. `option` is the name of the option in this description, which never
    // contains the value.
    std::optional<QStringList> read(const QString &choice, const QString &option, QString *problem) const;
    // The choice for the given values, one for each parameter. The values of a size may have a unit, the same
    // for both.
    QString written(const QStringList &values) const;
    // The choice as stored in the record.
    QString current() const;
    // For display, such as "Custom (100 × 200 mm)"; passwords are masked.
    QString shown(const QString &choice) const;
    // A localised description of valid values.
    QString inWords() const;
};

// A length as typed by a user: a number and pt, mm, cm, m, in or ft; points if there is no unit.
struct CustomLength
{
    double number = 0;
    QString unit;

    static std::optional<CustomLength> read(const QString &text);
    double points() const { return number * pointsIn(unit); }
    // 0 for an unknown unit.
    static double pointsIn(const QString &unit);
};

// Whether a choice has the syntax of a custom choice.
bool isCustomChoice(const QString &choice);
// A number in the notation of the print system, without redundant zeros.
QString plainNumber(double number);
// The custom choice of an option with the values stored in the record; null if it has none.
std::optional<CustomChoice> customChoiceOf(ppd_file_s *ppd, ppd_option_s *option);

} // namespace host
