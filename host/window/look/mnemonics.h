// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace host {

// The access keys of everything that is on the screen at once; no key twice. A text asks for a key with an
// "&" before it.
class Mnemonics
{
public:
    // The text with every "&" escaped, so that it asks for no key.
    static QString escaped(const QString &text);
    // The key that a text asks for, in lower case; null where it asks for none.
    static QChar keyOf(const QString &text);
    // The index of that key in the text; -1 where it asks for none.
    static qsizetype placeOfKey(const QString &text);

    // Takes the key that a text asks for; false when it is taken already, or it asks for none.
    bool claim(const QString &text);
    // Gives keys that are still free to as many of the texts as possible, instead of those they ask for, and
    // returns the texts with their keys. A key is a letter or digit of the text, the first of a word if
    // possible, or a letter in brackets behind a text without Latin letters. A text that gets none is
    // returned without a key.
    QStringList assign(const QStringList &texts);

private:
    struct Wish;
    bool take(QChar key);
    bool giveKey(QList<Wish> *wishes, qsizetype index);

    QHash<QChar, qsizetype>
        m_used; // the wish that has the key in the present assign(); -1 for a key that stays
};

} // namespace host
