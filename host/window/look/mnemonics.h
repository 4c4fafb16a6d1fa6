// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace host {

// Assigns unique access keys to the texts that are visible at the same time. A text requests a key with an
// "&".
class Mnemonics
{
public:
    // The text with every "&" escaped, so that it requests no key.
    static QString escaped(const QString &text);
    // The key requested by a text, in lower case; null if there is none.
    static QChar keyOf(const QString &text);
    // The index of that key in the text; -1 if there is none.
    static qsizetype placeOfKey(const QString &text);

    // Assigns free keys to as many of the texts as possible, and returns the texts with their keys. A text
    // gets the key that it requests, the first such text if there are several, unless another text would get
    // none. Otherwise the key is a letter or digit of the text, the first of a word if possible, or a letter
    // in parentheses after a text without Latin letters. A text that gets no key is returned without one.
    QStringList assign(const QStringList &texts);

private:
    struct Wish;
    bool giveKey(QList<Wish> *wishes, qsizetype index, bool mayTakeWanted);

    // By key: the text that has it in the current call of assign(), or -1 if it was assigned in an earlier
    // one.
    QHash<QChar, qsizetype> m_used;
};

} // namespace host
