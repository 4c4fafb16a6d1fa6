// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_keys.h"

#include "host/printing/option_text.h"
#include "host/printing/ppd_password.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
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

constexpr qsizetype maxAccount = 255; // bytes; the limit of names in the print protocol
const QString handlingName = QStringLiteral("multiple-document-handling");

bool refuse(PrintError *error, const QString &message)
{
    *error = {PrintError::Kind::BadValue, message};
    return false;
}

// The canonical spelling of a name. The case of job options and PPD options is ignored; names for the page
// size, such as "PageRegion", become "PageSize".
QString canonicalName(const DialogSession &session, const QString &name)
{
    const QString lower = name.toLower();
    const PpdDocument *ppd = session.ppd();
    const QString size = QStringLiteral("PageSize");
    if (ppd && PpdDocument::optionsOfStandardName(lower) == QStringList(size))
        return size;
    if (const QString keyword = PageLayoutSettings::keywordFor(lower); ppd && ppd->hasOption(keyword))
        return ppd->option(keyword)->keyword;
    if (const auto option = ppd ? ppd->option(name) : std::nullopt; option && !GeneralSettings::covers(lower))
        return option->keyword;
    const bool isStandard = ppd && !PpdDocument::optionsOfStandardName(lower).isEmpty();
    return isStandard || GeneralSettings::covers(lower) || PageLayoutSettings::covers(lower) ||
                   jobSettingNames().contains(lower)
               ? lower
               : name;
}

// The code that sets a setting.
enum class Owner { None, General, Job, Ppd, Panel };

// An option of the PPD takes precedence over a setting of the page layout or the job with the same name.
Owner ownerOf(const DialogSession &session, const QString &key)
{
    const bool isOption = session.ppd() && session.ppd()->hasOption(key);
    if (GeneralSettings::covers(key) || (PageLayoutSettings::covers(key) && !isOption))
        return Owner::General;
    if (isOption)
        return Owner::Ppd;
    if (jobSettingNames().contains(key))
        return Owner::Job;
    return session.panels().ofSetting(key) >= 0 ? Owner::Panel : Owner::None;
}

// Selects short-edge binding if the key has switched a booklet on. While it is on, refuses other choices of
// two-sided printing and restores short-edge binding.
bool keepBooklet(DialogSession *session, const ChosenSetting &setting, PrintError *error)
{
    const bool isBooklet = setting.key == QLatin1String("booklet");
    const auto sides =
        session->general().layout.isBooklet() ? sidesForBooklet(*session) : std::optional<OptionChoice>();
    if (!sides || (setting.kind == ChosenSetting::Kind::General && !isBooklet))
        return true;
    if (!isBooklet && !areSidesWrongForBooklet(*session))
        return true;
    const OptionChoice wrong =
        session->ppd()->described(sides->option, session->ppd()->markedChoice(sides->option));
    session->markChoice(sides->option, sides->choice);
    return isBooklet ||
           refuse(error, SettingText::tr("“%1” is not available for a booklet, whose sheets are turned on "
                                         "the short edge.")
                             .arg(wrong.text()));
}

bool setGeneral(DialogSession *session, const ChosenSetting &setting, PrintError *error)
{
    *error = session->setGeneral(setting.key, setting.value);
    if (setting.isSecret && error->kind == PrintError::Kind::BadValue)
        return refuse(error, SettingText::tr("%1 does not take this value.").arg(setting.key));
    return !*error;
}

bool setOnPanel(DialogSession *session, int panel, const ChosenSetting &setting, PrintError *error)
{
    platform::PrintDialogPanel *subject = session->panels().panel(panel);
    if (session->isPanelLocked(panel)) {
        *error = {PrintError::Kind::NotAuthorised,
                  SettingText::tr("“%1” cannot be changed here. %2")
                      .arg(subject->panelName(), Policy::current().attribution())};
        return false;
    }
    session->prepare(panel);
    const QString problem = setPanelValue(subject->keyValueObject(), session->panels().keywords(panel),
                                          *session->ppd(), setting.key, setting.value);
    if (!problem.isEmpty())
        return refuse(error, problem);
    session->noteChosen(setting);
    session->save();
    const QString reason = subject->unavailableReason();
    if (setting.key.contains(QLatin1Char('.')) && !reason.isNull())
        session->addNotice(SettingText::tr("%1 is not sent with the job: %2").arg(setting.key, reason));
    return true;
}

// "A has no choice “B”; it has C.", without B if it may be a code.
bool refuseChoice(const DialogSession &session, const PpdOption &option, const ChosenSetting &setting,
                  PrintError *error)
{
    const QString choices = choicesInWords(*session.ppd(), option.keyword);
    return refuse(error, setting.isSecret ? SettingText::tr("%1 takes %2.").arg(option.keyword, choices)
                                          : SettingText::tr("%1 has no choice “%2”; it has %3.")
                                                .arg(option.keyword, setting.value, choices));
}

bool setOption(DialogSession *session, ChosenSetting setting, PrintError *error)
{
    const auto option = session->ppd()->option(setting.key);
    const QString choice = option->spelled(setting.value);
    QString problem;
    if (option->custom && isCustomChoice(choice)) {
        if (!option->custom->read(choice, option->keyword, &problem))
            return refuse(error, problem);
    } else if (!option->hasChoice(choice)) {
        return refuseChoice(*session, *option, setting, error);
    }
    const int panel = session->panels().ofKeyword(option->keyword);
    if (panel < 0 || !session->isPanelLocked(panel)) {
        *error = session->locks().refusal(session->ppd(), option->keyword, choice);
        if (*error)
            return false;
    }
    setting.key = option->keyword;
    if (panel < 0 && session->markChoice(setting.key, choice, setting.isSecret))
        return true;
    if (panel < 0)
        return refuseChoice(*session, *option, setting, error);
    setting.value = choice;
    return setOnPanel(session, panel, setting, error);
}

// Chooses the options that a standard name such as "media" represents.
bool setStandardName(DialogSession *session, ChosenSetting setting, PrintError *error)
{
    const QMap<QString, QString> choices = session->ppd()->standardChoices(setting.key, setting.value);
    const bool isLeftToFilters = setting.key == QLatin1String("print-color-mode");
    if (choices.isEmpty() && !isLeftToFilters)
        return refuse(error,
                      setting.isSecret
                          ? SettingText::tr("%1 does not take this value.").arg(setting.key)
                          : SettingText::tr("%1: this printer has no “%2”.").arg(setting.key, setting.value));
    for (auto it = choices.begin(); it != choices.end(); ++it)
        session->markChoice(it.key(), it.value(), setting.isSecret);
    setting.options = choices.keys();
    session->noteChosen(setting);
    return true;
}

// Refuses a password or an account that the queue does not accept, that is too long, or that cannot be
// entered at the printer. The print server would ignore a password for a queue that takes none, and print the
// job unprotected.
bool checkPrintMode(const DialogSession &session, const ChosenSetting &setting, PrintError *error)
{
    if (!printModeNames().contains(setting.key) || setting.value.isEmpty())
        return true;
    const Destination &printer = session.destination();
    if (!takesPrintMode(printer, setting.key))
        return refuse(
            error,
            SettingText::tr("The printer “%1” does not take %2.").arg(printer.displayName(), setting.key));
    const bool isPassword = setting.key == passwordName;
    if (const QString problem =
            isPassword && session.ppd() ? passwordProblem(session.ppd()->record(), setting.value) : QString();
        !problem.isNull())
        return refuse(error, problem);
    const qsizetype most = isPassword ? printer.passwordLength : maxAccount;
    return setting.value.toUtf8().size() <= most ||
           refuse(error, SettingText::tr("%1 takes at most %2 characters.").arg(setting.key).arg(most));
}

// Checks the value of "job-sheets": one cover sheet, or those before and after the job. The print server
// ignores letter case.
bool checkCoverSheets(const DialogSession &session, const ChosenSetting &setting, PrintError *error)
{
    if (setting.key != sheetsName || session.destination().coverSheets.isEmpty())
        return true;
    const QStringList offered = coverSheets(session), wanted = setting.value.split(QLatin1Char(','));
    const bool isOffered =
        wanted.size() <= 2 && std::all_of(wanted.begin(), wanted.end(), [&](const QString &sheet) {
            return offered.contains(sheet, Qt::CaseInsensitive);
        });
    return isOffered ||
           refuse(error, SettingText::tr("%1 takes %2.").arg(setting.key, offered.join(QLatin1String(", "))));
}

bool setJobOption(DialogSession *session, ChosenSetting setting, PrintError *error)
{
    setting.value = canonicalJobValue(setting.key, setting.value);
    if (!checkPrintMode(*session, setting, error) || !checkCoverSheets(*session, setting, error))
        return false;
    *error = session->locks().refusal(session->ppd(), setting.key, setting.value);
    if (*error)
        return false;
    if (session->ppd() && session->ppd()->takesOption(setting.key))
        return setStandardName(session, setting, error);
    if (const QString problem = jobSettingProblem(setting.key, setting.value); !problem.isNull())
        return refuse(error, problem);
    session->noteChosen(setting);
    return true;
}

bool chooseAny(DialogSession *session, const ChosenSetting &setting, PrintError *error)
{
    using Kind = ChosenSetting::Kind;
    const QString &key = setting.key, &value = setting.value;
    Owner owner = setting.kind == Kind::General ? Owner::General : ownerOf(*session, key);
    // Other values also specify how documents are put together. The print system may accept a value that the
    // page layout does not.
    const bool isOther =
        key == handlingName
            ? value != GeneralSettings::handling(true) && value != GeneralSettings::handling(false)
            : setting.kind == Kind::JobOption && PageLayoutSettings::covers(key) &&
                  !PageLayoutSettings().set(key, value) && !PageLayoutSettings::rangeOf(key);
    if (owner == Owner::General && isOther)
        owner = Owner::None;
    switch (owner) {
    case Owner::General:
        return setGeneral(session, setting, error);
    case Owner::Job:
        return setJobOption(session, setting, error);
    case Owner::Ppd:
        return setOption(session, setting, error);
    case Owner::Panel:
        return setOnPanel(session, session->panels().ofSetting(key), setting, error);
    case Owner::None:
        break;
    }
    return setting.kind == Kind::JobOption
               ? setJobOption(session, setting, error)
               : refuse(error,
                        SettingText::tr("This printer has no option or setting called “%1”.").arg(key));
}

} // namespace

bool choose(DialogSession *session, const ChosenSetting &wanted, PrintError *error)
{
    ChosenSetting setting = wanted;
    if (wanted.kind != ChosenSetting::Kind::General)
        setting.key = canonicalName(*session, wanted.key);
    setting.isSecret |= session->isSecret(setting.key);
    if (jobSettingNames().contains(setting.key))
        setting.kind = ChosenSetting::Kind::JobOption;
    return chooseAny(session, setting, error) && keepBooklet(session, setting, error);
}

void chooseGeneral(DialogSession *session, const QString &name, const QString &value)
{
    PrintError error;
    if (!choose(session, {name, value, ChosenSetting::Kind::General}, &error))
        session->addNotice(error.message);
}

QStringList leaveOutInvalid(const DialogSession &session, QMap<QString, QString> *options)
{
    QStringList notices;
    for (auto it = options->begin(); it != options->end();) {
        const QString &name = it.key();
        QString problem;
        const Owner owner = ownerOf(session, name);
        if (owner == Owner::Job) {
            *it = canonicalJobValue(name, *it);
            problem = jobSettingProblem(name, *it);
        } else if (owner == Owner::General &&
                   (name == QLatin1String("copies") || PageLayoutSettings::rangeOf(name))) {
            problem = GeneralSettings().set(name, *it);
        }
        if (problem.isNull() || session.locks().choices().contains(name)) {
            ++it;
            continue;
        }
        notices.append(SettingText::tr("A stored setting is not used: %1").arg(problem));
        it = options->erase(it);
    }
    return notices;
}

bool hasSetting(const DialogSession &session, const QString &key)
{
    return ownerOf(session, key) != Owner::None;
}

QList<std::pair<QString, QString>> settingKeys(const DialogSession &session)
{
    QList<std::pair<QString, QString>> keys;
    for (const QString &name : GeneralSettings::allNames())
        keys.append({QStringLiteral("general"), name == handlingName ? QStringLiteral("collate") : name});
    for (const QString &name : jobSettingNames()) {
        if (!printModeNames().contains(name))
            keys.append({QStringLiteral("job"), name});
        else if (takesPrintMode(session.destination(), name))
            keys.append({QStringLiteral("print-mode"), name});
    }
    for (int i = 0; i < session.panels().count(); ++i) {
        for (const QString &key : session.panels().settableKeysOf(i))
            keys.append({session.panels().panel(i)->panelKind(), key});
    }
    return keys;
}

} // namespace host
