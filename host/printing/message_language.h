// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QStringList>

namespace host {

// The languages of the dialog, preferred first, as "de-DE"; from the environment, LANGUAGE included.
QStringList dialogLanguages();

// For the length of a scope libcups speaks the dialog's language. It asks the C locale, which knows nothing
// of LANGUAGE and falls back to English on machines that have not generated the user's locale. Main thread
// only.
class MessageLanguage
{
public:
    MessageLanguage();
    ~MessageLanguage();
    MessageLanguage(const MessageLanguage &) = delete;
    MessageLanguage &operator=(const MessageLanguage &) = delete;

private:
    QByteArray m_locale;
    QByteArray m_environment;
    bool m_hadEnvironment = false;
};

} // namespace host
