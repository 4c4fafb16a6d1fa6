// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/preset_settings.h"

#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/job_options.h"
#include "host/session/job_settings.h"
#include "host/session/session_state.h"
#include "host/session/setting_keys.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct PresetText
{
    Q_DECLARE_TR_FUNCTIONS(PresetText)
};

const QString pagesName = QStringLiteral("page-ranges");

bool isSecretSetting(const DialogSession &session, const QString &name)
{
    const auto &chosen = session.chosen().inOrder();
    return session.isSecret(name) || std::any_of(chosen.begin(), chosen.end(), [&](const auto &setting) {
               return setting.isSecret && setting.key.compare(name, Qt::CaseInsensitive) == 0;
           });
}

// Whether the option only states the default of one copy.
bool isDefaultCopies(const DialogSession &session, const JobOption &option)
{
    return option.name == QLatin1String("copies") && option.value == QLatin1String("1") &&
           session.startingGeneral().copies == 1;
}

bool isKept(const DialogSession &session, const JobOption &option)
{
    return (option.kind == JobOption::Kind::Choice || option.kind == JobOption::Kind::Attribute) &&
           option.name != pagesName && !isDefaultCopies(session, option);
}

bool isKnown(const DialogSession &session, const QString &name)
{
    return GeneralSettings::covers(name) || PageLayoutSettings::covers(name) ||
           jobSettingNames().contains(name) || isPanelSetting(name) ||
           (session.ppd() && (session.ppd()->hasOption(name) || session.ppd()->takesOption(name)));
}

// The choices of the PPD with its defaults and then `options` marked. Restores the current marks afterwards.
QMap<QString, QString> marksOf(const DialogSession &session, const QMap<QString, QString> &options,
                               QStringList *problems)
{
    PpdDocument *ppd = session.ppd();
    QMap<QString, QString> now, marks;
    for (const QString &keyword : ppd->settableKeywords()) {
        now.insert(keyword, ppd->markedChoice(keyword));
        ppd->mark(keyword, ppd->defaultChoice(keyword));
    }
    problems->append(ppd->markOptions(options));
    if (PageLayoutSettings::from(options).isBooklet())
        turnSidesForBooklet(session);
    for (auto it = now.begin(); it != now.end(); ++it)
        marks.insert(it.key(), ppd->markedChoice(it.key()));
    for (int round = 0; round < 2; ++round) { // a mark may remove another one, for example a size with a tray
        for (auto it = now.begin(); it != now.end(); ++it) {
            if (!it->isEmpty() && ppd->markedChoice(it.key()) != *it)
                ppd->mark(it.key(), *it);
        }
    }
    return marks;
}

// Whether the page layout accepts the value; other values are sent unchanged.
bool isLayout(const DialogSession &session, const QString &name, const QString &value)
{
    return !(session.ppd() && session.ppd()->hasOption(name)) && PageLayoutSettings().set(name, value);
}

bool isTaken(const DialogSession &session, const QString &name, const QString &value)
{
    const auto option = session.ppd() ? session.ppd()->option(name) : std::nullopt;
    return !option || option->choices.isEmpty() || GeneralSettings::covers(name) ||
           option->hasChoice(option->spelled(value));
}

ChosenSetting chosenFrom(const DialogSession &session, const QString &name, const QString &value)
{
    const bool isOption = session.ppd() && session.ppd()->hasOption(name);
    ChosenSetting setting{name, value, isOption ? ChosenSetting::Kind::Key : ChosenSetting::Kind::JobOption};
    if (!isOption && session.ppd() && session.ppd()->takesOption(name))
        setting.options = session.ppd()->standardChoices(name, value).keys();
    setting.isSecret = session.isSecret(name);
    return inWords(session, setting);
}

// The options of a preset that the policy allows; the others are reported.
QMap<QString, QString> withoutForbidden(const DialogSession *session, const QMap<QString, QString> &preset,
                                        QStringList *notices)
{
    QMap<QString, QString> allowed;
    for (auto it = preset.begin(); it != preset.end(); ++it) {
        const PrintError refusal = session->locks().refusal(session->ppd(), it.key(), it.value());
        if (!refusal)
            allowed.insert(it.key(), it.value());
        else if (!notices->contains(refusal.message))
            notices->append(refusal.message);
    }
    return allowed;
}

} // namespace

QMap<QString, QString> presetOptions(const DialogSession &session, const QMap<QString, QString> &unknown,
                                     bool withSecrets)
{
    QMap<QString, QString> options;
    for (auto it = unknown.begin(); it != unknown.end(); ++it) {
        if (!isKnown(session, it.key()) && !isSecretSetting(session, it.key()))
            options.insert(it.key(), it.value());
    }
    // Options from the destination are removed, since they do not belong to the other preset.
    for (const JobOption &option : session.general().layout.jobOptions({}, {}))
        options.insert(option.name, option.value);
    for (const JobOption &option : session.jobOptions()) {
        // A session that was opened with the preset has them as defaults.
        const bool isOfPreset = unknown.contains(option.name) && jobSettingNames().contains(option.name);
        if ((isKept(session, option) || isOfPreset) &&
            (withSecrets || !isSecretSetting(session, option.name)))
            options.insert(option.name, option.value);
    }
    return options;
}

bool hasSecrets(const DialogSession &session)
{
    for (const JobOption &option : session.jobOptions()) {
        const bool isDefault = session.ppd() && session.ppd()->defaultChoice(option.name) == option.value;
        if (isKept(session, option) && !isDefault && isSecretSetting(session, option.name))
            return true;
    }
    return false;
}

SessionState stateWithPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                             const QMap<QString, QString> &given, QStringList *notices)
{
    const QMap<QString, QString> &locked = session->locks().choices();
    QMap<QString, QString> preset = withoutForbidden(session, given, notices);
    notices->append(leaveOutInvalid(*session, &preset));
    const SessionState now = session->state();
    SessionState wanted = now;
    QMap<QString, QString> all = queueOptions;
    all.insert(preset);
    all.insert(locked);
    QStringList missed;
    if (session->ppd())
        wanted.marks = marksOf(*session, all, notices);
    wanted.marks.insert(locked);
    wanted.printSettings.clear();
    wanted.chosen = {};
    wanted.savedKeywords.clear();
    wanted.instance.clear();
    wanted.destinationOptions = queueOptions;
    const GeneralSettings general = GeneralSettings::from(all);
    for (const QString &name : GeneralSettings::allNames()) {
        if (name != pagesName)
            wanted.general.set(name, general.value(name));
    }
    for (auto it = all.begin(); it != all.end(); ++it) {
        const bool isUsers = preset.contains(it.key()) || locked.contains(it.key());
        if (preset.contains(it.key()) && session->ppd() && !session->ppd()->takesOption(it.key()) &&
            looksLikeOptionOfAPpd(it.key()))
            missed.append(it.key());
        if (isPanelSetting(it.key()))
            wanted.printSettings.insert(it.key(), it.value());
        else if (isUsers && !isTaken(*session, it.key(), it.value()))
            missed.append(session->ppd()->option(it.key())->text);
        else if (isUsers && !GeneralSettings::covers(it.key()) && !isLayout(*session, it.key(), it.value()))
            wanted.chosen.add(chosenFrom(*session, it.key(), it.value()));
    }
    if (!missed.isEmpty())
        notices->append(PresetText::tr("This printer does not support these settings: %1.")
                            .arg(missed.join(QStringLiteral(", "))));
    return wanted;
}

void applyPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                 const QMap<QString, QString> &preset)
{
    QStringList notices;
    const SessionState wanted = stateWithPreset(session, queueOptions, preset, &notices);
    session->restoreTo(session->state(), wanted);
    for (const QString &notice : std::as_const(notices))
        session->addNotice(notice);
}

} // namespace host
