// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace host {

class PpdDocument;

// The value of a standard name, such as "sides" or "media", for the current marks of a PPD. For a name that
// takes a list, `options` selects the options to include; if it is empty, all options that the name
// represents, or only the first if libcups does not accept a list. Empty if there is no such value. The PPD
// is restored afterwards.
QString standardValueOfMarks(PpdDocument *ppd, const QString &name, const QStringList &options);

// The keywords that PPDs use for the choice between color and black and white.
const QStringList &colorKeywords();
// Whether a choice of a color option means black and white or shades of gray, by the keywords that PPDs of
// many makers use.
bool isMonochromeChoice(const QString &choice);

} // namespace host
