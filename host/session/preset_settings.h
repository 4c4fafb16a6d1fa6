// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/session_state.h"

#include <QMap>
#include <QString>

namespace host {

class DialogSession;

// The settings of a session that a preset stores: everything that is sent with a job except the page range,
// which belongs to the document. `unknown` contains the options of the current preset; those unknown to the
// dialog, such as the resolution of pictures, are kept. Codes are left out unless `withSecrets` is set.
QMap<QString, QString> presetOptions(const DialogSession &session, const QMap<QString, QString> &unknown,
                                     bool withSecrets);
// Whether there is a code that a preset would leave out.
bool hasSecrets(const DialogSession &session);

// The state that a dialog opened with these options has. `queueOptions` are the options of the queue itself;
// `preset` contains those of the user, which count as choices. Options that the printer does not accept
// become a notice. The page range and panel settings other than options do not change. The marks of the PPD
// are changed temporarily and restored afterwards, except for options without a mark.
SessionState stateWithPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                             const QMap<QString, QString> &preset, QStringList *notices);
// Applies such a state.
void applyPreset(DialogSession *session, const QMap<QString, QString> &queueOptions,
                 const QMap<QString, QString> &preset);

} // namespace host
