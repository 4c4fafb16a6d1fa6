// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>

class QPalette;

namespace host {

// The contrast ratio of two colors, from 1 to 21, as defined by accessibility guidelines.
qreal contrast(const QColor &a, const QColor &b);

// Mixes a color with a share, from 0 to 1, of another color.
QColor mixed(const QColor &color, const QColor &other, float share);

constexpr qreal textContrast = 4.5; // required for text
constexpr qreal markContrast = 3;   // required for marks and frames

// The color, made lighter or darker until its contrast to the background is at least `least`.
QColor legible(const QColor &ink, const QColor &ground, qreal least = textContrast);

// The color of secondary text on the window's background: paler than other text, except in a high-contrast
// palette.
QColor mutedInk(const QPalette &palette);
// The color of error texts on the window's background.
QColor errorInk(const QPalette &palette);
// The palette of a label that shows an error text in a window with this palette.
QPalette errorPalette(QPalette palette);
// The color of highlighted text.
QColor highlightInk(const QPalette &palette);
// The color of the focus frame, which contrasts with windows and fields.
QColor focusInk(const QPalette &palette);

} // namespace host
