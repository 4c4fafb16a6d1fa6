// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_password.h"

#include <QCoreApplication>
#include <QList>

#include <cups/ppd.h>

#include <algorithm>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace host {

namespace {

struct PasswordText
{
    Q_DECLARE_TR_FUNCTIONS(PasswordText)
};

constexpr char32_t lastAscii = 0x7f;

// What a symbol of the format allows.
struct CharacterSet
{
    char symbol;
    bool (*contains)(char32_t);
    bool isAscii; // allows only ASCII characters
    const char *text;
};

bool isDigit(char32_t c)
{
    return QChar::isDigit(c);
}
bool isLetter(char32_t c)
{
    return QChar::isLetter(c);
}
bool isEither(char32_t c)
{
    return QChar::isDigit(c) || QChar::isLetter(c);
}
bool isPrintable(char32_t c)
{
    return QChar::isPrint(c);
}

constexpr CharacterSet sets[] = {
    {'1', isDigit, true, QT_TRANSLATE_NOOP("PasswordText", "a digit from 0 to 9")},
    {'A', isLetter, true, QT_TRANSLATE_NOOP("PasswordText", "a letter from A to Z")},
    {'C', isEither, true, QT_TRANSLATE_NOOP("PasswordText", "a letter from A to Z or a digit from 0 to 9")},
    {'.', isPrintable, true, QT_TRANSLATE_NOOP("PasswordText", "a printable ASCII character")},
    {'N', isDigit, false, QT_TRANSLATE_NOOP("PasswordText", "a digit")},
    {'U', isLetter, false, QT_TRANSLATE_NOOP("PasswordText", "a letter")},
    {'*', isPrintable, false, QT_TRANSLATE_NOOP("PasswordText", "a printable character")}};

} // namespace

QString passwordProblem(ppd_file_s *ppd, const QString &password)
{
    const ppd_attr_t *format = ppd ? ppdFindAttr(ppd, "cupsJobPassword", nullptr) : nullptr;
    const QByteArray symbols = format && format->value ? QByteArray(format->value) : QByteArray();
    const QList<uint> characters = password.toUcs4();
    for (qsizetype i = 0; i < std::min(symbols.size(), characters.size()); ++i) {
        const char32_t c = characters.at(i);
        const auto *const set = std::find_if(std::begin(sets), std::end(sets), [&](const CharacterSet &each) {
            return each.symbol == symbols.at(i);
        });
        if (set == std::end(sets) || (set->contains(c) && (!set->isAscii || c <= lastAscii)))
            continue;
        return PasswordText::tr("Character %1 of the password has to be %2.")
            .arg(i + 1)
            .arg(PasswordText::tr(set->text));
    }
    return {};
}

} // namespace host
