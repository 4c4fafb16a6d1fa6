// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/session_state.h"

#include "host/session/dialog_session.h"
#include "host/session/job_options.h"
#include "host/session/job_settings.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <utility>

namespace host {

namespace {

// A change may cause changes in panels, which are corrected in another round. The number of rounds is limited
// in case two panels keep changing each other.
constexpr int mostRounds = 3;

// Calls a function with each key whose entries differ, and pointers to the two values. A pointer is null if
// that map has no entry.
template <typename Map, typename Visit>
void forEachDifference(const Map &one, const Map &other, const Visit &visit)
{
    auto a = one.begin(), b = other.begin();
    while (a != one.end() || b != other.end()) {
        const int order = a == one.end() ? 1 : b == other.end() ? -1 : a.key().compare(b.key());
        if (order != 0 || *a != *b)
            visit(order <= 0 ? a.key() : b.key(), order <= 0 ? &*a : nullptr, order >= 0 ? &*b : nullptr);
        if (order <= 0)
            ++a;
        if (order >= 0)
            ++b;
    }
}

// Adds the keys with different values in both maps.
template <typename Map>
void addDifferences(const Map &one, const Map &other, QStringList *keys)
{
    forEachDifference(one, other, [keys](const QString &key, const auto *value, const auto *otherValue) {
        if (value && otherValue)
            keys->append(key);
    });
}

template <typename Map>
void dropAlike(Map *one, Map *other)
{
    Map ones, others;
    forEachDifference(*one, *other, [&](const QString &key, const auto *value, const auto *otherValue) {
        if (value)
            ones.insert(key, *value);
        if (otherValue)
            others.insert(key, *otherValue);
    });
    *one = std::move(ones);
    *other = std::move(others);
}

std::pair<int, QString> placeOf(const QString &panelKey)
{
    return {panelKey.section(QLatin1Char('/'), 0, 0).toInt(), panelKey.section(QLatin1Char('/'), 1)};
}

// Device settings are only in the print settings until a panel has read them. Returns whether any was
// changed.
bool restorePrintSettings(const SessionState &from, const SessionState &to, platform::PrintSettings *settings)
{
    bool isChanged = false;
    const QStringList all = from.printSettings.keys() + to.printSettings.keys();
    for (const QString &key : QSet<QString>(all.begin(), all.end())) {
        const QVariant wanted = to.printSettings.value(key);
        if (sameValue(from.printSettings.value(key), wanted) || sameValue(settings->value(key), wanted))
            continue;
        settings->setValue(key, wanted);
        isChanged = true;
    }
    return isChanged;
}

} // namespace

QStringList SessionState::differencesTo(const SessionState &other) const
{
    QStringList keys;
    addDifferences(marks, other.marks, &keys);
    addDifferences(panelValues, other.panelValues, &keys);
    if (general != other.general) {
        forEachDifference(general.values(), other.general.values(), [&keys](const QString &key, auto, auto) {
            if (!keys.contains(key))
                keys.append(key);
        });
    }
    for (const QString &name : jobSettingNames()) {
        if (jobSettingValue(chosen, destinationOptions, name) !=
            jobSettingValue(other.chosen, other.destinationOptions, name))
            keys.append(name);
    }
    if (keys.isEmpty() && general != other.general)
        keys.append(QStringLiteral("general"));
    if (instance != other.instance || destinationOptions != other.destinationOptions)
        keys.append(QStringLiteral("destination"));
    return keys;
}

void SessionState::keepDifferences(SessionState *one, SessionState *other)
{
    dropAlike(&one->marks, &other->marks);
    dropAlike(&one->panelValues, &other->panelValues);
    dropAlike(&one->printSettings, &other->printSettings);
}

SessionState DialogSession::state() const
{
    SessionState state;
    for (const QString &keyword : m_ppd ? m_ppd->settableKeywords() : QStringList())
        state.marks.insert(keyword, m_ppd->markedChoice(keyword));
    for (int i = 0; i < m_panels.count(); ++i) {
        if (!m_panels.isRestored(i))
            continue;
        platform::KeyValueObject *object = m_panels.objectOf(i);
        for (const QString &keyword : m_panels.keywords(i)) {
            const QVariant choice = object->valueForKey(keyword);
            if (choice.isValid() && state.marks.contains(keyword))
                state.marks.insert(keyword, choice.toString());
        }
        for (const QString &key : m_panels.settableKeysOf(i)) {
            if (object->keysOfDependentKey(key).isEmpty()) // other properties represent options
                state.panelValues.insert(QStringLiteral("%1/%2").arg(i).arg(key),
                                         object->valueForKeyPath(key));
        }
    }
    state.printSettings = m_host.settings().values();
    state.general = m_general;
    state.chosen = m_chosen;
    state.savedKeywords = m_savedKeywords;
    state.instance = m_destination.instance;
    state.destinationOptions = m_destination.options;
    return state;
}

// One round; true if nothing was left to do.
bool DialogSession::restoreMarks(const SessionState &from, const SessionState &to)
{
    const SessionState now = state();
    bool isThere = true;
    for (auto it = to.marks.begin(); it != to.marks.end(); ++it) {
        const bool differs = from.marks.value(it.key()) != it.value() && !it.value().isEmpty();
        const bool isMade =
            now.marks.value(it.key()) == it.value() && m_ppd->markedChoice(it.key()) == it.value();
        ChosenSetting setting{it.key(), it.value()};
        if (!differs || isMade || !mark(&setting))
            continue;
        isThere = false;
        m_panels.set(setting.key, setting.value);
    }
    for (auto it = to.panelValues.begin(); it != to.panelValues.end(); ++it) {
        const auto before = from.panelValues.constFind(it.key());
        if (before == from.panelValues.constEnd() || *before == *it || now.panelValues.value(it.key()) == *it)
            continue;
        isThere = false;
        const auto [panel, key] = placeOf(it.key());
        try {
            if (panel < m_panels.count())
                m_panels.objectOf(panel)->setValueForKeyPath(*it, key);
        } catch (const platform::Exception &exception) {
            qCWarning(lcHost).noquote() << exception.name();
        }
    }
    return isThere;
}

void DialogSession::restoreTo(const SessionState &from, const SessionState &to)
{
    const QStringList notices = m_notices;
    m_destination.instance = to.instance;
    m_destination.options = to.destinationOptions;
    for (int round = 0; round < mostRounds && !restoreMarks(from, to); ++round)
        settle();
    QStringList keys;
    addDifferences(to.panelValues, from.panelValues, &keys);
    const bool isReadAnew = restorePrintSettings(from, to, &m_host.settings()) && keys.isEmpty();
    settle();
    m_notices = notices;
    for (int i = 0; i < m_panels.count(); ++i) {
        if (isReadAnew && m_panels.isRestored(i))
            m_panels.restore(i);
    }
    const QStringList problems = m_notices;
    save();
    m_notices = problems;
    m_general = to.general;
    m_chosen = to.chosen;
    m_savedKeywords = to.savedKeywords;
    Q_EMIT changed();
}

} // namespace host
