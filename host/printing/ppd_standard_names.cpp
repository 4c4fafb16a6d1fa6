// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/cups_handles.h"
#include "host/printing/ppd_document.h"
#include "host/printing/standard_names.h"

#include "constraints/ppd_evaluation.h"

#include <cups/ppd.h>
#include <cups/pwg.h>

#include <algorithm>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

// The part of PpdDocument that converts standard job options to choices of the PPD.
namespace host {

namespace {

const QString mediaName = QStringLiteral("media");
const QString mediaCollectionName = QStringLiteral("media-col");
const QString regionName = QStringLiteral("pageregion");
const QString pageSize = QStringLiteral("PageSize");
const QString colorModeName = QStringLiteral("print-color-mode");

bool isSame(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// The name of a size with these dimensions, such as "{x-dimension=21000 y-dimension=29700}"; null if there is
// none.
QString sizeName(const char *collection)
{
    const CupsOptionList measures(collection);
    const char *width = cupsGetOption("x-dimension", measures.count(), measures.options());
    const char *length = cupsGetOption("y-dimension", measures.count(), measures.options());
    const pwg_media_t *media =
        width && length ? pwgMediaForSize(QByteArray(width).toInt(), QByteArray(length).toInt()) : nullptr;
    return media ? QString::fromUtf8(media->pwg) : QString();
}

// The members of a "media-col", each as a value of "media". Empty if "media" cannot represent one of them.
QStringList mediaValues(const QString &collection)
{
    const CupsOptionList members(collection.toUtf8().constData());
    QStringList values;
    for (int i = 0; i < members.count(); ++i) {
        const QByteArray name(members.options()[i].name);
        if (name == "media-size")
            values.append(sizeName(members.options()[i].value));
        else if (name == "media-size-name" || name == "media-source" || name == "media-type")
            values.append(QString::fromUtf8(members.options()[i].value));
        else
            return {};
    }
    return values;
}

} // namespace

QStringList PpdDocument::optionsOfStandardName(const QString &name)
{
    static const QString media = QStringLiteral("PageSize InputSlot MediaType");
    static const QString resolution = QStringLiteral("Resolution SetResolution JCLResolution");
    static const QMap<QString, QString> keywords = {
        {mediaName, media},
        {mediaCollectionName, media},
        {regionName, pageSize},
        {QStringLiteral("sides"),
         QStringLiteral("Duplex JCLDuplex EFDuplex EFDuplexing ARDuplex KD03Duplex")},
        {QStringLiteral("output-bin"), QStringLiteral("OutputBin")},
        {colorModeName, QStringLiteral("ColorModel")},
        {QStringLiteral("printer-resolution"), resolution},
        {QStringLiteral("resolution"), resolution}};
    return keywords.value(name.toLower()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool PpdDocument::takesOption(const QString &name) const
{
    const QStringList standsFor = optionsOfStandardName(name);
    return hasOption(name) || (isSame(name, colorModeName) && !monochromeChoice().isEmpty()) ||
           std::any_of(standsFor.begin(), standsFor.end(),
                       [this](const QString &keyword) { return hasOption(keyword); });
}

QStringList PpdDocument::markOptions(const QMap<QString, QString> &options)
{
    CupsOptionList list;
    QStringList problems;
    for (auto it = options.begin(); it != options.end(); ++it) {
        if (!takesOption(it.key()))
            continue;
        const bool isRegion = isSame(it.key(), regionName);
        const bool isColorMode = isSame(it.key(), colorModeName);
        if (isSame(it.key(), mediaCollectionName) || isColorMode) {
            const QMap<QString, QString> choices = standardChoices(it.key(), it.value());
            for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
                if (!isColorMode || !options.contains(choice.key()))
                    list.add(choice.key().toUtf8().constData(), choice.value().toUtf8().constData());
            }
            continue;
        }
        const auto subject = isCustomChoice(it.value())
                                 ? option(isRegion || isSame(it.key(), mediaName) ? pageSize : it.key())
                                 : std::nullopt;
        QString problem;
        if (!subject || !subject->custom)
            list.add((isRegion ? pageSize : it.key()).toUtf8().constData(), it.value().toUtf8().constData());
        else if (subject->custom->read(it.value(), subject->keyword, &problem))
            mark(subject->keyword, it.value());
        else
            problems.append(problem);
    }
    const constraints::PpdEvaluation unchecked(m_ppd);
    cupsMarkOptions(m_ppd, list.count(), list.options());
    return problems;
}

QMap<QString, QString> PpdDocument::standardChoices(const QString &name, const QString &value,
                                                    bool alsoKeywords)
{
    QStringList parts(value);
    if (isSame(name, mediaName))
        parts = value.split(QLatin1Char(','));
    else if (isSame(name, mediaCollectionName))
        parts = mediaValues(value);
    QMap<QString, QString> result;
    for (const QString &part : std::as_const(parts)) {
        QMap<QString, QString> choices = choicesMarkedBy(name, part.trimmed());
        if (choices.isEmpty() && isSame(name, colorModeName) && part == QLatin1String("monochrome"))
            choices = monochromeChoice();
        if (choices.isEmpty() && alsoKeywords)
            choices = choicesNamed(part.trimmed(), optionsOfStandardName(name));
        if (choices.isEmpty())
            return {};
        result.insert(choices);
    }
    return result;
}

// libcups supports this choice only for "ColorModel".
QMap<QString, QString> PpdDocument::monochromeChoice() const
{
    for (const QString &keyword : colorKeywords()) {
        const auto subject = option(keyword);
        for (const PpdOption::Choice &choice : subject ? subject->choices : QList<PpdOption::Choice>()) {
            if (isMonochromeChoice(choice.keyword))
                return {{subject->keyword, choice.keyword}};
        }
    }
    return {};
}

QMap<QString, QString> PpdDocument::choicesNamed(const QString &name, const QStringList &options) const
{
    for (const QString &keyword : options) {
        const auto subject = option(keyword);
        if (subject && subject->hasChoice(subject->spelled(name)))
            return {{keyword, subject->spelled(name)}};
    }
    return {};
}

// libcups does not report which options it marks for a name. Therefore each option that it may mark is first
// set to another choice; options that then change were marked.
QMap<QString, QString> PpdDocument::choicesMarkedBy(const QString &name, const QString &value)
{
    const QStringList options = optionsOfStandardName(name);
    const QString known = isSame(name, mediaCollectionName) || isSame(name, regionName) ? mediaName : name;
    QMap<QString, QString> before, decoys, result;
    // libcups may mark further options: with the color mode, those of the PPD's preset for it.
    QMap<QString, QString> all;
    for (const QString &keyword : optionKeywords())
        all.insert(keyword, markedChoice(keyword));
    const auto restore = [&] {
        for (auto it = all.begin(); it != all.end(); ++it) {
            if (!it.value().isEmpty() && markedChoice(it.key()) != it.value())
                mark(it.key(), it.value());
        }
    };
    for (const QString &keyword : options) {
        const auto subject = option(keyword);
        if (!subject || subject->markedChoice.isEmpty())
            continue;
        before.insert(keyword, subject->markedChoice);
        for (const PpdOption::Choice &choice : subject->choices) {
            if (choice.keyword != subject->markedChoice && mark(keyword, choice.keyword)) {
                decoys.insert(keyword, choice.keyword);
                break;
            }
        }
    }
    // Not in libcups's table of strings: its lock may be held by a worker thread that lists the printers.
    QByteArray knownName = known.toUtf8(), givenValue = value.toUtf8();
    cups_option_t given{knownName.data(), givenValue.data()};
    const auto markedByValue = [&] {
        const constraints::PpdEvaluation unchecked(m_ppd);
        cupsMarkOptions(m_ppd, 1, &given);
        for (auto it = before.begin(); it != before.end(); ++it) {
            const QString now = markedChoice(it.key());
            const bool isSound = !isCustomChoice(now) || option(it.key())->hasChoice(now);
            if (isSound && now != decoys.value(it.key(), it.value()))
                result.insert(it.key(), now);
        }
    };
    markedByValue();
    // The new choice may be the temporary choice itself; compared with the original marks it is a change.
    restore();
    decoys.clear();
    markedByValue();
    restore();
    return result;
}

} // namespace host
