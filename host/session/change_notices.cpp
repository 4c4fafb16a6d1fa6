// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/change_notices.h"

#include "host/printing/ppd_document.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

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
    OptionChoice cause;
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
    text = text.arg(group.options.join(QStringLiteral(", ")), group.choice);
    if (!group.cause.option.isEmpty())
        text +=
            QLatin1Char(' ') +
            ChangeText::tr("The reason: “%1” is “%2”.").arg(group.cause.optionText, group.cause.choiceText);
    return text;
}

} // namespace

bool sameValue(const QVariant &a, const QVariant &b)
{
    return a.metaType() == b.metaType() && a == b;
}

QStringList changeNotices(const QList<UnrequestedChange> &changes)
{
    QList<Group> groups;
    for (const UnrequestedChange &item : changes) {
        const QString &choice = item.change.choiceText;
        auto group = std::find_if(groups.begin(), groups.end(), [&](const Group &g) {
            return g.choice == choice && g.isDefault == item.isDefault && g.cause == item.cause;
        });
        if (group == groups.end())
            group = groups.insert(groups.end(), {{}, choice, item.isDefault, item.cause});
        group->options.append(item.change.optionText);
    }
    QStringList sentences;
    for (const Group &group : groups)
        sentences.append(sentence(group));
    return sentences;
}

} // namespace host
