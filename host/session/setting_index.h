// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace host {

class DialogSession;

// Something that can be set in a dialog, as a search finds it. A value.
struct FoundSetting
{
    QString page;       // "general", "more", or a panel's kind
    QString keyword;    // of the PPD option or general setting; null for a control that sets something else
    QString option;     // in words
    QString choice;     // a choice of it, as the PPD calls it; null for the option as a whole
    QString choiceText; // in words
};

// Finds settings by words in any order, whole or in part, in the user's language or as the PPD has them;
// capitals and accents make no difference. Made for one session when the user first searches;
// keeps no reference to it. Codes, and the options that keep them, are not in it.
class SettingIndex
{
public:
    // Pages are found by their titles, too; to be told before what is on them.
    void addPage(const QString &page, const QString &title) { m_titles.insert(page, title); }
    // The options of the PPD and what every printer can be asked.
    void addSession(const DialogSession &session);
    // A control of a page. `more` is what else is said of it, such as a tool tip. A control of an option that
    // is known gives that its name, and adds to what it is found by.
    void addControl(const FoundSetting &control, const QString &more);

    // The best first; at most so many.
    QList<FoundSetting> find(const QString &query, qsizetype most) const;

private:
    struct Entry
    {
        FoundSetting setting;
        QString name;   // what it is found by: the option,
        QString choice; // the choice,
        QString rest;   // and where it is and what is said of it
    };
    void add(const FoundSetting &setting);
    void addOption(const DialogSession &session, const QString &page, const QString &keyword);
    static int distance(const Entry &entry, const QStringList &words);

    QHash<QString, QString> m_titles;
    QList<Entry> m_entries;
};

// A text as it is compared in a search: words of small letters without accents.
QString searchable(const QString &text);

} // namespace host
