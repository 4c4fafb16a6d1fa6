// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/color_scheme.h"

#include "host/window/look/high_contrast_style.h"

#include <QApplication>
#include <QHash>
#include <QPalette>
#include <QToolTip>

namespace host {

const QString highContrast = QStringLiteral("high-contrast");
const QString highContrastDark = QStringLiteral("high-contrast-dark");

namespace {

// Disabled texts have a contrast of at least 3 on windows, buttons and fields; texts to be read, such as
// links and hints in fields, at least 4.5.
struct Scheme
{
    QColor window, base, raised, text, disabled, hint, link, accent, onAccent, line, dark;
};

const Scheme lightScheme{{0xf6, 0xf6, 0xf7}, {0xff, 0xff, 0xff}, {0xfb, 0xfb, 0xfb}, {0x1f, 0x22, 0x27},
                         {0x85, 0x88, 0x8e}, {0x6d, 0x70, 0x76}, {0x1c, 0x6f, 0xc4}, {0x1c, 0x6f, 0xc4},
                         {0xff, 0xff, 0xff}, {0xd9, 0xda, 0xdd}, {0xa6, 0xa8, 0xad}};
const Scheme darkScheme{{0x2a, 0x2c, 0x30}, {0x45, 0x49, 0x50}, {0x3a, 0x3d, 0x42}, {0xe9, 0xea, 0xec},
                        {0x9f, 0xa2, 0xa8}, {0xb6, 0xb9, 0xbf}, {0x6f, 0xb1, 0xf5}, {0x32, 0x77, 0xc2},
                        {0xff, 0xff, 0xff}, {0x5a, 0x5e, 0x65}, {0x18, 0x19, 0x1b}};

// Text has a contrast of 21, all other texts to be read one of 7.
const Scheme contrastScheme{{0xff, 0xff, 0xff}, {0xff, 0xff, 0xff}, {0xff, 0xff, 0xff}, {0x00, 0x00, 0x00},
                            {0x59, 0x59, 0x59}, {0x40, 0x40, 0x40}, {0x00, 0x00, 0xa8}, {0x00, 0x00, 0x80},
                            {0xff, 0xff, 0xff}, {0x00, 0x00, 0x00}, {0x00, 0x00, 0x00}};
const Scheme darkContrastScheme{{0x00, 0x00, 0x00}, {0x00, 0x00, 0x00}, {0x00, 0x00, 0x00},
                                {0xff, 0xff, 0xff}, {0xa6, 0xa6, 0xa6}, {0xd0, 0xd0, 0xd0},
                                {0xff, 0xff, 0x80}, {0xff, 0xff, 0x00}, {0x00, 0x00, 0x00},
                                {0xff, 0xff, 0xff}, {0xff, 0xff, 0xff}};

QPalette paletteOf(const Scheme &scheme)
{
    QPalette palette(scheme.text, scheme.raised, scheme.line, scheme.dark, scheme.line, scheme.text,
                     scheme.onAccent, scheme.base, scheme.window);
    palette.setColor(QPalette::Light, scheme.raised.lighter(110));
    palette.setColor(QPalette::Midlight, scheme.line);
    palette.setColor(QPalette::Highlight, scheme.accent);
    palette.setColor(QPalette::HighlightedText, scheme.onAccent);
    palette.setColor(QPalette::Link, scheme.link);
    palette.setColor(QPalette::AlternateBase, scheme.window);
    palette.setColor(QPalette::ToolTipBase, scheme.raised);
    palette.setColor(QPalette::ToolTipText, scheme.text);
    palette.setColor(QPalette::PlaceholderText, scheme.hint);
    palette.setColor(QPalette::Shadow, scheme.dark);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, scheme.disabled);
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, scheme.disabled);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, scheme.line);
    return palette;
}

// The background of check boxes and radio buttons, which distinguishes them when they are not checked.
void setIndicatorGround(const QColor &ground)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Active, QPalette::Base, ground);
    palette.setColor(QPalette::Inactive, QPalette::Base, ground);
    QApplication::setPalette(palette, "QCheckBox");
    QApplication::setPalette(palette, "QRadioButton");
}

} // namespace

void applyColorScheme(const QString &name)
{
    const QHash<QString, const Scheme *> schemes = {{QStringLiteral("light"), &lightScheme},
                                                    {QStringLiteral("dark"), &darkScheme},
                                                    {highContrast, &contrastScheme},
                                                    {highContrastDark, &darkContrastScheme}};
    const Scheme *scheme = schemes.value(name);
    if (!scheme)
        return;
    const bool isContrast = scheme == &contrastScheme || scheme == &darkContrastScheme;
    if (isContrast)
        QApplication::setStyle(new HighContrastStyle);
    else
        QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(paletteOf(*scheme));
    if (scheme == &darkScheme) // the style draws a darker line around these
        setIndicatorGround({0x74, 0x79, 0x82});
    QToolTip::setPalette(QApplication::palette());
}

} // namespace host
