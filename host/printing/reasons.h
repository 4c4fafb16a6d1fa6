// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace host {

// The reason for the state of a printer or a job, for the user. `keywords` are the server's state reasons.
// `message` is the server's text in its own language, which is used only if no keyword is known. Empty if
// there is no reason.
QString reasonText(const QStringList &keywords, const QString &message);

} // namespace host
