// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/mnemonics.h"

#include <algorithm>

namespace host {

namespace {

const QString mark = QStringLiteral("&");
const QString endings = QStringLiteral(":：….");
constexpr qsizetype bracketLength = 4; // of "(&K)"

// Where the "(&K)" of a text begins, as East Asian texts have it; -1 where there is none. By hand, as all
// here: these texts are looked through before the window is first seen, and regular expressions cost half a
// megabyte at first use.
qsizetype placeOfBracket(const QString &text)
{
    qsizetype at = text.indexOf(QLatin1String("(&"));
    while (at >= 0 && (text.size() < at + bracketLength || text.at(at + 2) == QLatin1Char('&') ||
                       text.at(at + 3) != QLatin1Char(')')))
        at = text.indexOf(QLatin1String("(&"), at + 1);
    return at;
}

// Where what ends a label begins, such as its colon.
qsizetype placeOfEnding(const QString &text)
{
    qsizetype at = text.size();
    while (at > 0 && (text.at(at - 1).isSpace() || endings.contains(text.at(at - 1))))
        --at;
    return at;
}

bool isTypable(QChar c)
{
    return c.unicode() < 0x80 && c.isLetterOrNumber();
}

bool beginsWord(const QString &text, qsizetype at)
{
    return at == 0 || !text.at(at - 1).isLetterOrNumber();
}

} // namespace

QString Mnemonics::escaped(const QString &text)
{
    return QString(text).replace(mark, QStringLiteral("&&"));
}

qsizetype Mnemonics::placeOfKey(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&'))
            return i + 1;
        ++i;
    }
    return -1;
}

QChar Mnemonics::keyOf(const QString &text)
{
    const qsizetype place = placeOfKey(text);
    return place < 0 ? QChar() : text.at(place).toLower();
}

bool Mnemonics::take(QChar key)
{
    if (m_used.contains(key.toLower()))
        return false;
    m_used.insert(key.toLower());
    return true;
}

bool Mnemonics::claim(const QString &text)
{
    const QChar key = keyOf(text);
    return !key.isNull() && take(key);
}

QString Mnemonics::assign(const QString &text)
{
    QString bare = text;
    qsizetype bracket = placeOfBracket(text);
    if (bracket >= 0) {
        bare.remove(bracket, bracketLength);
        if (bracket > 0 && bare.at(bracket - 1).isSpace())
            bare.remove(--bracket, 1);
    } else if (const qsizetype place = placeOfKey(text); place > 0) {
        bare.remove(place - 1, 1);
    }
    // A figure in a text whose letters cannot be typed would be the only key of its kind.
    const bool hasLetters = bracket < 0 && std::any_of(bare.cbegin(), bare.cend(),
                                                       [](QChar c) { return isTypable(c) && c.isLetter(); });
    for (const bool atWords : {true, false}) {
        for (qsizetype i = 0; hasLetters && i < bare.size(); ++i) {
            if (isTypable(bare.at(i)) && beginsWord(bare, i) >= atWords && take(bare.at(i)))
                return bare.insert(i, mark);
        }
    }
    if (hasLetters)
        return bare;
    if (bracket < 0)
        bracket = placeOfEnding(bare);
    for (char key = 'A'; key <= 'Z'; ++key) {
        if (take(QLatin1Char(key)))
            return bare.insert(bracket, QStringLiteral("(&%1)").arg(QLatin1Char(key)));
    }
    return bare;
}

} // namespace host
