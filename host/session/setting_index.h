// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace host {

class DialogSession;

// A search result: a setting of a dialog. A value.
struct FoundSetting
{
    QString page;       // "general", "more", or a panel's kind
    QString keyword;    // of the PPD option or general setting; null for a control of another setting
    QString option;     // display text
    QString choice;     // the keyword of a choice; null for the option as a whole
    QString choiceText; // display text
};

// Searches settings by words or parts of words in any order, in the user's language or as in the PPD; case
// and accents are ignored. Created for one session on the user's first search; holds no reference to it. Does
// not contain codes and the options that store them.
class SettingIndex
{
public:
    // Adds a page, which is also found by its title. Call before adding its contents.
    void addPage(const QString &page, const QString &title) { m_titles.insert(page, title); }
    // Adds the options of the PPD and the general settings.
    void addSession(const DialogSession &session);
    // Adds a control of a page. `more` is additional text, such as the tooltip. The control of a known option
    // provides its name and further text.
    void addControl(const FoundSetting &control, const QString &more);

    // The best matches first, limited to `most`.
    QList<FoundSetting> find(const QString &query, qsizetype most) const;

private:
    struct Entry
    {
        FoundSetting setting;
        QString name;   // search text: the option,
        QString choice; // the choice,
        QString rest;   // and its location and description
    };
    void add(const FoundSetting &setting);
    void addOption(const DialogSession &session, const QString &page, const QString &keyword);
    static int distance(const Entry &entry, const QStringList &words);

    QHash<QString, QString> m_titles;
    QList<Entry> m_entries;
};

// Normalizes a text for comparison: lower case without accents.
QString searchable(const QString &text);

} // namespace host
