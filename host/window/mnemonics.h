// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSet>
#include <QString>

namespace host {

// Gives labels whose texts come from a PPD an access key each, no letter twice. One object for one page.
class Mnemonics
{
public:
    // Letters that the page's own texts use already: those behind "&".
    void reserve(const QString &text);
    // The text with "&" before its first free letter or digit; without an access key when none is free. An
    // "&" of the text itself stays visible.
    QString assign(const QString &text);

private:
    QSet<QChar> m_used;
};

} // namespace host
