// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSet>
#include <QString>

namespace host {

// Access keys of what is on the screen at once, no key twice. Texts ask for a key by an "&" before it.
class Mnemonics
{
public:
    // A text that stays as it is shown, "&" and all, without asking for a key.
    static QString escaped(const QString &text);
    // The key a text asks for, in lower case; null where it asks for none.
    static QChar keyOf(const QString &text);
    // Where that key stands in the text; -1 where it asks for none.
    static qsizetype placeOfKey(const QString &text);

    // Takes the key that a text asks for; false when it is taken already, or it asks for none.
    bool claim(const QString &text);
    // The text with another key, which is taken: a letter or digit of its own, or one in brackets behind a
    // text that has none or has its key there. Without a key when none is free.
    QString assign(const QString &text);

private:
    bool take(QChar key);

    QSet<QChar> m_used;
};

} // namespace host
