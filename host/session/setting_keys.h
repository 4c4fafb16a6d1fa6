// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "host/session/chosen_settings.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>

namespace host {

// Sets a setting by its name as the user would with a control, and records the choice: a PPD option keyword,
// a key or key path of a panel, one of the general settings "copies", "collate", "page-ranges" and those of
// the page layout, one of jobSettingNames(), or a name of the print system. Letter case is ignored. The panel
// of a key is restored first, set through its key-value object, and saved. A job option that is unknown to
// the PPD and the panels is sent unchanged. False with a localised error, and without a change, if there is
// no such setting, the value is invalid or the policy forbids it. The error never contains a value that is a
// code.
bool choose(DialogSession *session, const ChosenSetting &setting, PrintError *error);

// Sets a general setting, by the name of its job option, even if the PPD has an option of the same name. An
// error becomes a notice.
void chooseGeneral(DialogSession *session, const QString &name, const QString &value);

// Changes stored options of a destination or a preset as choose() would: times, priorities, copies and
// numbers of the page layout that it refuses are removed, times and priorities are changed to their canonical
// spelling. An option that the policy has fixed is kept. Returns a localised notice for each option that is
// removed.
QStringList leaveOutInvalid(const DialogSession &session, QMap<QString, QString> *options);

// Whether choose() accepts this key, whatever the value.
bool hasSetting(const DialogSession &session, const QString &key);

// The keys that can be set in addition to PPD options, as "panel kind" and "key"; "general" represents the
// general settings, "job" those of the Job page, "print-mode" the password and the account if the queue takes
// them.
QList<std::pair<QString, QString>> settingKeys(const DialogSession &session);

} // namespace host
