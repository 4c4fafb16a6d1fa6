// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_texts.h"

#include "host/printing/utf8_text.h"

#include <QByteArrayList>
#include <QCoreApplication>

#include <cups/ppd.h>

#include <cstring>
#include <functional>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace host {

namespace {

struct PpdTexts
{
    Q_DECLARE_TR_FUNCTIONS(PpdTexts)
};

// The text for a keyword of the PPDs that CUPS generates: for the option itself if `choice` is null, and for
// a choice of every option if `option` is null.
struct KeywordText
{
    const char *option;
    const char *choice;
    const char *text;
};

constexpr KeywordText keywordTexts[] = {
    {"Duplex", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Two-Sided Printing")},
    {"Duplex", "None", QT_TRANSLATE_NOOP("PpdTexts", "Off")},
    {"Duplex", "DuplexNoTumble", QT_TRANSLATE_NOOP("PpdTexts", "Long Edge")},
    {"Duplex", "DuplexTumble", QT_TRANSLATE_NOOP("PpdTexts", "Short Edge")},
    {"cupsPrintQuality", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Print Quality")},
    {"cupsPrintQuality", "Draft", QT_TRANSLATE_NOOP("PpdTexts", "Draft")},
    {"cupsPrintQuality", "Normal", QT_TRANSLATE_NOOP("PpdTexts", "Normal")},
    {"cupsPrintQuality", "High", QT_TRANSLATE_NOOP("PpdTexts", "High")},
    {"ColorModel", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Color Mode")},
    {"ColorModel", "Gray", QT_TRANSLATE_NOOP("PpdTexts", "Grayscale")},
    {"ColorModel", "RGB", QT_TRANSLATE_NOOP("PpdTexts", "Color")},
    {"InputSlot", "Manual", QT_TRANSLATE_NOOP("PpdTexts", "Manual Feed")},
    {"InputSlot", "ByPassTray", QT_TRANSLATE_NOOP("PpdTexts", "Bypass Tray")},
    {"MediaType", "Stationery", QT_TRANSLATE_NOOP("PpdTexts", "Plain Paper")},
    {"MediaType", "PhotographicGlossy", QT_TRANSLATE_NOOP("PpdTexts", "Glossy Photo Paper")},
    {"MediaType", "Envelope", QT_TRANSLATE_NOOP("PpdTexts", "Envelope")},
    {"MediaType", "Labels", QT_TRANSLATE_NOOP("PpdTexts", "Labels")},
    {"OutputBin", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Output Tray")},
    {"OutputBin", "FaceDown", QT_TRANSLATE_NOOP("PpdTexts", "Face Down")},
    {"OutputBin", "FaceUp", QT_TRANSLATE_NOOP("PpdTexts", "Face Up")},
    {"StapleLocation", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Staple")},
    {"PunchMedia", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Punch")},
    {"FoldType", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Fold")},
    {"cupsFinishingTemplate", nullptr, QT_TRANSLATE_NOOP("PpdTexts", "Finishing")},
    {nullptr, "SinglePortrait", QT_TRANSLATE_NOOP("PpdTexts", "One, Top Left")},
    {nullptr, "SingleLandscape", QT_TRANSLATE_NOOP("PpdTexts", "One, Bottom Left")},
    {nullptr, "DualPortrait", QT_TRANSLATE_NOOP("PpdTexts", "Two, Left")},
    {nullptr, "DualLandscape", QT_TRANSLATE_NOOP("PpdTexts", "Two, Top")},
    {nullptr, "None", QT_TRANSLATE_NOOP("PpdTexts", "None")},
    {nullptr, "Auto", QT_TRANSLATE_NOOP("PpdTexts", "Automatic")},
};

// "StationeryLetterhead" as "Stationery Letterhead", and "Tray1" as "Tray 1". Names of sizes such as "A4"
// stay as they are.
QString separatedWords(const QString &keyword)
{
    QString words;
    for (qsizetype i = 0; i < keyword.size(); ++i) {
        const bool followsWord = i > 1 && keyword[i - 1].isLower() && keyword[i - 2].isLetter();
        if (followsWord && (keyword[i].isUpper() || keyword[i].isDigit()))
            words.append(QLatin1Char(' '));
        words.append(keyword[i]);
    }
    return words;
}

// `choice` is null for the option itself; `text` is what the PPD has.
QString generatedText(const char *option, const char *choice, const char *text)
{
    for (const KeywordText &known : keywordTexts) {
        const bool isOption = !known.option || qstrcmp(known.option, option) == 0;
        if (isOption && qstrcmp(known.choice, choice) == 0)
            return PpdTexts::tr(known.text);
    }
    const QString own = QString::fromUtf8(text);
    return qstrcmp(text, choice ? choice : option) == 0 ? separatedWords(own) : own;
}

template <size_t size>
void replaceText(char (&text)[size], const char *option, const char *choice)
{
    const QByteArray words = utf8Beginning(generatedText(option, choice, text), size - 1);
    std::memcpy(text, words.constData(), static_cast<size_t>(words.size()) + 1);
}

// The PPDs that CUPS generates from the IPP attributes of a printer have texts in the language of the print
// server, or only in the language "C", which libcups does not use.
void replaceGeneratedTexts(ppd_group_t *groups, int count)
{
    for (int g = 0; g < count; ++g) {
        for (int o = 0; o < groups[g].num_options; ++o) {
            ppd_option_t &option = groups[g].options[o];
            replaceText(option.text, option.keyword, nullptr);
            for (int c = 0; c < option.num_choices; ++c)
                replaceText(option.choices[c].text, option.keyword, option.choices[c].choice);
        }
        replaceGeneratedTexts(groups[g].subgroups, groups[g].num_subgroups);
    }
}

bool isGeneratedByCups(const ppd_file_t *ppd)
{
    return QByteArrayView(ppd->nickname).endsWith("- IPP Everywhere");
}

// Visits all text fields of the record, always in the same order.
void forEachText(ppd_group_t *groups, int count, const std::function<void(char *)> &visit)
{
    for (int g = 0; g < count; ++g) {
        visit(groups[g].text);
        for (int o = 0; o < groups[g].num_options; ++o) {
            ppd_option_t &option = groups[g].options[o];
            visit(option.text);
            for (int c = 0; c < option.num_choices; ++c)
                visit(option.choices[c].text);
        }
        forEachText(groups[g].subgroups, groups[g].num_subgroups, visit);
    }
}

} // namespace

QString traySourceText(const QString &keyword)
{
    QString choice; // as in the PPDs that CUPS generates
    for (const QString &word : keyword.split(QLatin1Char('-'), Qt::SkipEmptyParts))
        choice += word.left(1).toUpper() + word.mid(1);
    const QByteArray name = choice.toUtf8();
    return generatedText("InputSlot", name.constData(), name.constData());
}

void localizePpdTexts(ppd_file_t *ppd)
{
    QByteArrayList own;
    forEachText(ppd->groups, ppd->num_groups, [&](char *text) { own.append(text); });
    ppdLocalize(ppd);
    auto next = own.cbegin();
    forEachText(ppd->groups, ppd->num_groups, [&](char *text) {
        if (*text == '\0')
            std::memcpy(text, next->constData(), static_cast<size_t>(next->size()) + 1);
        text[wholeCharacters(text)] = '\0';
        ++next;
    });
    if (isGeneratedByCups(ppd))
        replaceGeneratedTexts(ppd->groups, ppd->num_groups);
}

} // namespace host
