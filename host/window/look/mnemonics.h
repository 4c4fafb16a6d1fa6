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

    // Gives keys that are still free to as many of the texts as possible, and returns the texts with their
    // keys. A text gets the key that it asks for, the first such text if there are several, unless another
    // text would get none. Otherwise a key is a letter or digit of the text, the first of a word if possible,
    // or a letter in brackets behind a text without Latin letters. A text that gets none is returned without
    // a key.
    QStringList assign(const QStringList &texts);

private:
    struct Wish;
    bool giveKey(QList<Wish> *wishes, qsizetype index, bool mayTakeWanted);

    // By key: the text that has it in the present call of assign(), or -1 if it was given in an earlier one.
    QHash<QChar, qsizetype> m_used;
};

} // namespace host
