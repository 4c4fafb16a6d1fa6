// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"
#include "host/printing/print_error.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

struct ppd_file_s;
struct ppd_option_s;

namespace host {

class PpdConstraints;

// A sheet of paper, and the margins that the printer leaves white; all in millimetres.
struct PaperSize
{
    double width = 0, height = 0;
    double left = 0, right = 0, top = 0, bottom = 0;
};

// A printer's PPD, opened, localised and marked with its defaults. Owns the record that panels work on;
// outlives them. Texts are in the user's language where the PPD has it. Choices that take values are written
// with them, as in "Custom.300x400" (ppd_custom.h), here and wherever choices of a PPD go.
class PpdDocument
{
public:
    // Null with an error that names the file, and the line where the PPD is broken. A file beyond
    // `mostBytes`, compressed or not, is refused unread.
    static constexpr qint64 mostBytes = 32 * 1024 * 1024;
    static std::unique_ptr<PpdDocument> open(const QString &path, PrintError *error);
    // The PPD that the print server keeps for a queue.
    static std::unique_ptr<PpdDocument> ofQueue(const QString &queue, const QByteArray &content,
                                                PrintError *error);
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
    // The measures of a choice of PageSize; null when the PPD does not tell them.
    std::optional<PaperSize> paperSize(const QString &choice) const;
    // Whether it stands for a unit that is or is not installed.
    bool isInstallable(const QString &keyword) const;
    // With the words for it; the keywords themselves where the PPD has no such option or choice.
    OptionChoice described(const QString &keyword, const QString &choice) const;

    // False, and nothing changed, when the PPD has no such option or choice, or does not take its values.
    bool mark(const QString &keyword, const QString &choice);
    // Marks what a destination's or a command's options say, standard names such as "media" and "sides"
    // included; options that the PPD knows nothing of are passed over. Gives what is wrong, in a user's
    // words, with values that an option does not take and that are left out.
    QStringList markOptions(const QMap<QString, QString> &options);
    // Whether markOptions() turns an option of this name into marks.
    bool takesOption(const QString &name) const;
    // The options that a standard name stands for, in any case; empty for other names. Quality is left to the
    // print system.
    static QStringList optionsOfStandardName(const QString &name);
    // The choices that a standard name such as "media" stands for with this value, by option. Empty when the
    // PPD has none for it, or for one of several values in a list. What is marked stays as it is. Without
    // `alsoKeywords` only values count that libcups takes itself: it has trays and types of paper under their
    // standard names alone.
    QMap<QString, QString> standardChoices(const QString &name, const QString &value,
                                           bool alsoKeywords = true);
    // Marked choices that are not the default, in PPD order, without installable options.
    QList<OptionChoice> changedChoices() const;

    // Reads the constraints now, so that the first question about them does not wait for it.
    void readConstraints() const { constraints(); }
    // The conflicts that libcups sees among the marks.
    QList<Conflict> conflicts() const;
    // The choices of an option that the PPD forbids together with what is marked for other options, each with
    // one of those that stand in its way.
    QMap<QString, OptionChoice> forbiddenChoices(const QString &keyword) const;
    // Another number whenever that answer may have changed for the option.
    quint32 forbiddenRevision(const QString &keyword) const;
    // Null when there is no conflict or libcups finds no way out. `keep` is left as it is where that is
    // possible.
    std::optional<Resolution> resolution(const QString &keep = QString()) const;

private:
    explicit PpdDocument(ppd_file_s *ppd);
    // `name` is what an error calls the PPD.
    static std::unique_ptr<PpdDocument> adopt(ppd_file_s *ppd, const QString &name, PrintError *error);

    PpdConstraints &constraints() const; // read when first asked for
    QMap<QString, QString> choicesMarkedBy(const QString &name, const QString &value);
    QMap<QString, QString> choicesNamed(const QString &name, const QStringList &options) const;
    bool isInstallableOption(const ppd_option_s *option) const;
    void replaceBadCustomDefaults();

    ppd_file_s *m_ppd = nullptr;
    mutable std::unique_ptr<PpdConstraints> m_constraints;
    // A custom choice as it was written, in the user's unit, and as the record holds it.
    struct Written
    {
        QString choice;
        QString inRecord;
    };
    QMap<QString, Written> m_written; // by option
};

} // namespace host
