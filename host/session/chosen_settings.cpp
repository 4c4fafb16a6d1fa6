// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/chosen_settings.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct ChosenText
{
    Q_DECLARE_TR_FUNCTIONS(ChosenText)
};

bool hasKey(const ChosenSetting &setting, const QString &key)
{
    return setting.key.compare(key, Qt::CaseInsensitive) == 0;
}

} // namespace

void ChosenSettings::add(const ChosenSetting &setting)
{
    m_settings.removeIf([&](const ChosenSetting &earlier) {
        return hasKey(earlier, setting.key) || setting.options.contains(earlier.key) ||
               earlier.options == QStringList(setting.key);
    });
    m_settings.append(setting);
}

void ChosenSettings::takeBack(const QStringList &keys, const ChosenSettings &earlier)
{
    // A standard name such as "media" matches each of the options that it represents.
    const auto isOne = [&](const ChosenSetting &setting) {
        return keys.contains(setting.key) ||
               std::any_of(setting.options.begin(), setting.options.end(),
                           [&](const QString &option) { return keys.contains(option); });
    };
    m_settings.removeIf(isOne);
    for (const ChosenSetting &setting : earlier.m_settings) {
        if (isOne(setting))
            add(setting);
    }
}

bool ChosenSettings::contains(const QString &key) const
{
    return std::any_of(m_settings.begin(), m_settings.end(), [&](const ChosenSetting &setting) {
        return hasKey(setting, key) || setting.options.contains(key);
    });
}

ChosenSetting inWords(const DialogSession &session, ChosenSetting setting)
{
    const PpdDocument *ppd = session.ppd();
    const Protection::Secret *secret = session.protection().secretOf(setting.key);
    const int panel = session.panels().ofSetting(setting.key);
    if (secret && ppd)
        setting.text =
            ChosenText::tr("the code for “%1”").arg(ppd->described(secret->option, secret->choice).text());
    else if (ppd && ppd->hasOption(setting.key) && setting.isSecret)
        setting.text = ppd->described(setting.key, {}).optionText;
    else if (ppd && ppd->hasOption(setting.key))
        setting.text = ppd->described(setting.key, setting.value).text();
    else if (panel >= 0)
        setting.text = ChosenText::tr("settings of “%1”").arg(session.panels().panel(panel)->panelName());
    else if (setting.isSecret)
        setting.text = jobSettingText(setting.key);
    else
        setting.text = QStringLiteral("%1=%2").arg(setting.key, setting.value);
    setting.protects = session.protection().protects(setting.key, setting.value) ||
                       (setting.key == passwordName && !setting.value.isEmpty());
    return setting;
}

} // namespace host
