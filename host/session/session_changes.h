// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

class DialogSession;
struct SessionState;

// A changed setting, for display. A value.
struct SettingChange
{
    QString key;    // as returned by SessionState::differencesTo()
    QString name;   // of the setting
    QString before; // both empty if there is no text, as for codes, which are never shown
    QString after;
};

QList<SettingChange> changesBetween(const DialogSession &session, const SessionState &before,
                                    const SessionState &after);
// The panel whose page shows a setting; generalPage, morePage, jobPage or printModePage for the host's pages.
constexpr int generalPage = -1;
constexpr int morePage = -2;
constexpr int jobPage = -3;
constexpr int printModePage = -4;
int pageOf(const DialogSession &session, const QString &key);
// The keys that a panel's control sets, by the key path of its binding: an option, the digits of a code, or
// another value of the panel. Empty if the user cannot set the control.
QStringList keysOfControl(const DialogSession &session, int panel, const QString &keyPath);
// Resets only these settings to their values in `base`.
void putBack(DialogSession *session, const SessionState &base, const QStringList &keys);

} // namespace host
