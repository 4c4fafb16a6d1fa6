# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Line plots as SVG, readable on light and dark pages."""
import math
from html import escape

WIDTH, HEIGHT = 720, 360
LEFT, RIGHT, TOP, BOTTOM = 64, 150, 40, 48  # margins; the legend is on the right
LABEL = 60  # least distance between labels
COLORS = ("#d9480f", "#1c7ed6", "#2b8a3e", "#868e96")


def ticks(most, wanted=5):
    """Round numbers from 0 to at least `most`."""
    step = 10 ** math.floor(math.log10(most / wanted))
    step = next(step * factor for factor in (1, 2, 5, 10) if step * factor * wanted >= most)
    return [step * number for number in range(math.ceil(most / step) + 1)]


def line_plot(series, title, x_axis, y_unit, logarithmic=False):
    """An SVG document. `series` maps names to lists of points; x values are logarithmic on request, and then above 0."""
    def scale(x):
        return math.log10(x) if logarithmic else x
    xs = sorted({x for points in series.values() for x, _ in points})
    heights = ticks(max(y for points in series.values() for _, y in points))
    span = (scale(xs[-1]) - scale(xs[0])) or 1

    def across(x):
        return LEFT + (scale(x) - scale(xs[0])) / span * (WIDTH - LEFT - RIGHT)

    def up(y):
        return HEIGHT - BOTTOM - y / heights[-1] * (HEIGHT - TOP - BOTTOM)

    def text(x, y, what, anchor="middle", color="#868e96"):
        return f'<text x="{x:.0f}" y="{y:.0f}" text-anchor="{anchor}" fill="{color}">{escape(what)}</text>'
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif" font-size="13">',
             text(LEFT, 22, title, "start")]
    for y in heights:
        parts.append(f'<path d="M{LEFT} {up(y):.1f}H{WIDTH - RIGHT}" stroke="#868e96" stroke-opacity=".3"/>')
        parts.append(text(LEFT - 8, up(y) + 4, f"{y:g}", "end"))
    parts.append(text(LEFT - 8, TOP - 8, y_unit, "end"))
    labeled = -math.inf
    for x in xs:
        if across(x) - labeled > LABEL:
            labeled = across(x)
            parts.append(text(labeled, HEIGHT - BOTTOM + 20, f"{x:,}"))
    parts.append(text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 8, x_axis))
    for number, (name, points) in enumerate(series.items()):
        color = COLORS[number % len(COLORS)]
        line = " ".join(f"{across(x):.1f},{up(y):.1f}" for x, y in points)
        parts.append(f'<polyline points="{line}" fill="none" stroke="{color}" stroke-width="2"/>')
        parts += [f'<circle cx="{across(x):.1f}" cy="{up(y):.1f}" r="3" fill="{color}"/>' for x, y in points]
        parts.append(text(WIDTH - RIGHT + 14, TOP + 12 + 20 * number, name, "start", color))
    return "\n".join(parts) + "\n</svg>\n"
