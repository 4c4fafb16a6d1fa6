// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/panel_changes.h"

#include "host/session/session_panels.h"
#include "platform/key_value_object.h"

#include <algorithm>
#include <utility>

namespace host {

void PanelChanges::noteSetting(int panel, const QString &key)
{
    if (!m_panels->at(panel).keywords.contains(key))
        return;
    if (m_justSet.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { m_justSet.clear(); }, Qt::QueuedConnection);
    m_justSet.insert(panel, {++m_settingCount, key});
}

// The option that was just set on another panel than `owner`; empty if there is none.
OptionChoice PanelChanges::causeFromOtherPanel(int owner) const
{
    std::pair<int, QString> latest;
    int panel = -1;
    for (auto it = m_justSet.begin(); it != m_justSet.end(); ++it) {
        if (it.key() != owner && it->first > latest.first) {
            latest = it.value();
            panel = it.key();
        }
    }
    if (panel < 0 || !m_ppd)
        return {};
    return m_ppd->described(latest.second, m_panels->objectOf(panel)->valueForKey(latest.second).toString());
}

void PanelChanges::announce(const QString &keyword)
{
    if (std::any_of(m_announced.begin(), m_announced.end(),
                    [&](const Announced &known) { return known.keyword == keyword; }))
        return;
    const int owner = m_panels->ofKeyword(keyword);
    const bool byUser = m_panels->saving() >= 0 && owner == m_panels->saving();
    m_announced.append(
        {keyword, currentValue(keyword), byUser, byUser ? OptionChoice() : causeFromOtherPanel(owner)});
}

QVariant PanelChanges::currentValue(const QString &keyword) const
{
    if (m_ppd && m_ppd->hasOption(keyword)) {
        const QString choice = m_ppd->markedChoice(keyword);
        return choice.isEmpty() ? QVariant() : QVariant(choice);
    }
    return m_settings->value(keyword);
}

void PanelChanges::putBack(const QString &keyword, const QVariant &value)
{
    if (sameValue(currentValue(keyword), value))
        return;
    if (m_ppd && m_ppd->hasOption(keyword))
        m_ppd->mark(keyword, value.toString());
    else
        m_settings->setValue(keyword, value);
}

PanelChanges::Outcome PanelChanges::settle()
{
    Outcome outcome;
    for (const Announced &entry : std::exchange(m_announced, {})) {
        const int owner = m_panels->ofKeyword(entry.keyword);
        const SessionPanel *panel = owner < 0 ? nullptr : &m_panels->at(owner);
        if (panel && !panel->restored && !panel->touched.contains(entry.keyword)) {
            putBack(entry.keyword, entry.before);
            continue;
        }
        outcome.saved.append(entry.keyword);
        const QVariant after = currentValue(entry.keyword);
        if (sameValue(entry.before, after))
            continue;
        if (entry.byUser) {
            outcome.chosen.append({entry.keyword, after.toString()});
        } else if (m_ppd && m_ppd->hasOption(entry.keyword)) {
            outcome.unrequested.append({m_ppd->described(entry.keyword, after.toString()),
                                        after.toString() == m_ppd->defaultChoice(entry.keyword),
                                        entry.cause});
        }
    }
    return outcome;
}

} // namespace host
