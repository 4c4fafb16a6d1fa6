// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

struct ppd_file_s;

namespace host {

// Localises the texts of groups, options and choices like ppdLocalize(), and corrects its results: an empty
// translation is replaced by the PPD's own text, and a character truncated by the size of libcups's fields is
// removed completely. In a PPD that CUPS has generated for a driverless printer, usual options and choices
// get the program's own texts.
void localizePpdTexts(ppd_file_s *ppd);

// The text of a tray that a printer reports by a keyword of "media-source": "Tray 1" for "tray-1".
QString traySourceText(const QString &keyword);

} // namespace host
