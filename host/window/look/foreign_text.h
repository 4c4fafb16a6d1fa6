// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QLabel;

namespace host {

// All texts of PPDs, printers, servers and files are passed through these functions before they are shown in
// the window. They are shown as plain text, and never exceed their place.

// For a single line, such as an item of a list: without line breaks and control characters, truncated after
// `most` characters.
QString oneLine(const QString &text, qsizetype most = 160);
// For a label that wraps: at most a dozen lines; words that would widen it can be broken.
QString wrappable(const QString &text);
// For a tooltip, which would otherwise interpret markup.
QString tooltipOf(const QString &text);
// The text, elided to this width in pixels in the label's font; if it is elided, the full text becomes the
// label's tooltip.
QString elided(const QString &text, QLabel *label, int width);

} // namespace host
