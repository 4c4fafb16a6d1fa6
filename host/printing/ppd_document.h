// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

struct ppd_file_s;
struct ppd_option_s;

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
    QList<Choice> choices; // without those that take a value of their own

    bool hasChoice(const QString &choice) const;
};

// A sheet of paper, and the margins that the printer leaves white; all in millimetres.
struct PaperSize
{
    double width = 0, height = 0;
    double left = 0, right = 0, top = 0, bottom = 0;
};

// Choices that the PPD forbids together and that are marked all the same.
struct Conflict
{
    QList<OptionChoice> sides; // two or more, in PPD order of their options
    bool operator==(const Conflict &) const = default;
};

// What libcups proposes to end every conflict.
using Resolution = QList<OptionChoice>;

// A printer's PPD, opened, localised and marked with its defaults. Owns the record that panels work on;
// outlives them. The only door to libcups's PPD interface in the host. Texts are in the user's language where
// the PPD has it.
class PpdDocument
{
public:
    // Null with an error that names the file, and the line where the PPD is broken.
    static std::unique_ptr<PpdDocument> open(const QString &path, PrintError *error);
    // The PPD of a queue, asked from the print server. Null without an error for a queue that has none.
    static std::unique_ptr<PpdDocument> ofQueue(const QString &queue, PrintError *error);
    ~PpdDocument();
    PpdDocument(const PpdDocument &) = delete;
    PpdDocument &operator=(const PpdDocument &) = delete;

    ppd_file_s *record() const { return m_ppd; }
    QString modelName() const;

    QStringList optionKeywords() const; // in PPD order
    bool hasOption(const QString &keyword) const;
    std::optional<PpdOption> option(const QString &keyword) const;
    QString markedChoice(const QString &keyword) const;
    QString defaultChoice(const QString &keyword) const;
    // The measures of a choice of PageSize; nil when the PPD does not tell them.
    std::optional<PaperSize> paperSize(const QString &choice) const;
    // Whether it stands for a unit that is or is not installed.
    bool isInstallable(const QString &keyword) const;
    // With the words for it; the keywords themselves where the PPD has no such option or choice.
    OptionChoice described(const QString &keyword, const QString &choice) const;

    // False, and nothing changed, when the PPD has no such option or choice. Sizes such as "Custom.100x200mm"
    // count as choices where the option takes them.
    bool mark(const QString &keyword, const QString &choice);
    // Marks what a destination's or a command's options say, standard names such as "media" and "sides"
    // included; options that the PPD knows nothing of are passed over.
    void markOptions(const QMap<QString, QString> &options);
    // Whether markOptions() turns an option of this name into marks.
    bool takesOption(const QString &name) const;
    // The choices that a standard name such as "media" stands for with this value, by option. Empty when the
    // PPD has none for it, or for one of several values in a list. What is marked stays as it is.
    QMap<QString, QString> standardChoices(const QString &name, const QString &value);
    // Marked choices that are not the default, in PPD order, without installable options.
    QList<OptionChoice> changedChoices() const;

    // The conflicts that libcups sees among the marks.
    QList<Conflict> conflicts() const;
    // The choices of an option that the PPD forbids together with what is marked for other options, each with
    // one of those that stand in its way.
    QMap<QString, OptionChoice> forbiddenChoices(const QString &keyword) const;
    // Nil when there is no conflict or libcups finds no way out. `keep` is left as it is where that is
    // possible.
    std::optional<Resolution> resolution(const QString &keep = QString()) const;

private:
    explicit PpdDocument(ppd_file_s *ppd) : m_ppd(ppd) {}
    // `name` is what an error calls the PPD.
    static std::unique_ptr<PpdDocument> openNamed(const QString &path, const QString &name,
                                                  PrintError *error);

    // One constraint of the PPD: choices by option. An empty choice stands for any but the off choice.
    using Constraint = QList<std::pair<QString, QString>>;
    const QList<Constraint> &constraints() const; // read once
    QList<Constraint> readConstraints() const;
    bool isMet(const QString &keyword, const QString &choice) const;
    std::optional<Conflict> activeConflict(const Constraint &constraint) const;
    QMap<QString, QString> choicesMarkedBy(const QString &name, const QString &value);
    bool isInstallableOption(const ppd_option_s *option) const;

    ppd_file_s *m_ppd = nullptr;
    mutable std::optional<QList<Constraint>> m_constraints;
};

} // namespace host
