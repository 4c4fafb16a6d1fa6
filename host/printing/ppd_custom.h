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

// One of the values that a custom choice is made of, as the PPD declares it. A value.
struct CustomParameter
{
    enum class Type { Whole, Number, Length, Text, Digits, Password };

    QString keyword;
    QString text; // the user's word for it
    Type type = Type::Text;
    double minimum = 0; // of a length in points, of texts in characters
    double maximum = 0;
    QString value; // as it stands in the PPD's record: numbers with a decimal point, lengths in points

    bool isNumeric() const { return type <= Type::Length; }
    bool isSecret() const { return type == Type::Digits || type == Type::Password; }
    // As programs know it, such as "integer". Never localised.
    QString typeName() const;
    // "a whole number from 1 to 9".
    QString inWords() const;
    // The value in its plain form, lengths in points; null when it is not one of this parameter.
    std::optional<QString> read(const QString &text) const;
};

// The choice of an option that takes values of its own, in the notation of the print system:
// "Custom.300x400", "Custom.100x200mm", "Custom.1.5", "{First=1 Second=two\ words}". A value.
struct CustomChoice
{
    QString text;        // "Custom"
    bool isSize = false; // of paper: two lengths, width and height
    QList<CustomParameter> parameters;

    bool isSecret() const;
    // The parameters' values in their plain form, in order; null, and what would be taken in a user's words,
    // when the choice is not one of this kind. `option` is what the words call the option. Words never repeat
    // a value.
    std::optional<QStringList> read(const QString &choice, const QString &option, QString *problem) const;
    // The choice for one value a parameter. Those of a size may end in a unit, both in the same.
    QString written(const QStringList &values) const;
    // The choice as the record holds it.
    QString current() const;
    // For people, such as "Custom (100 × 200 mm)"; passwords as dots.
    QString shown(const QString &choice) const;
    // What is taken, in a user's words.
    QString inWords() const;
};

// A length as people type it: a number and pt, mm, cm, m, in or ft; points where there is no unit.
struct CustomLength
{
    double number = 0;
    QString unit;

    static std::optional<CustomLength> read(const QString &text);
    double points() const { return number * pointsIn(unit); }
    // 0 for what is no unit.
    static double pointsIn(const QString &unit);
};

// Whether a choice is written like one with values.
bool isCustomChoice(const QString &choice);
// A number as the print system writes it, without needless zeros.
QString plainNumber(double number);
// The custom choice of an option with the values that the record holds; null when it has none.
std::optional<CustomChoice> customChoiceOf(ppd_file_s *ppd, ppd_option_s *option);

} // namespace host
