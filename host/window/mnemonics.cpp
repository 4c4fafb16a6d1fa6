// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/mnemonics.h"

#include <QRegularExpression>

namespace host {

namespace {

const QString mark = QStringLiteral("&");

// Where the key of a text stands; -1 where there is none.
qsizetype placeOfKey(const QString &text)
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
    static const QRegularExpression bracketed(QStringLiteral("\\s?\\(&[^&]\\)"));
    static const QRegularExpression ending(QStringLiteral("[\\s:：….]*$"));
    QString bare = text;
    qsizetype bracket = -1;
    if (const auto match = bracketed.match(text); match.hasMatch()) {
        bracket = match.capturedStart();
        bare.remove(bracket, match.capturedLength());
    } else if (const qsizetype place = placeOfKey(text); place > 0) {
        bare.remove(place - 1, 1);
    }
    bool hasLetters = false;
    for (const bool atWords : {true, false}) {
        for (qsizetype i = 0; bracket < 0 && i < bare.size(); ++i) {
            hasLetters |= isTypable(bare.at(i));
            if (isTypable(bare.at(i)) && beginsWord(bare, i) >= atWords && take(bare.at(i)))
                return bare.insert(i, mark);
        }
    }
    if (hasLetters)
        return bare;
    if (bracket < 0)
        bracket = ending.match(bare).capturedStart();
    for (char key = 'A'; key <= 'Z'; ++key) {
        if (take(QLatin1Char(key)))
            return bare.insert(bracket, QStringLiteral("(&%1)").arg(QLatin1Char(key)));
    }
    return bare;
}

} // namespace host
