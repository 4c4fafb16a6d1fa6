// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/option_text.h"

#include "host/printing/cups_handles.h"

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

} // namespace host
