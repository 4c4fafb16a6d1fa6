// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace host {

class PpdDocument;

// The value under which a standard name such as "sides" or "media" says what is marked in a PPD. For a name
// that takes a list, of these options; of all that it stands for where the list is empty, or of the first
// where libcups takes no list of them. Empty when no value says it. The PPD comes back as it was.
QString standardValueOfMarks(PpdDocument *ppd, const QString &name, const QStringList &options);

} // namespace host
