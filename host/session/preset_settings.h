// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/session_state.h"

#include <QMap>
#include <QString>

namespace host {

class DialogSession;

// What of a session a preset keeps: everything that is sent with a job but the pages, which belong to the
// document. `unknown` are options of the preset in use: those that the dialog does not know, such as a job's
// priority, stay. Codes are left out unless `withSecrets`.
QMap<QString, QString> presetOptions(const DialogSession &session, const QMap<QString, QString> &unknown,
                                     bool withSecrets);
// Whether there is a code that a preset would leave out.
bool hasSecrets(const DialogSession &session);

// How a dialog would find everything that opened the queue with these options. `queueOptions` are those of
// the queue itself, `preset` the user's, which count as chosen. What the printer does not take becomes a
// notice that names it; the pages to print, and what panels hold apart from options, stay. The marks are
// tried out on the PPD and put back, save for options that had none.
SessionState stateWithPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                             const QMap<QString, QString> &preset, QStringList *notices);
// Sets everything so.
void applyPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                 const QMap<QString, QString> &preset);

} // namespace host
