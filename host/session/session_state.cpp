// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// How a session tells what is set, and goes back to it.

#include "host/session/session_state.h"

#include "host/session/dialog_session.h"
#include "host/session/job_options.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <utility>

namespace host {

namespace {

// One change may lead panels to others, which are then put right; they come to rest at once or never.
constexpr int mostRounds = 3;

const QString collatingName = QStringLiteral("multiple-document-handling");

template <typename Map>
void addDifferences(const Map &one, const Map &other, QStringList *keys)
{
    for (auto it = one.begin(); it != one.end(); ++it) {
        const auto same = other.constFind(it.key());
        if (same != other.constEnd() && *same != *it)
            keys->append(it.key());
    }
}

template <typename Map>
void dropAlike(Map *one, Map *other)
{
    for (auto it = one->begin(); it != one->end();) {
        const auto same = other->find(it.key());
        if (same == other->end() || *same != *it) {
            ++it;
            continue;
        }
        other->erase(same);
        it = one->erase(it);
    }
}

QMap<QString, QString> byName(const GeneralSettings &general)
{
    QMap<QString, QString> values;
    for (const JobOption &option : general.jobOptions())
        values.insert(option.name, option.value);
    // A job has them for several copies only, and both for the same thing.
    values.remove(QStringLiteral("Collate"));
    values.insert(collatingName, GeneralSettings::handling(general.collate));
    values.insert(general.layout.values());
    return values;
}

std::pair<size_t, QString> placeOf(const QString &panelKey)
{
    return {panelKey.section(QLatin1Char('/'), 0, 0).toULong(), panelKey.section(QLatin1Char('/'), 1)};
}

} // namespace

GeneralSettings withGeneralValue(const GeneralSettings &general, const QString &name,
                                 const GeneralSettings &other)
{
    QMap<QString, QString> values = byName(general);
    values.remove(name);
    const QMap<QString, QString> others = byName(other);
    if (others.contains(name))
        values.insert(name, others.value(name));
    GeneralSettings result = GeneralSettings::from(values);
    result.takePart(name == QLatin1String("page-ranges") ? other : general);
    return result;
}

QStringList SessionState::differencesTo(const SessionState &other) const
{
    QStringList keys;
    addDifferences(marks, other.marks, &keys);
    addDifferences(panelValues, other.panelValues, &keys);
    const QMap<QString, QString> own = byName(general), others = byName(other.general);
    addDifferences(own, others, &keys);
    for (const auto &[one, two] : {std::pair(own, others), std::pair(others, own)}) {
        for (auto it = one.begin(); it != one.end(); ++it) {
            if (!two.contains(it.key()) && !keys.contains(it.key()))
                keys.append(it.key());
        }
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
    for (const QString &keyword : m_ppd ? m_ppd->optionKeywords() : QStringList()) {
        if (!m_ppd->isInstallable(keyword))
            state.marks.insert(keyword, m_ppd->markedChoice(keyword));
    }
    for (size_t i = 0; i < m_panels.size(); ++i) {
        if (!m_panels[i].restored)
            continue;
        platform::KeyValueObject *object = m_panels[i].panel->keyValueObject();
        for (const QString &keyword : m_panels[i].keywords) {
            const QVariant choice = object->valueForKey(keyword);
            if (choice.isValid() && state.marks.contains(keyword))
                state.marks.insert(keyword, choice.toString());
        }
        for (const QString &key : settableKeysOf(static_cast<int>(i))) {
            if (object->keysOfDependentKey(key).isEmpty()) // others stand for options
                state.panelValues.insert(QStringLiteral("%1/%2").arg(i).arg(key),
                                         object->valueForKeyPath(key));
        }
    }
    state.printSettings = m_printSettings.values();
    state.general = m_general;
    state.chosen = m_chosen;
    state.savedKeywords = m_savedKeywords;
    state.instance = m_destination.instance;
    state.destinationOptions = m_destination.options;
    return state;
}

// One round; true when there was nothing left to do.
bool DialogSession::bringMarks(const SessionState &from, const SessionState &to)
{
    const SessionState now = state();
    bool isThere = true;
    for (auto it = to.marks.begin(); it != to.marks.end(); ++it) {
        const bool differs = from.marks.value(it.key()) != it.value() && !it.value().isEmpty();
        if (!differs ||
            (now.marks.value(it.key()) == it.value() && m_ppd->markedChoice(it.key()) == it.value()))
            continue;
        isThere = false;
        m_ppd->mark(it.key(), it.value());
        setOnPanels(it.key(), it.value());
    }
    for (auto it = to.panelValues.begin(); it != to.panelValues.end(); ++it) {
        const auto before = from.panelValues.constFind(it.key());
        if (before == from.panelValues.constEnd() || *before == *it || now.panelValues.value(it.key()) == *it)
            continue;
        isThere = false;
        const auto [panel, key] = placeOf(it.key());
        try {
            if (panel < m_panels.size())
                m_panels[panel].panel->keyValueObject()->setValueForKeyPath(*it, key);
        } catch (const platform::Exception &exception) {
            qCWarning(lcHost).noquote() << exception.name();
        }
    }
    return isThere;
}

// What a device's settings are stands in the print settings alone until a panel has read it.
bool DialogSession::bringPrintSettings(const SessionState &from, const SessionState &to)
{
    bool isChanged = false;
    const QStringList all = from.printSettings.keys() + to.printSettings.keys();
    for (const QString &key : QSet<QString>(all.begin(), all.end())) {
        const QVariant wanted = to.printSettings.value(key);
        if (sameValue(from.printSettings.value(key), wanted) || sameValue(m_printSettings.value(key), wanted))
            continue;
        m_printSettings.setValue(key, wanted);
        isChanged = true;
    }
    return isChanged;
}

void DialogSession::bring(const SessionState &from, const SessionState &to)
{
    const QStringList notices = m_notices;
    m_destination.instance = to.instance;
    m_destination.options = to.destinationOptions;
    for (int round = 0; round < mostRounds && !bringMarks(from, to); ++round)
        settle();
    QStringList keys;
    addDifferences(to.panelValues, from.panelValues, &keys);
    const bool isReadAnew = bringPrintSettings(from, to) && keys.isEmpty();
    settle();
    m_notices = notices;
    for (Panel &panel : m_panels) {
        if (isReadAnew && panel.restored)
            restore(panel);
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
