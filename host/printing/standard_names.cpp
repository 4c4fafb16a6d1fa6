// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/standard_names.h"

#include "host/printing/ppd_document.h"

namespace host {

QString standardValueOfMarks(PpdDocument *ppd, const QString &name, const QStringList &options)
{
    QStringList choices;
    for (const QString &keyword : PpdDocument::optionsOfStandardName(name)) {
        const bool isMeant = options.isEmpty() || options.contains(keyword);
        if (isMeant && !ppd->markedChoice(keyword).isEmpty())
            choices.append(ppd->markedChoice(keyword));
    }
    const bool isColorMode = name == QLatin1String("print-color-mode");
    if (choices.isEmpty() && !isColorMode)
        return {};
    QStringList candidates{choices.join(QLatin1Char(',')), choices.value(0)};
    if (name == QLatin1String("sides"))
        candidates = {QStringLiteral("one-sided"), QStringLiteral("two-sided-long-edge"),
                      QStringLiteral("two-sided-short-edge")};
    if (isColorMode)
        candidates = {QStringLiteral("monochrome")};
    for (const QString &candidate : candidates) {
        const QMap<QString, QString> meant = ppd->standardChoices(name, candidate, false);
        bool holds = !meant.isEmpty();
        for (auto it = meant.begin(); it != meant.end(); ++it)
            holds &= it.value() == ppd->markedChoice(it.key());
        if (holds)
            return candidate;
    }
    // libcups marks nothing for the other mode.
    const bool isColor = isColorMode && !ppd->standardChoices(name, candidates.first()).isEmpty();
    return isColor ? QStringLiteral("color") : QString();
}

const QStringList &colorKeywords()
{
    static const QStringList keywords = {QStringLiteral("ColorModel"), QStringLiteral("ColorMode"),
                                         QStringLiteral("ColorType")};
    return keywords;
}

bool isMonochromeChoice(const QString &choice)
{
    static const QStringList choices = {QStringLiteral("gray"),       QStringLiteral("grey"),
                                        QStringLiteral("grayscale"),  QStringLiteral("greyscale"),
                                        QStringLiteral("mono"),       QStringLiteral("monochrome"),
                                        QStringLiteral("kgray"),      QStringLiteral("black"),
                                        QStringLiteral("blackwhite"), QStringLiteral("fastgray")};
    return choices.contains(choice.toLower());
}

} // namespace host
