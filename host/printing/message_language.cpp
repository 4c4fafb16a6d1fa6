// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/message_language.h"

#include <QByteArray>
#include <QLocale>

#include <clocale>

namespace host {

QStringList dialogLanguages()
{
    return QLocale::system().uiLanguages();
}

void speakDialogLanguage()
{
    const QByteArray language = dialogLanguages().value(0, QStringLiteral("en")).toLatin1().replace('-', '_');
    if (QByteArray(setlocale(LC_MESSAGES, nullptr)).startsWith(language))
        return;
    // libcups reads the environment only while the C locale is "C".
    setlocale(LC_MESSAGES, "C");
    qputenv("LC_MESSAGES", language + ".UTF-8");
}

} // namespace host
