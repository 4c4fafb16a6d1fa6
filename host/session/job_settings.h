// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QTime;

namespace host {

class ChosenSettings;
class DialogSession;
struct Destination;
struct PrintError;

// The settings of the Job page: how the print server handles the job. They are job options and are stored
// among the chosen settings of a session; without a choice the defaults of the destination apply.

extern const QString holdName;     // job-hold-until
extern const QString priorityName; // job-priority
extern const QString sheetsName;   // job-sheets
extern const QString billingName;  // job-billing
// The names above, in display order, then those of the Print Mode page.
const QStringList &jobSettingNames();
// The settings of the Print Mode page for printers without a panel for it: the password and the account of
// the job. Their values are secret.
const QStringList &printModeNames();
// Whether the queue accepts one of these settings.
bool takesPrintMode(const Destination &destination, const QString &name);
// Those that the page offers in this session; none if the printer has panels.
QStringList offeredPrintModes(const DialogSession &session);
// The value that the job will have: the chosen one, else the default of the destination, else that of the
// print system. `options` are those of the destination.
QString jobSettingValue(const ChosenSettings &chosen, const QMap<QString, QString> &options,
                        const QString &name);
QString jobSettingValue(const DialogSession &session, const QString &name);
// Chooses a value; choosing the default removes the choice. An error, without a change, if the value is not
// valid or the policy does not allow the change.
PrintError setJobSetting(DialogSession *session, const QString &name, const QString &value);

// A value in the spelling of the print system: "job-hold-until" in lower case, "job-priority" as digits only.
QString canonicalJobValue(const QString &name, const QString &value);
// A localised sentence with the valid values of "job-hold-until" or "job-priority", if this value is invalid;
// null if it is valid, and for all other names.
QString jobSettingProblem(const QString &name, const QString &value);

// The localised name of a setting, and of a value. The value of "job-sheets" may be a single sheet.
QString jobSettingText(const QString &name);
QString jobValueText(const QString &name, const QString &value);

// The value of "job-hold-until" for a local time of day, and the reverse; the print system uses UTC. The time
// is invalid if the value is not a time of day.
QString holdValueOf(const QTime &time);
QTime timeOfHold(const QString &value);

// The cover sheets that the destination offers, "none" first.
QStringList coverSheets(const DialogSession &session);

} // namespace host
