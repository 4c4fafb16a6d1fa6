// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/secret_settings.h"

#include "host/extensions/protection.h"
#include "host/printing/ppd_document.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace host {

namespace {

constexpr qsizetype fewestDigits = 8; // choices; some printers omit 0 or 9

bool meansNothing(const QString &choice)
{
    static const QStringList words = {QStringLiteral("none"),   QStringLiteral("off"),
                                      QStringLiteral("false"),  QStringLiteral("no"),
                                      QStringLiteral("notset"), QString()};
    return words.contains(choice.toLower());
}

// Whether each choice, apart from those for "no digit", is a single digit, possibly after a common prefix.
bool hasDigits(const PpdOption &option)
{
    qsizetype digits = 0;
    QString prefix;
    for (const PpdOption::Choice &choice : option.choices) {
        const QString &keyword = choice.keyword;
        if (meansNothing(keyword))
            continue;
        if (!keyword.back().isLetterOrNumber() || (digits > 0 && keyword.chopped(1) != prefix))
            return false;
        prefix = keyword.chopped(1);
        if (!prefix.isEmpty() && (prefix.back().isDigit() || !keyword.back().isDigit()))
            return false;
        ++digits;
    }
    return digits >= fewestDigits;
}

// The common part of names like "JobPin3" or "ThirdPinDigit".
QString stemOf(const QString &keyword)
{
    static const QRegularExpression number(
        QStringLiteral("[0-9]+|first|second|third|fourth|fifth|sixth|seventh|eighth|ninth|tenth|"
                       "one|two|three|four|five|six|seven|eight|nine|ten"));
    QString stem = keyword.toLower();
    return stem.replace(number, QStringLiteral("#"));
}

// The words of "JobPinDigit3" or "job-password", in lower case.
QStringList wordsOf(const QString &name)
{
    static const QRegularExpression word(QStringLiteral("[A-Z]?[a-z]+|[A-Z]+(?![a-z])"));
    QStringList words;
    for (auto it = word.globalMatch(name); it.hasNext();)
        words.append(it.next().captured().toLower());
    return words;
}

bool hasAny(const QStringList &words, const QStringList &others)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return others.contains(word); });
}

bool isNamedForCode(const QString &name)
{
    static const QStringList words = {QStringLiteral("password"), QStringLiteral("passcode"),
                                      QStringLiteral("passwd"),   QStringLiteral("pin"),
                                      QStringLiteral("digit"),    QStringLiteral("secret")};
    return hasAny(wordsOf(name), words);
}

// Names of the print system for account and user numbers.
bool isAccount(const QString &name)
{
    return name == QLatin1String("job-account-id") || name == QLatin1String("job-accounting-user-id");
}

} // namespace

SecretSettings::SecretSettings(const PpdDocument *ppd, const Protection &protection)
{
    for (const Protection::Secret &secret : protection.secrets) {
        m_names.insert(secret.key.toLower());
        for (const QString &option : secret.options)
            m_names.insert(option.toLower());
    }
    QMap<QString, QStringList> groups; // of digits, by stem
    for (const QString &keyword : ppd ? ppd->optionKeywords() : QStringList()) {
        const auto option = ppd->option(keyword);
        m_options.insert(keyword.toLower());
        if (option->custom && option->custom->isSecret())
            m_names.insert(keyword.toLower());
        if (!hasDigits(*option))
            continue;
        if (isNamedForCode(keyword))
            m_names.insert(keyword.toLower());
        groups[stemOf(keyword)].append(keyword.toLower());
    }
    for (const QStringList &group : std::as_const(groups)) {
        if (group.size() > 1)
            m_names += QSet<QString>(group.begin(), group.end());
    }
}

bool SecretSettings::contains(const QString &name) const
{
    const QString known = name.toLower();
    return m_names.contains(known) ||
           (!m_options.contains(known) && (isNamedForCode(name) || isAccount(known)));
}

} // namespace host
