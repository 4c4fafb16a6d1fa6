// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QLabel;

namespace host {

// The one way for texts of PPDs, printers, servers and files into the window: as they read, never as markup,
// and never larger than their place.

// For a line of its own, such as an item of a list: without line breaks and control characters, cut beyond
// `most` characters.
QString oneLine(const QString &text, qsizetype most = 160);
// For a label that wraps: a dozen lines at most, and words so long that they would widen it may be broken.
QString wrappable(const QString &text);
// For a tool tip, which takes what looks like markup for it.
QString tooltipOf(const QString &text);
// The text in a width of so many pixels of the label's font; where it is cut, the whole is in the label's
// tool tip.
QString elided(const QString &text, QLabel *label, int width);

} // namespace host
