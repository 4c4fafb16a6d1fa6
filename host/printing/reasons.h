// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace host {

// Why a printer or a job is as it is, for the user. `keywords` are the server's state reasons, `message` its
// own words in its own language, which stand only where none of the keywords is known. Empty when there is
// nothing to say.
QString reasonText(const QStringList &keywords, const QString &message);

} // namespace host
