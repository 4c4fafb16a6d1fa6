// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/message_language.h"

#include <QLocale>

#include <clocale>

namespace host {

namespace {

const char *const variable = "LC_MESSAGES";

}

QStringList dialogLanguages()
{
    return QLocale::system().uiLanguages();
}

MessageLanguage::MessageLanguage()
    : m_locale(setlocale(LC_MESSAGES, nullptr)), m_environment(qgetenv(variable)),
      m_hadEnvironment(qEnvironmentVariableIsSet(variable))
{
    // libcups looks at the environment only while the C locale is "C".
    setlocale(LC_MESSAGES, "C");
    const QString language = dialogLanguages().value(0, QStringLiteral("en"));
    qputenv(variable, language.toLatin1().replace('-', '_') + ".UTF-8");
}

MessageLanguage::~MessageLanguage()
{
    if (m_hadEnvironment)
        qputenv(variable, m_environment);
    else
        qunsetenv(variable);
    setlocale(LC_MESSAGES, m_locale.constData());
}

} // namespace host
