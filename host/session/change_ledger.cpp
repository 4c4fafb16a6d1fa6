// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/change_ledger.h"

#include "host/printing/ppd_document.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace host {

namespace {

struct ChangeText
{
    Q_DECLARE_TR_FUNCTIONS(ChangeText)
};

struct Group
{
    QStringList options;
    QString choice;
    bool isDefault = false;
};

QString sentence(const Group &group)
{
    QString text;
    if (group.options.size() == 1)
        text = group.isDefault ? ChangeText::tr("“%1” was reset to “%2”.")
                               : ChangeText::tr("“%1” was changed to “%2”.");
    else
        text = group.isDefault
                   ? ChangeText::tr("These were reset to “%2”: %1.", "a list of options, a choice")
                   : ChangeText::tr("These were changed to “%2”: %1.", "a list of options, a choice");
    return text.arg(group.options.join(QStringLiteral(", ")), group.choice);
}

} // namespace

void ChangeLedger::announce(const QString &keyword, const QVariant &before, bool byUser)
{
    const bool known = std::any_of(m_entries.begin(), m_entries.end(),
                                   [&](const Entry &entry) { return entry.keyword == keyword; });
    if (!known)
        m_entries.append({keyword, before, byUser});
}

QList<ChangeLedger::Entry> ChangeLedger::take()
{
    return std::exchange(m_entries, {});
}

bool sameValue(const QVariant &a, const QVariant &b)
{
    return a.metaType() == b.metaType() && a == b;
}

QStringList changeNotices(const QList<OptionChoice> &changes, const QList<bool> &isDefault)
{
    QList<Group> groups;
    for (qsizetype i = 0; i < changes.size(); ++i) {
        const OptionChoice &change = changes.at(i);
        auto group = std::find_if(groups.begin(), groups.end(), [&](const Group &g) {
            return g.choice == change.choiceText && g.isDefault == isDefault.at(i);
        });
        if (group == groups.end())
            group = groups.insert(groups.end(), {{}, change.choiceText, isDefault.at(i)});
        group->options.append(change.optionText);
    }
    QStringList sentences;
    for (const Group &group : groups)
        sentences.append(sentence(group));
    return sentences;
}

} // namespace host
