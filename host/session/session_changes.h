// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

class DialogSession;
struct SessionState;

// A setting that is not what it was, in words. A value.
struct SettingChange
{
    QString key;    // as SessionState::differencesTo() has it
    QString name;   // of the setting
    QString before; // both empty where there are no words for it, as for codes, which are never shown
    QString after;
};

QList<SettingChange> changesBetween(const DialogSession &session, const SessionState &before,
                                    const SessionState &after);
// The panel whose page shows a setting; generalPage or morePage for those of the host.
constexpr int generalPage = -1;
constexpr int morePage = -2;
int pageOf(const DialogSession &session, const QString &key);
// The keys that a panel's control stands for, by the key path that it is bound to: an option, the digits of a
// code, or a value of the panel's own. Empty for what the user cannot set.
QStringList keysOfControl(const DialogSession &session, int panel, const QString &keyPath);
// Sets these as they were in `base`, and nothing else.
void putBack(DialogSession *session, const SessionState &base, const QStringList &keys);

} // namespace host
