// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"
#include "host/printing/print_error.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>

struct ppd_choice_s;
struct ppd_file_s;

namespace host {

class PpdConstraints;

// A paper size and the printer's unprintable margins; all in millimetres.
struct PaperSize
{
    double width = 0, height = 0;
    double left = 0, right = 0, top = 0, bottom = 0;
};

// A printer's PPD, opened, localised and marked with its defaults. Owns the PPD record that panels work on,
// and outlives the panels. Texts are in the user's language if the PPD has them. Custom choices include their
// values, as in "Custom.300x400" (ppd_custom.h); this applies wherever choices of a PPD are passed.
class PpdDocument
{
public:
    // Opens a PPD file. Null with an error that names the file, and the line if the PPD is broken. A file of
    // more than `mostBytes`, compressed or not, is refused without reading it.
    static constexpr qint64 mostBytes = 32 * 1024 * 1024;
    static std::unique_ptr<PpdDocument> open(const QString &path, PrintError *error);
    // Opens the PPD of a queue from its contents.
    static std::unique_ptr<PpdDocument> ofQueue(const QString &queue, const QByteArray &content,
                                                PrintError *error);
    ~PpdDocument();
    PpdDocument(const PpdDocument &) = delete;
    PpdDocument &operator=(const PpdDocument &) = delete;

    ppd_file_s *record() const { return m_ppd; }
    QString modelName() const;

    const QStringList &optionKeywords() const { return m_keywords; }   // in PPD order
    const QStringList &settableKeywords() const { return m_settable; } // those without installable options
    bool hasOption(const QString &keyword) const;
    std::optional<PpdOption> option(const QString &keyword) const;
    QString markedChoice(const QString &keyword) const;
    QString defaultChoice(const QString &keyword) const;
    // The dimensions of a choice of PageSize; null if the PPD does not define them.
    std::optional<PaperSize> paperSize(const QString &choice) const;
    bool isInstallable(const QString &keyword) const; // whether it is a unit that may be installed
    // An option and choice with their texts; the keywords if the PPD has no such option or choice.
    OptionChoice described(const QString &keyword, const QString &choice) const;

    // Marks a choice. False, without a change, if the PPD has no such choice, or its values are not valid.
    bool mark(const QString &keyword, const QString &choice);
    // Marks the choices of options from a destination or the command line, including standard names such as
    // "media". Unknown options are ignored. Returns localised problems; invalid values are not marked.
    QStringList markOptions(const QMap<QString, QString> &options);
    bool takesOption(const QString &name) const; // whether markOptions() converts it to marks
    // The options that a standard name represents, ignoring letter case; empty for other names. Quality is
    // left to the print system.
    static QStringList optionsOfStandardName(const QString &name);
    // The choices, by option, for a standard name such as "media" with this value. Empty if the PPD has no
    // such choice, also for one of several values in a list. The marks are not changed. Without
    // `alsoKeywords`, only values that libcups itself accepts are considered: it accepts trays and types of
    // paper only under their standard names.
    QMap<QString, QString> standardChoices(const QString &name, const QString &value,
                                           bool alsoKeywords = true);
    // Marked choices other than the defaults, in PPD order, without installable options.
    QList<OptionChoice> changedChoices() const;

    void readConstraints() const { constraints(); } // now, so that the first query is not delayed
    // Frees the record's constraints, which libcups has copied by then. Call when no bundle reads the record.
    void releaseConstraintRecords();
    // The conflicts among the marks, as determined by libcups's rules.
    QList<Conflict> conflicts() const;
    // The choices of an option that the PPD forbids together with the marks of other options, each with one
    // of the conflicting choices.
    QMap<QString, OptionChoice> forbiddenChoices(const QString &keyword) const;
    // For each option a number that changes whenever the result of forbiddenChoices() may have changed.
    QList<quint32> forbiddenRevisions(const QStringList &keywords) const;
    // Null if there is no conflict or libcups finds no resolution. The choice of `keep` is kept if possible.
    std::optional<Resolution> resolution(const QString &keep = QString()) const;

private:
    explicit PpdDocument(ppd_file_s *ppd);
    static std::unique_ptr<PpdDocument> adopt(ppd_file_s *ppd, const QString &name, PrintError *error);

    PpdConstraints &constraints() const; // read on first use
    QMap<QString, QString> choicesMarkedBy(const QString &name, const QString &value);
    QMap<QString, QString> monochromeChoice() const;
    QMap<QString, QString> choicesNamed(const QString &name, const QStringList &options) const;
    void replaceBadCustomDefaults();

    ppd_file_s *m_ppd = nullptr;
    QStringList m_keywords, m_settable, m_installable;
    mutable QHash<QString, std::pair<const ppd_choice_s *, QString>> m_known; // marks read last, by option
    mutable std::unique_ptr<PpdConstraints> m_constraints;
    // A custom choice as it was given, in the user's unit, and as stored in the record.
    struct Written
    {
        QString choice;
        QString inRecord;
    };
    QMap<QString, Written> m_written; // by option
};

} // namespace host
