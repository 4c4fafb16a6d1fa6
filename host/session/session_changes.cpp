// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/session_changes.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/session/session_state.h"
#include "platform/key_value_object.h"

#include <algorithm>

namespace host {

namespace {

int panelInKey(const QString &key)
{
    bool isPanel = false;
    const int panel = key.section(QLatin1Char('/'), 0, 0).toInt(&isPanel);
    return isPanel && key.contains(QLatin1Char('/')) ? panel : -1;
}

SettingChange markChange(const DialogSession &session, const QString &key, const SessionState &before,
                         const SessionState &after)
{
    if (session.isSecret(key)) {
        ChosenSetting secret{key, {}};
        secret.isSecret = true;
        return {key, inWords(session, secret).text, {}, {}};
    }
    const OptionChoice then = session.ppd()->described(key, before.marks.value(key));
    const OptionChoice now = session.ppd()->described(key, after.marks.value(key));
    return {key, now.optionText, then.choiceText, now.choiceText};
}

// Collation is only reported for several copies.
void addGeneralChanges(const GeneralSettings &before, const GeneralSettings &after,
                       QList<SettingChange> *changes)
{
    for (const QString &name : GeneralSettings::allNames()) {
        const QString then = before.valueText(name), now = after.valueText(name);
        if (before.value(name) != after.value(name) && then != now)
            changes->append({name, GeneralSettings::textOf(name), then, now});
    }
}

} // namespace

QList<SettingChange> changesBetween(const DialogSession &session, const SessionState &before,
                                    const SessionState &after)
{
    QList<SettingChange> changes;
    addGeneralChanges(before.general, after.general, &changes);
    for (const QString &key : before.differencesTo(after)) {
        SettingChange change;
        if (const int panel = panelInKey(key); panel >= 0 && panel < session.panels().count())
            change = {key, session.panels().panel(panel)->panelName(), {}, {}};
        else if (jobSettingNames().contains(key))
            change = {key, jobSettingText(key),
                      jobValueText(key, jobSettingValue(before.chosen, before.destinationOptions, key)),
                      jobValueText(key, jobSettingValue(after.chosen, after.destinationOptions, key))};
        else if (after.marks.contains(key))
            change = markChange(session, key, before, after);
        const bool isKnown = std::any_of(changes.begin(), changes.end(), [&](const SettingChange &earlier) {
            return earlier.name == change.name && change.after.isEmpty();
        });
        if (!change.name.isEmpty() && !isKnown) // a code has several digits
            changes.append(change);
    }
    return changes;
}

int pageOf(const DialogSession &session, const QString &key)
{
    if (const int panel = panelInKey(key); panel >= 0)
        return panel;
    if (printModeNames().contains(key))
        return printModePage;
    if (jobSettingNames().contains(key))
        return jobPage;
    if (!session.ppd() || !session.ppd()->hasOption(key) || GeneralSettings::covers(key))
        return generalPage;
    if (const int panel = session.panels().ofKeyword(key); panel >= 0)
        return panel;
    return generalOptionKeywords(*session.ppd()).contains(key) ? generalPage : morePage;
}

QStringList keysOfControl(const DialogSession &session, int panel, const QString &keyPath)
{
    const QStringList keywords = session.panels().keywords(panel);
    const QString choice = QStringLiteral("Choice");
    if (keywords.contains(keyPath))
        return {keyPath};
    if (keyPath.endsWith(choice) && keywords.contains(keyPath.chopped(choice.size())))
        return {keyPath.chopped(choice.size())};
    if (!session.panels().settableKeysOf(panel).contains(keyPath))
        return {};
    QStringList parts = session.panels().panel(panel)->keyValueObject()->keysOfDependentKey(keyPath);
    parts.removeIf([&](const QString &part) { return !keywords.contains(part); });
    return parts.isEmpty() ? QStringList(QStringLiteral("%1/%2").arg(panel).arg(keyPath)) : parts;
}

void putBack(DialogSession *session, const SessionState &base, const QStringList &keys)
{
    const SessionState now = session->state();
    SessionState wanted = now;
    for (const QString &key : keys) {
        if (base.marks.contains(key))
            wanted.marks.insert(key, base.marks.value(key));
        else if (base.panelValues.contains(key))
            wanted.panelValues.insert(key, base.panelValues.value(key));
        else if (!jobSettingNames().contains(key))
            wanted.general.set(key, base.general.value(key));
    }
    wanted.chosen.takeBack(keys, base.chosen);
    session->restoreTo(now, wanted);
}

} // namespace host
