// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/reasons.h"

#include <QCoreApplication>

#include <array>

namespace host {

namespace {

struct ReasonText
{
    Q_DECLARE_TR_FUNCTIONS(ReasonText)
};

struct Known
{
    const char *keyword; // without "-error", "-warning" or "-report"
    const char *text;
};

const std::array<Known, 20> knownReasons = {{
    {"media-needed", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is out of paper.")},
    {"media-empty", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is out of paper.")},
    {"media-low", QT_TRANSLATE_NOOP("host::ReasonText", "The paper is running low.")},
    {"media-jam", QT_TRANSLATE_NOOP("host::ReasonText", "Paper is jammed in the printer.")},
    {"toner-empty", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is out of toner.")},
    {"marker-supply-empty", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is out of toner.")},
    {"toner-low", QT_TRANSLATE_NOOP("host::ReasonText", "The toner is running low.")},
    {"marker-supply-low", QT_TRANSLATE_NOOP("host::ReasonText", "The toner is running low.")},
    {"door-open", QT_TRANSLATE_NOOP("host::ReasonText", "A cover of the printer is open.")},
    {"cover-open", QT_TRANSLATE_NOOP("host::ReasonText", "A cover of the printer is open.")},
    {"interlock-open", QT_TRANSLATE_NOOP("host::ReasonText", "A cover of the printer is open.")},
    {"input-tray-missing", QT_TRANSLATE_NOOP("host::ReasonText", "A paper tray is missing.")},
    {"output-area-full", QT_TRANSLATE_NOOP("host::ReasonText", "The output tray is full.")},
    {"offline", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is switched off or not connected.")},
    {"shutdown", QT_TRANSLATE_NOOP("host::ReasonText", "The printer is switched off or not connected.")},
    {"timed-out", QT_TRANSLATE_NOOP("host::ReasonText", "The printer does not respond.")},
    {"connecting-to-device", QT_TRANSLATE_NOOP("host::ReasonText", "Connecting to the printer.")},
    {"spool-area-full", QT_TRANSLATE_NOOP("host::ReasonText", "The print server is out of space.")},
    {"cups-missing-filter",
     QT_TRANSLATE_NOOP("host::ReasonText", "The print server lacks a program for this printer.")},
    {"cups-insecure-filter",
     QT_TRANSLATE_NOOP("host::ReasonText", "The print server does not trust a program for this printer.")},
}};

// Texts of the server without a reason, which only repeat the state.
const std::array<const char *, 2> emptyWords = {"Paused", "Rejecting Jobs"};

QString textOf(QString keyword)
{
    for (const char *suffix : {"-error", "-warning", "-report"}) {
        if (keyword.endsWith(QLatin1String(suffix)))
            keyword.chop(static_cast<qsizetype>(qstrlen(suffix)));
    }
    for (const Known &known : knownReasons) {
        if (keyword == QLatin1String(known.keyword))
            return ReasonText::tr(known.text);
    }
    return {};
}

} // namespace

QString reasonText(const QStringList &keywords, const QString &message)
{
    QStringList texts;
    for (const QString &keyword : keywords) {
        if (const QString text = textOf(keyword); !text.isEmpty() && !texts.contains(text))
            texts.append(text);
    }
    if (!texts.isEmpty())
        return texts.join(QLatin1Char(' '));
    for (const char *words : emptyWords) {
        if (message == QLatin1String(words))
            return {};
    }
    return message;
}

} // namespace host
