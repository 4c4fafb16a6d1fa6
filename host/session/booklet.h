// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"
#include "host/session/page_layout_settings.h"

#include <optional>

namespace host {

class DialogSession;

// Booklets: sheets with two pages on each side, which are folded together in the middle. The filters of the
// print system arrange the pages; the back of a sheet is upright only if it is turned on the short edge.

// The page layout of a session, including the options with which its PPD takes the place of a setting.
PageLayoutSettings layoutAsPrinted(const DialogSession &session);

// The choice of two-sided printing for booklets. Null if the PPD has none, or forbids it together with other
// marks: the sheets are then printed on one side.
std::optional<OptionChoice> sidesForBooklet(const DialogSession &session);

// The choice of this option that turns the backs of a booklet upside down; empty if there is none.
QString choiceNotForBooklet(const DialogSession &session, const QString &keyword);
// The setting for booklets, switched on or off, in words.
OptionChoice bookletChoice(bool on);

// Whether two-sided printing is marked in a way that turns the backs of a booklet upside down.
bool areSidesWrongForBooklet(const DialogSession &session);
// Marks two-sided printing for booklets on the PPD if it is marked otherwise. Records no choice.
void turnSidesForBooklet(const DialogSession &session);

// The choice that staples sheets in the fold; null if the PPD has none.
std::optional<OptionChoice> saddleStitching(const DialogSession &session);

} // namespace host
