// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_keys.h"

#include "host/printing/option_text.h"
#include "host/session/page_ranges.h"
#include "host/session/panel_values.h"
#include "platform/key_value_object.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct SettingText
{
    Q_DECLARE_TR_FUNCTIONS(SettingText)
};

PrintError badValue(const QString &message)
{
    return {PrintError::Kind::BadValue, message};
}

} // namespace

bool SettingKeys::set(const QString &key, const QString &value, PrintError *error, bool valueIsSecret)
{
    m_valueIsSecret = valueIsSecret || m_session->isSecret(key);
    if (GeneralSettings::covers(key) && key != QLatin1String("multiple-document-handling"))
        return setGeneral(key, value, error);
    if (isLayout(key))
        return setLayout(key, value, error);
    const int panel = m_session->panelOfSetting(key);
    if (m_session->ppd() && m_session->ppd()->hasOption(key))
        return setOption(key, value, error);
    if (panel >= 0)
        return setOnPanel(panel, key, value, error);
    *error = badValue(SettingText::tr("This printer has no option or setting called “%1”.").arg(key));
    return false;
}

bool SettingKeys::knows(const QString &key) const
{
    return GeneralSettings::covers(key) || isLayout(key) ||
           (m_session->ppd() && m_session->ppd()->hasOption(key)) || m_session->panelOfSetting(key) >= 0;
}

bool SettingKeys::setGeneral(const QString &key, const QString &value, PrintError *error)
{
    GeneralSettings &general = m_session->general();
    if (key == QLatin1String("copies")) {
        bool ok = false;
        const int copies = value.toInt(&ok);
        if (!ok || copies < 1 || copies > GeneralSettings::maxCopies) {
            *error = badValue(
                SettingText::tr("copies takes a number from 1 to %1.").arg(GeneralSettings::maxCopies));
            return false;
        }
        general.copies = copies;
        return true;
    }
    if (key == QLatin1String("page-ranges")) {
        QString problem;
        const auto pages = normalizedPageRanges(value, &problem);
        if (!pages) {
            *error = badValue(m_valueIsSecret ? SettingText::tr("page-ranges does not take this value.")
                                              : problem);
            return false;
        }
        general.pages = *pages;
        return true;
    }
    const auto collate = switchValue(value);
    if (!collate) {
        *error = badValue(SettingText::tr("%1 takes True or False.").arg(key));
        return false;
    }
    general.collate = *collate;
    return true;
}

// If the PPD has an option of the same name, that one is meant.
bool SettingKeys::isLayout(const QString &key) const
{
    return PageLayoutSettings::covers(key) && !(m_session->ppd() && m_session->ppd()->hasOption(key));
}

bool SettingKeys::takes(const QString &key, const QString &value) const
{
    return !isLayout(key) || PageLayoutSettings().set(key, value);
}

bool SettingKeys::setLayout(const QString &key, const QString &value, PrintError *error)
{
    if (m_session->general().layout.set(key, value))
        return true;
    *error = badValue(SettingText::tr("%1 takes %2.").arg(key, PageLayoutSettings::takes(key)));
    return false;
}

PrintError SettingKeys::noSuchChoice(const PpdOption &option, const QString &choice) const
{
    const QString choices = choicesInWords(*m_session->ppd(), option.keyword);
    if (m_valueIsSecret)
        return badValue(SettingText::tr("%1 takes %2.").arg(option.keyword, choices));
    return badValue(
        SettingText::tr("%1 has no choice “%2”; it has %3.").arg(option.keyword, choice, choices));
}

bool SettingKeys::setOption(const QString &keyword, const QString &value, PrintError *error)
{
    const auto option = m_session->ppd()->option(keyword);
    const QString choice = option->spelled(value);
    const bool isKnown = option->hasChoice(choice) && !(option->custom && isCustomChoice(choice));
    QString problem;
    if (!isKnown && isCustomChoice(value) && option->custom) {
        if (!option->custom->read(value, option->keyword, &problem)) {
            *error = badValue(problem);
            return false;
        }
    } else if (!isKnown) {
        *error = noSuchChoice(*option, value);
        return false;
    }
    const int panel = m_session->panelOfKeyword(option->keyword);
    const bool isOnFreePage = panel < 0 || !m_session->isPanelLocked(panel);
    const PrintError locked = m_session->locks().refusal(m_session->ppd(), option->keyword, choice);
    if (isOnFreePage && locked) {
        *error = locked;
        return false;
    }
    if (panel >= 0)
        return setOnPanel(panel, option->keyword, choice, error);
    if (m_session->markChoice(option->keyword, choice, m_valueIsSecret))
        return true;
    *error = noSuchChoice(*option, value);
    return false;
}

bool SettingKeys::setOnPanel(int panel, const QString &keyPath, const QString &value, PrintError *error)
{
    if (m_session->isPanelLocked(panel)) {
        *error = {PrintError::Kind::NotAuthorised,
                  SettingText::tr("“%1” cannot be changed here. %2")
                      .arg(m_session->panel(panel)->panelName(), Policy::current().attribution())};
        return false;
    }
    m_session->prepare(panel);
    const QString problem = setPanelValue(m_session->panel(panel)->keyValueObject(),
                                          m_session->panelKeywords(panel), *m_session->ppd(), keyPath, value);
    if (!problem.isEmpty()) {
        *error = badValue(problem);
        return false;
    }
    ChosenSetting setting{keyPath, value};
    setting.isSecret = m_valueIsSecret;
    m_session->noteChosen(setting);
    m_session->save();
    const QString reason = m_session->panel(panel)->unavailableReason();
    if (keyPath.contains(QLatin1Char('.')) && !reason.isNull())
        m_session->addNotice(SettingText::tr("%1 is not sent with the job: %2").arg(keyPath, reason));
    return true;
}

QList<std::pair<QString, QString>> SettingKeys::panelKeys() const
{
    const QString general = QStringLiteral("general");
    QList<std::pair<QString, QString>> keys = {{general, QStringLiteral("copies")},
                                               {general, QStringLiteral("collate")},
                                               {general, QStringLiteral("page-ranges")},
                                               {general, QStringLiteral("number-up")},
                                               {general, QStringLiteral("number-up-layout")},
                                               {general, QStringLiteral("page-border")},
                                               {general, QStringLiteral("orientation-requested")},
                                               {general, QStringLiteral("page-set")},
                                               {general, QStringLiteral("outputorder")},
                                               {general, QStringLiteral("print-scaling")}};
    for (int i = 0; i < m_session->panelCount(); ++i) {
        for (const QString &key : m_session->settableKeysOf(i))
            keys.append({m_session->panel(i)->panelKind(), key});
    }
    return keys;
}

} // namespace host
