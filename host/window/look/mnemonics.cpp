// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/mnemonics.h"

#include <algorithm>

namespace host {

namespace {

const QString mark = QStringLiteral("&");
const QString endings = QStringLiteral(":：….");
constexpr qsizetype bracketLength = 4; // length of "(&K)"
constexpr qsizetype taken = -1;        // the owner of a fixed key

// The position of "(&K)" in a text, as in East Asian languages; -1 if there is none. This file uses no
// regular expressions: it runs before the window is first shown, and their first use allocates half a
// megabyte.
qsizetype placeOfBracket(const QString &text)
{
    qsizetype at = text.indexOf(QLatin1String("(&"));
    while (at >= 0 && (text.size() < at + bracketLength || text.at(at + 2) == QLatin1Char('&') ||
                       text.at(at + 3) != QLatin1Char(')')))
        at = text.indexOf(QLatin1String("(&"), at + 1);
    return at;
}

// The position of the end of a label, such as its colon.
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

// A text that needs a key.
struct Mnemonics::Wish
{
    QString text;            // the original text
    QChar wanted;            // the requested key; null if there is none
    QString bare;            // without the requested key
    qsizetype bracket = -1;  // position of a key in parentheses; -1 for a text with Latin letters
    QList<qsizetype> places; // positions of possible keys, the best first
    QList<QChar> keys;       // possible keys, the best first
    QChar key;               // null until it has one
    bool isVisited = false;  // by the current search
    bool isSettled = false;  // whether a search for a key has failed; later searches would fail as well

    explicit Wish(const QString &given);
    void findPlaces();
    QString shown() const;
};

Mnemonics::Wish::Wish(const QString &given)
    : text(given), wanted(keyOf(given)), bare(given), bracket(placeOfBracket(given))
{
    if (bracket >= 0) {
        bare.remove(bracket, bracketLength);
        if (bracket > 0 && bare.at(bracket - 1).isSpace())
            bare.remove(--bracket, 1);
    } else if (const qsizetype place = placeOfKey(text); place > 0) {
        bare.remove(place - 1, 1);
    }
    findPlaces();
    for (const qsizetype place : std::as_const(places))
        keys.append(bare.at(place).toLower());
    for (char letter = 'a'; bracket >= 0 && letter <= 'z'; ++letter)
        keys.append(QLatin1Char(letter));
}

void Mnemonics::Wish::findPlaces()
{
    // In a text whose letters cannot be typed, a digit would be the only possible key.
    const bool hasLetters = bracket < 0 && std::any_of(bare.cbegin(), bare.cend(),
                                                       [](QChar c) { return isTypable(c) && c.isLetter(); });
    if (!hasLetters) {
        bracket = bracket < 0 ? placeOfEnding(bare) : bracket;
        return;
    }
    for (const bool atWords : {true, false}) {
        for (qsizetype i = 0; i < bare.size(); ++i) {
            if (isTypable(bare.at(i)) && beginsWord(bare, i) == atWords)
                places.append(i);
        }
    }
}

QString Mnemonics::Wish::shown() const
{
    if (key.isNull() || key == wanted)
        return key.isNull() ? bare : text;
    if (bracket >= 0)
        return QString(bare).insert(bracket, QStringLiteral("(&%1)").arg(key.toUpper()));
    const auto place = std::find_if(places.begin(), places.end(),
                                    [this](qsizetype i) { return bare.at(i).toLower() == key; });
    return QString(bare).insert(*place, mark);
}

// Gives a text a free key. If there is none, gives it the key of another text that can get a different one,
// and so on (an augmenting path). False if that is impossible.
bool Mnemonics::giveKey(QList<Wish> *wishes, qsizetype index, bool mayTakeWanted)
{
    Wish &wish = (*wishes)[index];
    wish.isVisited = true;
    const QList<QChar> keys = wish.keys;
    auto key = std::find_if(keys.begin(), keys.end(), [this](QChar k) { return !m_used.contains(k); });
    if (key == keys.end()) {
        key = std::find_if(keys.begin(), keys.end(), [this, wishes, mayTakeWanted](QChar k) {
            const qsizetype owner = m_used.value(k);
            return owner != taken && !wishes->at(owner).isVisited && !wishes->at(owner).isSettled &&
                   (mayTakeWanted || wishes->at(owner).wanted != k) && giveKey(wishes, owner, mayTakeWanted);
        });
    }
    if (key == keys.end())
        return false;
    wish.key = *key;
    m_used.insert(*key, index);
    return true;
}

QStringList Mnemonics::assign(const QStringList &texts)
{
    QList<Wish> wishes;
    for (const QString &text : texts)
        wishes.append(Wish(text));
    for (qsizetype i = 0; i < wishes.size(); ++i) {
        Wish &wish = wishes[i];
        if (wish.wanted.isNull() || m_used.contains(wish.wanted))
            continue;
        wish.key = wish.wanted;
        m_used.insert(wish.key, i);
    }
    for (qsizetype i = 0; i < wishes.size(); ++i) {
        for (const bool mayTakeWanted : {false, true}) {
            for (Wish &wish : wishes)
                wish.isVisited = false;
            if (!wishes.at(i).key.isNull() || giveKey(&wishes, i, mayTakeWanted))
                break;
        }
        for (Wish &wish : wishes)
            wish.isSettled |= wishes.at(i).key.isNull() && wish.isVisited;
    }
    for (qsizetype &owner : m_used)
        owner = taken;
    QStringList shown;
    for (const Wish &wish : std::as_const(wishes))
        shown.append(wish.shown());
    return shown;
}

} // namespace host
