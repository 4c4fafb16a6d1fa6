// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/option_text.h"

#include "host/printing/cups_handles.h"

#include <algorithm>
#include <initializer_list>

namespace host {

QList<std::pair<QString, QString>> parseJobOptions(const QString &text)
{
    const CupsOptionList list(text.toUtf8().constData());
    QList<std::pair<QString, QString>> options;
    for (int i = 0; i < list.count(); ++i)
        options.append(
            {QString::fromUtf8(list.options()[i].name), QString::fromUtf8(list.options()[i].value)});
    return options;
}

std::optional<bool> switchValue(const QString &text)
{
    const auto isOneOf = [&](std::initializer_list<const char *> words) {
        return std::any_of(words.begin(), words.end(), [&](const char *word) {
            return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
        });
    };
    if (isOneOf({"true", "yes", "on", "enabled"}))
        return true;
    if (isOneOf({"false", "no", "off", "disabled", "none"}))
        return false;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? std::optional(number != 0) : std::nullopt;
}

} // namespace host
