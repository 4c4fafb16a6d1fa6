// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/job_settings.h"

#include "host/session/dialog_session.h"
#include "host/session/session_state.h"
#include "host/session/setting_keys.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QMap>

#include <algorithm>

namespace host {

const QString holdName = QStringLiteral("job-hold-until");
const QString priorityName = QStringLiteral("job-priority");
const QString sheetsName = QStringLiteral("job-sheets");
const QString billingName = QStringLiteral("job-billing");

namespace {

struct JobSettingText
{
    Q_DECLARE_TR_FUNCTIONS(JobSettingText)
};

const QString noSheet = QStringLiteral("none");
constexpr int maxPriority = 100;

struct ValueText
{
    const char *name;
    const char *value;
    const char *text;
};

constexpr ValueText valueTexts[] = {
    {"job-hold-until", "no-hold", QT_TRANSLATE_NOOP("JobSettingText", "Now")},
    {"job-hold-until", "day-time", QT_TRANSLATE_NOOP("JobSettingText", "During the day")},
    {"job-hold-until", "evening", QT_TRANSLATE_NOOP("JobSettingText", "In the evening")},
    {"job-hold-until", "night", QT_TRANSLATE_NOOP("JobSettingText", "At night")},
    {"job-hold-until", "second-shift", QT_TRANSLATE_NOOP("JobSettingText", "In the second shift")},
    {"job-hold-until", "third-shift", QT_TRANSLATE_NOOP("JobSettingText", "In the third shift")},
    {"job-hold-until", "weekend", QT_TRANSLATE_NOOP("JobSettingText", "At the weekend")},
    {"job-hold-until", "indefinite", QT_TRANSLATE_NOOP("JobSettingText", "When it is released")},
    {"job-priority", "25", QT_TRANSLATE_NOOP("JobSettingText", "Low")},
    {"job-priority", "50", QT_TRANSLATE_NOOP("JobSettingText", "Normal")},
    {"job-priority", "75", QT_TRANSLATE_NOOP("JobSettingText", "High")},
    {"job-priority", "100", QT_TRANSLATE_NOOP("JobSettingText", "Urgent")},
    {"job-sheets", "none", QT_TRANSLATE_NOOP("JobSettingText", "None")},
    {"job-sheets", "standard", QT_TRANSLATE_NOOP("JobSettingText", "Standard")},
    {"job-sheets", "form", QT_TRANSLATE_NOOP("JobSettingText", "Form")},
    {"job-sheets", "unclassified", QT_TRANSLATE_NOOP("JobSettingText", "Unclassified")},
    {"job-sheets", "classified", QT_TRANSLATE_NOOP("JobSettingText", "Classified")},
    {"job-sheets", "confidential", QT_TRANSLATE_NOOP("JobSettingText", "Confidential")},
    {"job-sheets", "secret", QT_TRANSLATE_NOOP("JobSettingText", "Secret")},
    {"job-sheets", "topsecret", QT_TRANSLATE_NOOP("JobSettingText", "Top secret")},
};

QString textOf(const QString &name, const QString &value)
{
    const auto *const text = std::find_if(std::begin(valueTexts), std::end(valueTexts), [&](const auto &t) {
        return name == QLatin1String(t.name) && value == QLatin1String(t.value);
    });
    return text == std::end(valueTexts) ? value : JobSettingText::tr(text->text);
}

QString defaultValue(const QString &name)
{
    static const QMap<QString, QString> defaults = {{holdName, QStringLiteral("no-hold")},
                                                    {priorityName, QStringLiteral("50")},
                                                    {sheetsName, QStringLiteral("none,none")}};
    return defaults.value(name, QString());
}

// The value as the print server reports it: "job-sheets" with both cover sheets.
QString normalized(const QString &name, const QString &value)
{
    if (name != sheetsName || value.contains(QLatin1Char(',')))
        return value;
    return value + QLatin1Char(',') + noSheet;
}

} // namespace

const QStringList &jobSettingNames()
{
    static const QStringList names =
        QStringList{holdName, priorityName, sheetsName, billingName} + printModeNames();
    return names;
}

const QStringList &printModeNames()
{
    static const QStringList names = {passwordName, accountName, accountUserName};
    return names;
}

bool takesPrintMode(const Destination &destination, const QString &name)
{
    return (name == passwordName && destination.passwordLength > 0) ||
           (name == accountName && destination.takesAccountId) ||
           (name == accountUserName && destination.takesAccountUser);
}

QStringList offeredPrintModes(const DialogSession &session)
{
    QStringList names = session.panels().count() > 0 ? QStringList() : printModeNames();
    names.removeIf([&](const QString &name) { return !takesPrintMode(session.destination(), name); });
    return names;
}

QString jobSettingValue(const ChosenSettings &chosen, const QMap<QString, QString> &options,
                        const QString &name)
{
    for (const ChosenSetting &setting : chosen.inOrder()) {
        if (setting.key == name)
            return normalized(name, setting.value);
    }
    const QString own = options.value(name);
    return own.isEmpty() ? defaultValue(name) : normalized(name, own);
}

QString jobSettingValue(const DialogSession &session, const QString &name)
{
    return jobSettingValue(session.chosen(), session.destination().options, name);
}

PrintError setJobSetting(DialogSession *session, const QString &name, const QString &value)
{
    if (value == jobSettingValue({}, session->destination().options, name)) {
        const SessionState now = session->state();
        SessionState wanted = now;
        wanted.chosen.takeBack({name}, {});
        session->restoreTo(now, wanted);
        return {};
    }
    PrintError error;
    (void)choose(session, {name, value, ChosenSetting::Kind::JobOption}, &error);
    return error;
}

QString canonicalJobValue(const QString &name, const QString &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (name == priorityName && isNumber)
        return QString::number(number);
    return name == holdName ? value.trimmed().toLower() : value;
}

QString jobSettingProblem(const QString &name, const QString &value)
{
    if (name == priorityName) {
        bool isNumber = false;
        const int priority = value.toInt(&isNumber);
        return isNumber && priority >= 1 && priority <= maxPriority
                   ? QString()
                   : JobSettingText::tr("%1 takes a number from 1 to %2.").arg(name).arg(maxPriority);
    }
    if (name != holdName || timeOfHold(value).isValid())
        return {};
    QStringList times;
    for (const ValueText &text : valueTexts) {
        if (name == QLatin1String(text.name))
            times.append(QLatin1String(text.value));
    }
    return times.contains(value) ? QString()
                                 : JobSettingText::tr("%1 takes %2, or a time in UTC such as 20:15.")
                                       .arg(name, times.join(QLatin1String(", ")));
}

QString jobSettingText(const QString &name)
{
    static const QMap<QString, const char *> texts = {
        {holdName, QT_TRANSLATE_NOOP("JobSettingText", "Print")},
        {priorityName, QT_TRANSLATE_NOOP("JobSettingText", "Priority")},
        {sheetsName, QT_TRANSLATE_NOOP("JobSettingText", "Cover sheets")},
        {billingName, QT_TRANSLATE_NOOP("JobSettingText", "Billing information")},
        {passwordName, QT_TRANSLATE_NOOP("JobSettingText", "Password")},
        {accountName, QT_TRANSLATE_NOOP("JobSettingText", "Account")},
        {accountUserName, QT_TRANSLATE_NOOP("JobSettingText", "Account user")}};
    return texts.contains(name) ? JobSettingText::tr(texts.value(name)) : name;
}

QString jobValueText(const QString &name, const QString &value)
{
    if (printModeNames().contains(name))
        return value.isEmpty() ? value : hiddenValue();
    if (const QTime time = timeOfHold(value); name == holdName && time.isValid())
        return QLocale().toString(time, QLocale::ShortFormat);
    if (name != sheetsName || !value.contains(QLatin1Char(',')))
        return textOf(name, value);
    const QString before = value.section(QLatin1Char(','), 0, 0), after = value.section(QLatin1Char(','), 1);
    if (before == after)
        return textOf(name, before);
    return JobSettingText::tr("%1 before, %2 after", "cover sheets")
        .arg(textOf(name, before), textOf(name, after));
}

QString holdValueOf(const QTime &time)
{
    return QDateTime(QDate::currentDate(), time).toUTC().time().toString(QStringLiteral("HH:mm"));
}

QTime timeOfHold(const QString &value)
{
    if (value.isEmpty() || !value.front().isDigit()) // mostly "no-hold"; parsing loads code of Qt
        return {};
    QTime time = QTime::fromString(value, QStringLiteral("H:mm"));
    if (!time.isValid())
        time = QTime::fromString(value, QStringLiteral("H:mm:ss"));
    if (!time.isValid())
        return {};
    QDateTime moment = QDateTime::currentDateTimeUtc();
    moment.setTime(time);
    return moment.toLocalTime().time();
}

QStringList coverSheets(const DialogSession &session)
{
    QStringList sheets = session.destination().coverSheets;
    sheets.removeAll(noSheet);
    sheets.prepend(noSheet);
    return sheets;
}

} // namespace host
