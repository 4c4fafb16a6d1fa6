// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/chosen_settings.h"

#include "host/session/dialog_session.h"
#include "host/session/setting_keys.h"

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

// Whether a value of "multiple-document-handling" only specifies collation.
bool isCollating(const QString &value)
{
    return value == GeneralSettings::handling(true) || value == GeneralSettings::handling(false);
}

// The canonical name: the case of job options and PPD options is ignored, and the page region is the page
// size.
QString usualName(const DialogSession &session, const QString &name)
{
    const QString lower = name.toLower();
    const auto option = session.ppd() ? session.ppd()->option(name) : std::nullopt;
    const QString size = QStringLiteral("PageSize");
    if (session.ppd() && PpdDocument::optionsOfStandardName(lower) == QStringList(size))
        return size;
    if (option && !GeneralSettings::covers(lower))
        return option->keyword;
    const bool isStandard = session.ppd() && !PpdDocument::optionsOfStandardName(lower).isEmpty();
    return isStandard || GeneralSettings::covers(lower) || PageLayoutSettings::covers(lower) ? lower : name;
}

// Chooses the options that a standard name such as "media" represents.
bool chooseStandardName(DialogSession *session, ChosenSetting setting, PrintError *error)
{
    if (const PrintError refusal = session->locks().refusal(session->ppd(), setting.key, setting.value)) {
        *error = refusal;
        return false;
    }
    const QMap<QString, QString> choices = session->ppd()->standardChoices(setting.key, setting.value);
    const bool isLeftToFilters = setting.key == QLatin1String("print-color-mode");
    if (choices.isEmpty() && !isLeftToFilters) {
        *error = {PrintError::Kind::BadValue,
                  setting.isSecret
                      ? ChosenText::tr("%1 does not take this value.").arg(setting.key)
                      : ChosenText::tr("%1: this printer has no “%2”.").arg(setting.key, setting.value)};
        return false;
    }
    for (auto it = choices.begin(); it != choices.end(); ++it)
        session->markChoice(it.key(), it.value(), setting.isSecret);
    setting.options = choices.keys();
    session->noteChosen(setting);
    return true;
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
    const int panel = session.panelOfSetting(setting.key);
    if (secret && ppd)
        setting.text =
            ChosenText::tr("the code for “%1”").arg(ppd->described(secret->option, secret->choice).text());
    else if (ppd && ppd->hasOption(setting.key) && setting.isSecret)
        setting.text = ppd->described(setting.key, {}).optionText;
    else if (ppd && ppd->hasOption(setting.key))
        setting.text = ppd->described(setting.key, setting.value).text();
    else if (panel >= 0)
        setting.text = ChosenText::tr("settings of “%1”").arg(session.panel(panel)->panelName());
    else if (setting.isSecret)
        setting.text = setting.key;
    else
        setting.text = QStringLiteral("%1=%2").arg(setting.key, setting.value);
    setting.protects = session.protection().protects(setting.key, setting.value);
    return setting;
}

bool choose(DialogSession *session, const ChosenSetting &wanted, PrintError *error)
{
    SettingKeys keys(session);
    ChosenSetting setting = wanted;
    setting.key = usualName(*session, wanted.key);
    if (setting.key == QLatin1String("multiple-document-handling") && isCollating(setting.value)) {
        session->general().collate = !setting.value.contains(QLatin1String("uncollated"));
        return true;
    }
    const bool isJobOption = setting.kind == ChosenSetting::Kind::JobOption &&
                             (setting.key == QLatin1String("multiple-document-handling") ||
                              !keys.knows(setting.key) || !keys.takes(setting.key, setting.value));
    if (!isJobOption)
        return keys.set(setting.key, setting.value, error, setting.isSecret);
    const bool standsForOptions = session->ppd() && session->ppd()->takesOption(setting.key);
    if (standsForOptions)
        return chooseStandardName(session, setting, error);
    *error = session->locks().refusal(session->ppd(), setting.key, setting.value);
    if (!*error)
        session->noteChosen(setting);
    return !*error;
}

} // namespace host
