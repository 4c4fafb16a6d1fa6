// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_index.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"

#include <QStringList>

#include <algorithm>

namespace host {

namespace {

constexpr int unmatched = 1000;

// The distance of a word from a text: smallest if a word of the text begins with it.
int distanceIn(const QString &text, const QString &word, int base)
{
    const qsizetype at = text.indexOf(word);
    if (at < 0)
        return unmatched;
    const bool begins = at == 0 || text.contains(QLatin1Char(' ') + word);
    return begins ? base : base + 1;
}

} // namespace

QString searchable(const QString &text)
{
    QString result;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (c.isMark())
            continue;
        const bool counts = c.isLetterOrNumber() || c.isSurrogate();
        if (counts || !result.endsWith(QLatin1Char(' ')))
            result += counts ? c : QChar(QLatin1Char(' '));
    }
    return result.trimmed();
}

void SettingIndex::add(const FoundSetting &setting)
{
    if (!m_titles.contains(setting.page)) // hidden by the administrator
        return;
    const QChar gap(QLatin1Char(' '));
    m_entries.append({setting, searchable(setting.option + gap + setting.keyword),
                      searchable(setting.choiceText + gap + setting.choice),
                      searchable(m_titles.value(setting.page))});
}

void SettingIndex::addOption(const DialogSession &session, const QString &page, const QString &keyword)
{
    const auto option = session.ppd()->option(keyword);
    if (!option || session.isSecret(keyword) || session.rule().hiddenOptions.contains(keyword) ||
        (option->choices.isEmpty() && !option->custom))
        return;
    FoundSetting setting{page, keyword, option->text, {}, {}};
    add(setting);
    for (const PpdOption::Choice &choice : option->choices) {
        setting.choice = choice.keyword;
        setting.choiceText = choice.text;
        add(setting);
    }
    if (option->custom) {
        setting.choice = QStringLiteral("Custom");
        setting.choiceText = option->custom->text;
        add(setting);
    }
}

void SettingIndex::addSession(const DialogSession &session)
{
    const QString general = QStringLiteral("general");
    for (const QString &name : GeneralSettings::names())
        add({general, name, GeneralSettings::textOf(name), {}, {}});
    for (const QString &name : jobSettingNames()) {
        if (!printModeNames().contains(name))
            add({QStringLiteral("job"), name, jobSettingText(name), {}, {}});
    }
    for (const QString &name : offeredPrintModes(session))
        add({QStringLiteral("print-mode"), name, jobSettingText(name), {}, {}});
    if (!session.ppd())
        return;
    const QStringList generalKeywords = generalOptionKeywords(*session.ppd());
    for (const QString &keyword : generalKeywords)
        addOption(session, general, keyword);
    for (int i = 0; i < session.panels().count(); ++i) {
        if (!session.panels().panel(i)->panelView())
            continue;
        for (const QString &keyword : session.panels().keywords(i)) {
            if (!generalKeywords.contains(keyword)) // found once, with its choices
                addOption(session, session.panels().panel(i)->panelKind(), keyword);
        }
    }
    for (const QString &keyword : session.otherKeywords())
        addOption(session, QStringLiteral("more"), keyword);
}

void SettingIndex::addControl(const FoundSetting &control, const QString &more)
{
    const QString name = searchable(control.option);
    bool isKnown = false;
    for (Entry &entry : m_entries) {
        const bool isSame = entry.setting.page == control.page &&
                            (control.keyword.isEmpty() ? searchable(entry.setting.option) == name
                                                       : entry.setting.keyword == control.keyword);
        if (!isSame)
            continue;
        isKnown = true;
        entry.setting.option = control.option; // the displayed text; the PPD's text is still found
        entry.name += QLatin1Char(' ') + name;
        entry.rest += QLatin1Char(' ') + searchable(more);
    }
    if (isKnown || !m_titles.contains(control.page))
        return;
    add(control);
    m_entries.last().rest += QLatin1Char(' ') + searchable(more);
}

// Smaller is better; `unmatched` or more if a word is not found. For a choice to be found, at least one word
// must match the choice itself.
int SettingIndex::distance(const Entry &entry, const QStringList &words)
{
    const bool isChoice = !entry.setting.choice.isEmpty();
    int sum = isChoice ? 1 : 0;
    bool hitsChoice = !isChoice;
    for (const QString &word : words) {
        const int toChoice = distanceIn(entry.choice, word, 0);
        hitsChoice |= toChoice < unmatched;
        sum += std::min({toChoice, distanceIn(entry.name, word, 0), distanceIn(entry.rest, word, 4)});
    }
    return hitsChoice ? sum : unmatched;
}

QList<FoundSetting> SettingIndex::find(const QString &query, qsizetype most) const
{
    const QStringList words = searchable(query).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<std::pair<int, qsizetype>> hits;
    for (qsizetype i = 0; i < m_entries.size() && !words.isEmpty(); ++i) {
        if (const int far = distance(m_entries.at(i), words); far < unmatched)
            hits.append({far, i});
    }
    std::sort(hits.begin(), hits.end());
    QList<FoundSetting> found;
    for (qsizetype i = 0; i < std::min(most, hits.size()); ++i)
        found.append(m_entries.at(hits.at(i).second).setting);
    return found;
}

} // namespace host
