// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/session_panels.h"

#include "host/printing/ppd_document.h"
#include "host/session/change_notices.h"
#include "host/session/panel_values.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <QScopedValueRollback>

#include <utility>

namespace host {

namespace {

// The key under which panels declare the PPD options that they handle.
const QString supportedKeywordsKey = QStringLiteral("supportedPPDOptionKeys");

QStringList keywordsOf(platform::PrintDialogPanel *panel)
{
    platform::KeyValueObject *object = panel->keyValueObject();
    const bool declares =
        object->metaObject()->indexOfProperty(supportedKeywordsKey.toLatin1().constData()) >= 0;
    return declares ? object->valueForKey(supportedKeywordsKey).toStringList() : QStringList();
}

} // namespace

void SessionPanels::adopt(platform::PrintDialogPanels panels)
{
    for (auto &panel : panels) {
        QStringList keywords = keywordsOf(panel.get());
        m_panels.push_back({std::move(panel), std::move(keywords), {}, {}});
    }
    for (int i = 0; i < count(); ++i)
        watch(i);
}

void SessionPanels::watch(int index)
{
    connect(objectOf(index), &platform::KeyValueObject::valueDidChange, this,
            [this, index](const QString &key) {
                SessionPanel &panel = own(index);
                if (!panel.restored && m_announcing != &panel)
                    panel.touched.insert(key);
                Q_EMIT keyChanged(index, key);
            });
}

int SessionPanels::ofKeyword(const QString &keyword) const
{
    for (int i = 0; i < count(); ++i) {
        if (at(i).keywords.contains(keyword))
            return i;
    }
    return -1;
}

int SessionPanels::ofSetting(const QString &keyPath) const
{
    for (int i = 0; i < count(); ++i) {
        if (settableKeysOf(i).contains(keyPath))
            return i;
    }
    return -1;
}

QStringList SessionPanels::settableKeysOf(int index) const
{
    return settableKeys(objectOf(index), at(index).keywords);
}

void SessionPanels::announceChoices(int index)
{
    SessionPanel &panel = own(index);
    if (panel.followsChoices())
        return;
    panel.announced = true;
    const QScopedValueRollback<const SessionPanel *> announcing(m_announcing, &panel);
    for (const QString &keyword : std::as_const(panel.keywords)) {
        const QString choice = m_ppd->markedChoice(keyword);
        if (!choice.isEmpty())
            setOn(index, keyword, choice);
    }
}

void SessionPanels::restore(int index)
{
    SessionPanel &panel = own(index);
    const QScopedValueRollback<int> busy(m_busy, m_busy + 1);
    const QScopedValueRollback<const SessionPanel *> restoring(m_restoring, &panel);
    panel.restored = true; // even if it fails: a second attempt would query an unreachable device again
    const QString failure = tr("“%1” could not be prepared: %2");
    QString error;
    try {
        if (!panel.panel->restoreValuesAndReturnError(&error))
            Q_EMIT failed(failure.arg(panel.panel->panelName(), error));
    } catch (const std::exception &exception) {
        Q_EMIT failed(failure.arg(panel.panel->panelName(), QString::fromUtf8(exception.what())));
    }
    recordKeys(index, false);
}

void SessionPanels::save(int index)
{
    const QScopedValueRollback<int> busy(m_busy, m_busy + 1);
    platform::PrintDialogPanel *panel = at(index).panel.get();
    m_saving = index;
    const QString failure = tr("The settings of “%1” could not be saved: %2");
    QString error;
    try {
        if (!panel->saveValuesAndReturnError(&error))
            Q_EMIT failed(failure.arg(panel->panelName(), error));
    } catch (const std::exception &exception) {
        Q_EMIT failed(failure.arg(panel->panelName(), QString::fromUtf8(exception.what())));
    }
    m_saving = -1;
    recordKeys(index, true);
}

// Records the values of a panel's keys other than PPD options, such as the profiles of a device. If
// `areChosen` is set, values that differ from those recorded last are choices of the user.
void SessionPanels::recordKeys(int index, bool areChosen)
{
    platform::KeyValueObject *object = objectOf(index);
    for (const QString &key : settableKeysOf(index)) {
        const QVariant value = object->valueForKeyPath(key);
        if (areChosen && !sameValue(value, at(index).keyValues.value(key)))
            Q_EMIT chosen(key, value.toString());
        own(index).keyValues.insert(key, value);
    }
}

void SessionPanels::set(const QString &keyword, const QString &choice)
{
    for (int i = 0; i < count(); ++i) {
        if (at(i).followsChoices() && at(i).keywords.contains(keyword))
            setOn(i, keyword, choice);
    }
}

void SessionPanels::setOn(int index, const QString &keyword, const QString &choice)
{
    const QScopedValueRollback<int> busy(m_busy, m_busy + 1);
    try {
        objectOf(index)->setValueForKey(choice, keyword);
    } catch (const platform::Exception &exception) {
        qCWarning(lcHost).noquote() << exception.description();
    }
}

} // namespace host
