// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/mnemonics.h"

namespace host {

void Mnemonics::reserve(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&'))
            m_used.insert(text.at(++i).toLower());
    }
}

QString Mnemonics::assign(const QString &text)
{
    QString result;
    bool assigned = false;
    for (const QChar c : text) {
        const bool typable = c.unicode() < 0x80 && c.isLetterOrNumber();
        if (!assigned && typable && !m_used.contains(c.toLower())) {
            m_used.insert(c.toLower());
            result += QLatin1Char('&');
            assigned = true;
        }
        result += c == QLatin1Char('&') ? QStringLiteral("&&") : QString(c);
    }
    return result;
}

} // namespace host
