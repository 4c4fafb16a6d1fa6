// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>

class QPalette;

namespace host {

// How well one colour stands out from another, from 1 to 21, as accessibility guidelines measure it.
qreal contrast(const QColor &a, const QColor &b);

// One colour with a share, from 0 to 1, of another.
QColor mixed(const QColor &color, const QColor &other, float share);

constexpr qreal textContrast = 4.5; // what text needs of its ground
constexpr qreal markContrast = 3;   // what a sign or a frame needs

// The colour, made lighter or darker as far as it takes to stand out from a ground by `least`.
QColor legible(const QColor &ink, const QColor &ground, qreal least = textContrast);

// Of secondary text on the window's ground: paler than other text, but not where the palette is one of high
// contrast.
QColor mutedInk(const QPalette &palette);
// Of words that tell of an error, on the window's ground.
QColor errorInk(const QPalette &palette);
// Of the text of something that is highlighted.
QColor highlightInk(const QPalette &palette);
// Of the frame around what has the focus; stands out from window and fields.
QColor focusInk(const QPalette &palette);

} // namespace host
