// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/contrast.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

qreal luminance(const QColor &color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

qreal contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor &color, const QColor &other, float share)
{
    return QColor::fromRgbF(color.redF() + (other.redF() - color.redF()) * share,
                            color.greenF() + (other.greenF() - color.greenF()) * share,
                            color.blueF() + (other.blueF() - color.blueF()) * share);
}

QColor legible(const QColor &ink, const QColor &ground, qreal least)
{
    constexpr int steps = 20;
    const QColor end = contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
    QColor result = ink;
    for (int step = 1; step <= steps && contrast(result, ground) < least; ++step)
        result = mixed(ink, end, float(step) / steps);
    return result;
}

QColor mutedInk(const QPalette &palette)
{
    constexpr qreal highest = 20; // black on white has 21
    QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    if (contrast(ink, palette.color(QPalette::Active, QPalette::Window)) < highest)
        ink.setAlphaF(0.72F);
    return ink;
}

QColor errorInk(const QPalette &palette)
{
    return legible(QColor(0xd0, 0x3b, 0x3b), palette.color(QPalette::Active, QPalette::Window));
}

QPalette errorPalette(QPalette palette)
{
    palette.setColor(QPalette::WindowText, errorInk(palette));
    return palette;
}

QColor highlightInk(const QPalette &palette)
{
    return legible(palette.color(QPalette::Active, QPalette::HighlightedText),
                   palette.color(QPalette::Active, QPalette::Highlight));
}

QColor focusInk(const QPalette &palette)
{
    QColor ink = palette.color(QPalette::Active, QPalette::Highlight);
    for (const auto role : {QPalette::Window, QPalette::Base})
        ink = legible(ink, palette.color(QPalette::Active, role), markContrast);
    return ink;
}

} // namespace host
