// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/general_settings.h"

#include "host/printing/option_text.h"
#include "host/printing/page_ranges.h"
#include "host/printing/ppd_document.h"
#include "host/printing/standard_names.h"

#include <algorithm>

namespace host {

GeneralSettings GeneralSettings::from(const QMap<QString, QString> &options)
{
    GeneralSettings settings;
    settings.copies = std::clamp(options.value(QStringLiteral("copies")).toInt(), 1, maxCopies);
    settings.pages =
        normalizedPageRanges(options.value(QStringLiteral("page-ranges")), nullptr).value_or(QString());
    for (auto it = options.begin(); it != options.end(); ++it) {
        if (it.key().compare(QLatin1String("Collate"), Qt::CaseInsensitive) == 0)
            settings.collate = switchValue(it.value()).value_or(true);
    }
    const QString handling = options.value(QStringLiteral("multiple-document-handling"));
    if (!handling.isEmpty())
        settings.collate = !handling.contains(QLatin1String("uncollated"));
    settings.layout = PageLayoutSettings::from(options);
    return settings;
}

QList<JobOption> GeneralSettings::jobOptions() const
{
    using Kind = JobOption::Kind;
    QList<JobOption> options;
    options.append({QStringLiteral("copies"), QString::number(copies), Kind::Attribute});
    if (copies > 1) {
        options.append({QStringLiteral("multiple-document-handling"), handling(collate), Kind::Attribute});
        // Filters of older print systems read this option.
        options.append(
            {QStringLiteral("Collate"), collate ? QStringLiteral("True") : QStringLiteral("False")});
    }
    if (!pages.isEmpty())
        options.append({QStringLiteral("page-ranges"), pages, Kind::Attribute});
    return options;
}

void GeneralSettings::takePart(const GeneralSettings &other)
{
    part = other.part;
    offersCurrentPage = other.offersCurrentPage;
    offersSelection = other.offersSelection;
}

QString GeneralSettings::handling(bool collate)
{
    return collate ? QStringLiteral("separate-documents-collated-copies")
                   : QStringLiteral("separate-documents-uncollated-copies");
}

bool GeneralSettings::covers(const QString &name)
{
    return name == QLatin1String("copies") || name == QLatin1String("page-ranges") ||
           name == QLatin1String("multiple-document-handling") ||
           name.compare(QLatin1String("Collate"), Qt::CaseInsensitive) == 0;
}

QString colorOptionKeyword(const PpdDocument &ppd)
{
    for (const QString &name : colorKeywords()) {
        const auto option = ppd.option(name);
        if (option && option->choices.size() > 1)
            return option->keyword;
    }
    return {};
}

QStringList generalOptionKeywords(const PpdDocument &ppd)
{
    // Each list contains alternative keywords of one option; the first one that the PPD has is shown.
    const QList<QStringList> wanted = {{QStringLiteral("PageSize")},
                                       {QStringLiteral("MediaType")},
                                       {QStringLiteral("InputSlot")},
                                       PpdDocument::optionsOfStandardName(QStringLiteral("sides")),
                                       {colorOptionKeyword(ppd)}};
    QStringList keywords;
    for (const QStringList &names : wanted) {
        for (const QString &name : names) {
            if (ppd.hasOption(name)) {
                keywords.append(name);
                break;
            }
        }
    }
    return keywords;
}

} // namespace host
